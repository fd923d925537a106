#include "characters.hpp"
#include "decoding.hpp"
#include "source_tree.hpp"

#include <zupackage/authoring/text_edit.hpp>

#include <QtCore/QString>
#include <QtCore/QTextCodec>

#include <algorithm>

namespace zu::authoring {

using zupackage::authoring::Character;
using zupackage::authoring::DocumentEncoding;
using zupackage::authoring::EncodingForm;

namespace {

/// Writes characters in the encoding of a document.
class Encoder
{
public:
    Encoder(const DocumentEncoding& encoding, std::string& bytes) : m_encoding(encoding), m_bytes(bytes) {}

    void append(std::string_view utf8)
    {
        if (m_encoding.form == EncodingForm::Utf8) {
            m_bytes += utf8;
            return;
        }
        for (std::size_t at = 0; at < utf8.size();) {
            const Character character = zupackage::authoring::characterAt(at, utf8);
            if (!appended(character.codePoint))
                append("&#" + std::to_string(static_cast<unsigned>(character.codePoint)) + ';');
            at += character.size;
        }
    }

private:
    /// @return false when the encoding does not have the character.
    bool appended(char32_t codePoint)
    {
        switch (m_encoding.form) {
        case EncodingForm::Utf8:
            zupackage::authoring::appendUtf8(codePoint, m_bytes);
            return true;
        case EncodingForm::Utf16BigEndian:
        case EncodingForm::Utf16LittleEndian:
            appendUtf16(codePoint);
            return true;
        case EncodingForm::Utf32BigEndian:
        case EncodingForm::Utf32LittleEndian:
            appendUnit(codePoint, 4, m_encoding.form == EncodingForm::Utf32BigEndian);
            return true;
        case EncodingForm::Latin1:
            if (codePoint <= 0xFF)
                appendUnit(codePoint, 1, true);
            return codePoint <= 0xFF;
        case EncodingForm::OfCodec:
            return appendedByCodec(codePoint);
        }
        return false;
    }

    void appendUtf16(char32_t codePoint)
    {
        const bool isBigEndian = m_encoding.form == EncodingForm::Utf16BigEndian;
        if (codePoint <= 0xFFFF) {
            appendUnit(codePoint, 2, isBigEndian);
        } else {
            appendUnit(0xD800 + ((codePoint - 0x10000) >> 10), 2, isBigEndian);
            appendUnit(0xDC00 + ((codePoint - 0x10000) & 0x3FF), 2, isBigEndian);
        }
    }

    void appendUnit(char32_t unit, unsigned size, bool isBigEndian)
    {
        for (unsigned i = 0; i < size; ++i)
            m_bytes += static_cast<char>(static_cast<unsigned char>(unit >> 8 * (isBigEndian ? size - 1 - i : i)));
    }

    /// What a codec makes of a character counts only when it reads the same again.
    bool appendedByCodec(char32_t codePoint)
    {
        const uint ucs4 = codePoint;
        const QString text = QString::fromUcs4(&ucs4, 1);
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QByteArray bytes = m_encoding.codec->fromUnicode(text.constData(), text.size(), &state);
        if (state.invalidChars > 0 || m_encoding.codec->toUnicode(bytes) != text)
            return false;
        m_bytes.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        return true;
    }

    const DocumentEncoding& m_encoding;
    std::string& m_bytes;
};

/// Whether a character begins there, or the document ends.
bool isBorder(std::size_t offset, const SourceTree& tree)
{
    if (tree.isConverted)
        return tree.map.toDocument(tree.map.toText(offset)) == offset;
    return offset == tree.bytes.size() || (static_cast<unsigned char>(tree.bytes[offset]) & 0xC0) != 0x80;
}

bool isUtf8(std::string_view text) { return zupackage::authoring::validUtf8End(text) == text.size(); }

bool areApplicable(const std::vector<TextEdit>& edits, const SourceTree& tree)
{
    std::size_t end = tree.encoding.markSize;
    for (const TextEdit& edit : edits) {
        const ByteRange range = edit.range;
        if (range.begin < end || range.end < range.begin || range.end > tree.bytes.size() ||
            !isBorder(range.begin, tree) || !isBorder(range.end, tree) || !isUtf8(edit.replacement))
            return false;
        end = range.end;
    }
    return true;
}

} // namespace

std::optional<std::string> applyEdits(const SourceDocument& document, const std::vector<TextEdit>& edits)
{
    const SourceTree& tree = SourceTreeAccess::tree(document);
    if (!areApplicable(edits, tree))
        return std::nullopt;
    std::string bytes;
    bytes.reserve(tree.bytes.size());
    Encoder encoder(tree.encoding, bytes);
    std::size_t at = 0;
    for (const TextEdit& edit : edits) {
        bytes.append(tree.bytes, at, edit.range.begin - at);
        encoder.append(edit.replacement);
        at = edit.range.end;
    }
    return bytes.append(tree.bytes, at, std::string::npos);
}

std::size_t encodedSize(const SourceDocument& document, std::string_view replacement)
{
    std::string bytes;
    Encoder(SourceTreeAccess::tree(document).encoding, bytes).append(replacement);
    return bytes.size();
}

} // namespace zu::authoring
