#include "xml/surrogates.hpp"

namespace zupackage::xml {

namespace {

/// The number of code units at `i` that are a character.
int charactersAt(const QString& text, int i)
{
    if (!text.at(i).isSurrogate())
        return 1;
    return text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate() ? 2 : 0;
}

/// The surrogate in the three bytes at `i`; a null character when there is none.
QChar surrogateAt(const std::string& text, std::size_t i)
{
    const auto byte = [&text](std::size_t at) { return static_cast<uchar>(text[at]); };
    if (i + 3 > text.size() || byte(i) != 0xED || byte(i + 1) < 0xA0)
        return {};
    return {static_cast<ushort>(0xD000 | (byte(i + 1) & 0x3F) << 6 | (byte(i + 2) & 0x3F))};
}

} // namespace

bool hasLoneSurrogate(const QString& text)
{
    for (int i = 0, count = 0; i < text.size(); i += count)
        if (count = charactersAt(text, i); count == 0)
            return true;
    return false;
}

QByteArray utf8WithSurrogates(const QString& text)
{
    QByteArray utf8;
    int begin = 0;
    for (int i = 0, count = 0; i < text.size(); i += std::max(count, 1)) {
        if (count = charactersAt(text, i); count != 0)
            continue;
        const ushort surrogate = text.at(i).unicode();
        utf8 += text.midRef(begin, i - begin).toUtf8();
        utf8 += static_cast<char>(0xED);
        utf8 += static_cast<char>(0x80 | (surrogate >> 6 & 0x3F));
        utf8 += static_cast<char>(0x80 | (surrogate & 0x3F));
        begin = i + 1;
    }
    return utf8 + text.midRef(begin).toUtf8();
}

void joinSurrogates(std::string& text)
{
    std::string joined;
    for (std::size_t i = 0; i < text.size();) {
        const QChar first = surrogateAt(text, i);
        if (first.isNull()) {
            joined += text[i++];
            continue;
        }
        QString pair(first);
        i += 3;
        if (const QChar second = surrogateAt(text, i); first.isHighSurrogate() && second.isLowSurrogate()) {
            pair += second;
            i += 3;
        }
        const QByteArray utf8 = pair.toUtf8();
        joined.append(utf8.constData(), static_cast<std::size_t>(utf8.size()));
    }
    text = std::move(joined);
}

} // namespace zupackage::xml
