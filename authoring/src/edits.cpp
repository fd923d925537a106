#include "edits.hpp"

#include "characters.hpp"
#include "source_tree.hpp"
#include "white_space.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::ByteRange;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;
using zu::authoring::TextEdit;

namespace {

bool isSpaceOrTab(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

/// The range with the white space before it and the end of its line, when there is nothing else in its lines.
ByteRange withLines(const SourceDocument& document, ByteRange range)
{
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::string_view text = tree.utf8();
    std::size_t begin = tree.toText(range.begin);
    while (begin > 0 && isSpaceOrTab(text[begin - 1]))
        --begin;
    std::size_t end = tree.toText(range.end);
    while (end < text.size() && isSpaceOrTab(text[end]))
        ++end;
    const bool isFirst = begin == 0 || isLineEnd(text[begin - 1]);
    if (!isFirst || end == text.size() || !isLineEnd(text[end]))
        return range;
    end += text.compare(end, 2, "\r\n") == 0 ? 2U : 1U;
    return tree.range(span(begin, end));
}

std::string escaped(std::string_view text, char quote)
{
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '>' && quote == '\0')
            result += "&gt;";
        else if (c == quote && c == '"')
            result += "&quot;";
        else if (c == quote && c == '\'')
            result += "&apos;";
        else if (c == '\r' || (quote != '\0' && (c == '\n' || c == '\t')))
            result += "&#" + std::to_string(static_cast<int>(c)) + ";";
        else
            result += c;
    }
    return result;
}

} // namespace

TextEdit removal(const SourceDocument& document, SourceNode node) { return {withLines(document, node.range()), {}}; }

TextEdit removal(const SourceDocument& document, SourceAttribute attribute)
{
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::string_view text = tree.utf8();
    std::size_t begin = tree.toText(attribute.range().begin);
    while (isOf(Blank, text[begin - 1]))
        --begin;
    return {{tree.toDocument(begin), attribute.range().end}, {}};
}

TextEdit replacement(SourceAttribute attribute, std::string_view value)
{
    return {attribute.valueRange(), escapedValue(value, attribute.quote())};
}

std::vector<TextEdit> renaming(SourceNode element, std::string_view name)
{
    std::vector<TextEdit> edits = {{element.nameRange(), std::string(name)}};
    const ByteRange endTag = element.endTagRange();
    if (!endTag.isEmpty())
        edits.push_back({endTag, "</" + std::string(name) + ">"});
    return edits;
}

std::string escapedText(std::string_view text) { return escaped(text, '\0'); }

std::string escapedValue(std::string_view value, char quote) { return escaped(value, quote); }

std::string readableText(std::string_view text, bool hasEveryCharacter)
{
    const bool wouldBeDropped = !text.empty() && isBlank(text);
    return wouldBeDropped && fitsSection(text, hasEveryCharacter) ? cdataSection(text) : escapedText(text);
}

bool fitsSection(std::string_view text, bool hasEveryCharacter)
{
    return text.find("]]>") == std::string_view::npos &&
           (hasEveryCharacter ||
            std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
}

std::string cdataSection(std::string_view text) { return "<![CDATA[" + std::string(text) + "]]>"; }

bool hasEveryCharacter(const SourceDocument& document)
{
    switch (SourceTreeAccess::tree(document).encoding.form) {
    case EncodingForm::Utf8:
    case EncodingForm::Utf16BigEndian:
    case EncodingForm::Utf16LittleEndian:
    case EncodingForm::Utf32BigEndian:
    case EncodingForm::Utf32LittleEndian:
        return true;
    case EncodingForm::Latin1:
    case EncodingForm::OfCodec:
        return false;
    }
    return false;
}

} // namespace zupackage::authoring
