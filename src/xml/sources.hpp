#pragma once

#include <QtCore/QByteArray>

#include <string_view>

// The event parser is deprecated in Qt 5.15, and stays what QDomDocument itself parses with in all of Qt 5.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlInputSource>

namespace zupackage::xml {

class Guard;

/// A document as the parser reads it, shown to the guard on the way and cut off where the guard says so. It comes in
/// pieces, so that it never lies in memory as a whole.
class GuardedSource : public QXmlInputSource
{
public:
    explicit GuardedSource(Guard& guard) : m_guard(guard) {}

    QChar next() override;

protected:
    /// The next characters; none at the end.
    virtual QString nextPiece() = 0;

private:
    Guard& m_guard;
    QString m_piece;
    const QChar* m_next = nullptr;
    const QChar* m_end = nullptr;
};

/// UTF-8 text, whatever it declares. Gives the characters that QString::fromUtf8 would.
class TextSource final : public GuardedSource
{
public:
    TextSource(Guard& guard, std::string_view utf8) : GuardedSource(guard), m_rest(utf8) {}

private:
    QString nextPiece() override;

    std::string_view m_rest;
};

/// The content of a device, in the encoding that the document says itself. Gives the characters that QXmlInputSource
/// would.
class BytesSource final : public GuardedSource
{
public:
    BytesSource(Guard& guard, const QByteArray& bytes) : GuardedSource(guard), m_bytes(bytes) {}

private:
    QString nextPiece() override;

    const QByteArray& m_bytes;
    int m_position = 0;
};

} // namespace zupackage::xml

QT_WARNING_POP
