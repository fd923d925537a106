#include "xml/sources.hpp"

#include "xml/guard.hpp"
#include "xml/nodes.hpp"

#include <algorithm>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace zupackage::xml {

namespace {

/// Where UTF-8 can be cut so that both parts, broken sequences included, are decoded as they would be together.
std::size_t cutAfter(std::size_t wanted, std::string_view utf8)
{
    const auto isAscii = [](char byte) { return static_cast<uchar>(byte) < 0x80; };
    if (wanted >= utf8.size())
        return utf8.size();
    return static_cast<std::size_t>(
        std::find_if(utf8.begin() + static_cast<std::ptrdiff_t>(wanted), utf8.end(), isAscii) - utf8.begin());
}

} // namespace

QChar GuardedSource::next()
{
    if (m_next == m_end) {
        m_piece = nextPiece();
        m_next = m_piece.constData();
        m_end = m_next + m_piece.size();
        if (m_next == m_end)
            return {EndOfDocument};
    }
    const QChar c = *m_next++;
    // Within a document, too, the parser takes either for the end.
    return c != QChar(EndOfData) && m_guard.follow(c) ? c : QChar(EndOfDocument);
}

QString TextSource::nextPiece()
{
    constexpr std::size_t k_size = 8 * 1024;
    const std::string_view piece = m_rest.substr(0, cutAfter(k_size, m_rest));
    m_rest.remove_prefix(piece.size());
    return fromUtf8(piece);
}

QString BytesSource::nextPiece()
{
    // As QXmlInputSource itself does: where a piece ends decides what is made of broken sequences, and which characters
    // are read before the encoding is known.
    constexpr int k_size = 1024;
    const int size = std::min(k_size, m_bytes.size() - m_position);
    const QByteArray piece = QByteArray::fromRawData(m_bytes.constData() + m_position, size);
    m_position += size;
    return fromRawData(piece);
}

} // namespace zupackage::xml

QT_WARNING_POP
