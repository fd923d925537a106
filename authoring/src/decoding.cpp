#include "decoding.hpp"

#include "characters.hpp"
#include "limits.hpp"

#include <QtCore/QString>
#include <QtCore/QTextCodec>

#include <algorithm>
#include <cstring>
#include <memory>

namespace zupackage::authoring {

namespace {

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// Takes the characters of a document one after the other.
class Converter
{
public:
    Converter(std::string_view bytes, DecodedText& text) : m_bytes(bytes), m_text(text)
    {
        m_text.isConverted = true;
        m_text.utf8.reserve(bytes.size() + bytes.size() / 8);
    }

    void utf8()
    {
        for (std::size_t at = 0; at < m_bytes.size();) {
            const std::size_t size = utf8Size(at, m_bytes);
            if (size == 0)
                addInvalid(1);
            else
                add(characterAt(at, m_bytes).codePoint, size);
            at += size == 0 ? 1 : size;
        }
    }

    void latin1()
    {
        for (const char byte : m_bytes)
            add(static_cast<unsigned char>(byte), 1);
    }

    void utf16(bool isBigEndian)
    {
        std::size_t at = 0;
        for (; at + 2 <= m_bytes.size(); at += 2) {
            const char32_t unit = number(at, 2, isBigEndian);
            const bool isHigh = (unit & 0xFC00) == 0xD800;
            const char32_t low = isHigh && at + 4 <= m_bytes.size() ? number(at + 2, 2, isBigEndian) : 0;
            if ((low & 0xFC00) == 0xDC00) {
                add(0x10000 + ((unit & 0x3FF) << 10) + (low & 0x3FF), 4);
                at += 2;
            } else {
                addOrRefuse(unit, 2);
            }
        }
        addRest(at);
    }

    void utf32(bool isBigEndian)
    {
        std::size_t at = 0;
        for (; at + 4 <= m_bytes.size(); at += 4)
            addOrRefuse(number(at, 4, isBigEndian), 4);
        addRest(at);
    }

    /// Byte by byte: what a character takes shows when it comes out.
    void codec(const QTextCodec& codec)
    {
        const std::unique_ptr<QTextDecoder> decoder(codec.makeDecoder(QTextCodec::IgnoreHeader));
        std::size_t taken = 0;
        for (std::size_t at = 0; at < m_bytes.size(); ++at) {
            const QString characters = decoder->toUnicode(m_bytes.data() + at, 1);
            if (characters.isEmpty())
                continue;
            const auto codePoints = characters.toUcs4();
            std::size_t left = at + 1 - taken;
            for (int i = 0; i < codePoints.size(); ++i) {
                // When bytes that mean nothing are noticed at the next character, that one takes the last byte.
                const auto behind = static_cast<std::size_t>(codePoints.size() - 1 - i);
                const std::size_t bytes = left > behind ? left - behind : std::min<std::size_t>(left, 1);
                if (codePoints[i] == k_replacementCodePoint || isSurrogate(codePoints[i]))
                    addInvalid(bytes);
                else
                    add(codePoints[i], bytes);
                left -= bytes;
            }
            taken = at + 1;
        }
        addRest(taken);
    }

private:
    char32_t number(std::size_t at, std::size_t size, bool isBigEndian) const
    {
        char32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(m_bytes[at + (isBigEndian ? i : size - 1 - i)]);
        return value;
    }

    void add(char32_t codePoint, std::size_t bytes)
    {
        const std::size_t before = m_text.utf8.size();
        appendUtf8(codePoint, m_text.utf8);
        m_text.map.append(bytes, m_text.utf8.size() - before);
    }

    void addOrRefuse(char32_t codePoint, std::size_t bytes)
    {
        if (codePoint > 0x10FFFF || isSurrogate(codePoint))
            addInvalid(bytes);
        else
            add(codePoint, bytes);
    }

    void addInvalid(std::size_t bytes)
    {
        const std::size_t begin = m_text.utf8.size();
        add(k_replacementCodePoint, bytes);
        const std::size_t end = m_text.utf8.size();
        if (!m_text.invalid.empty() && m_text.invalid.back().end == begin)
            m_text.invalid.back().end = static_cast<std::uint32_t>(end);
        else if (m_text.invalid.size() < limits::k_errors)
            m_text.invalid.push_back(span(begin, end));
    }

    void addRest(std::size_t at)
    {
        if (at < m_bytes.size())
            addInvalid(m_bytes.size() - at);
    }

    std::string_view m_bytes;
    DecodedText& m_text;
};

std::size_t afterAscii(std::size_t at, std::string_view bytes)
{
    constexpr std::uint64_t k_highBits = 0x8080808080808080;
    std::uint64_t word = 0;
    for (; at + sizeof(word) <= bytes.size(); at += sizeof(word)) {
        std::memcpy(&word, bytes.data() + at, sizeof(word));
        if ((word & k_highBits) != 0)
            break;
    }
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80)
        ++at;
    return at;
}

} // namespace

DecodedText decoded(std::string_view bytes, const DocumentEncoding& encoding)
{
    DecodedText text;
    if (encoding.form == EncodingForm::Utf8 && validUtf8End(bytes) == bytes.size())
        return text;
    Converter converter(bytes, text);
    switch (encoding.form) {
    case EncodingForm::Utf8:
        converter.utf8();
        break;
    case EncodingForm::Utf16BigEndian:
    case EncodingForm::Utf16LittleEndian:
        converter.utf16(encoding.form == EncodingForm::Utf16BigEndian);
        break;
    case EncodingForm::Utf32BigEndian:
    case EncodingForm::Utf32LittleEndian:
        converter.utf32(encoding.form == EncodingForm::Utf32BigEndian);
        break;
    case EncodingForm::Latin1:
        converter.latin1();
        break;
    case EncodingForm::OfCodec:
        converter.codec(*encoding.codec);
        break;
    }
    return text;
}

std::size_t utf8Size(std::size_t at, std::string_view bytes)
{
    const auto byte = [at, bytes](std::size_t i) {
        return at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0u;
    };
    const auto isRest = [&byte](std::size_t i, unsigned first = 0x80, unsigned last = 0xBF) {
        return byte(i) >= first && byte(i) <= last;
    };
    const unsigned first = byte(0);
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    if (first < 0xE0)
        return isRest(1) ? 2 : 0;
    // Neither longer than needed, nor surrogates, nor beyond Unicode.
    if (first < 0xF0)
        return isRest(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF) && isRest(2) ? 3 : 0;
    return isRest(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF) && isRest(2) && isRest(3) ? 4 : 0;
}

std::size_t validUtf8End(std::string_view bytes)
{
    std::size_t at = 0;
    while ((at = afterAscii(at, bytes)) < bytes.size()) {
        const std::size_t size = utf8Size(at, bytes);
        if (size == 0)
            break;
        at += size;
    }
    return at;
}

} // namespace zupackage::authoring
