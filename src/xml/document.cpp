#include "xml/document.hpp"

#include "xml/document_guard.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QBuffer>

#include <algorithm>

namespace zupackage::xml {

namespace {

constexpr qint64 k_maxBytes = limits::k_documentMiB * limits::k_bytesPerMiB;

/// `setContent(&message, &line, &column)` parses into the document.
template <class SetContent>
ParseResult parsed(SetContent setContent)
{
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!setContent(document, &message, &line, &column))
        return ParseFailure{line, column, toUtf8(message)};
    return document;
}

/// In pieces: a pipe gives no more at once than it has.
QByteArray readUpTo(qint64 most, QIODevice& device)
{
    constexpr qint64 k_piece = 64 * 1024;
    QByteArray bytes;
    while (bytes.size() < most) {
        const QByteArray piece = device.read(std::min(k_piece, most - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

} // namespace

ParseResult parse(const std::string& content)
{
    if (content.size() > static_cast<std::size_t>(k_maxBytes))
        return tooLarge();
    const QString text = fromUtf8(content);
    if (auto failure = exceededLimit(text))
        return *std::move(failure);
    return parsed([&text](QDomDocument& document, QString* message, int* line, int* column) {
        return document.setContent(text, true, message, line, column);
    });
}

ParseResult parse(QIODevice& device)
{
    QByteArray bytes = readUpTo(k_maxBytes + 1, device);
    if (bytes.size() > k_maxBytes)
        return tooLarge();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    if (auto failure = exceededLimit(buffer))
        return *std::move(failure);
    buffer.seek(0);
    return parsed([&buffer](QDomDocument& document, QString* message, int* line, int* column) {
        return document.setContent(&buffer, message, line, column);
    });
}

} // namespace zupackage::xml
