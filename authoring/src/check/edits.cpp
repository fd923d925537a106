#include "check/edits.hpp"

namespace zupackage::check {

using zu::authoring::ByteRange;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::TextEdit;

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

/// Whether white space is the same bytes in the document as in ASCII.
bool hasPlainSpaces(const SourceDocument& document)
{
    const std::string& encoding = document.encoding();
    return encoding.rfind("UTF-16", 0) != 0 && encoding.rfind("UTF-32", 0) != 0;
}

/// The range with the white space before it and the end of its line, when there is nothing else in its lines.
ByteRange withLines(const SourceDocument& document, ByteRange range)
{
    const std::string& text = document.text();
    std::size_t begin = range.begin;
    while (begin > 0 && isBlank(text[begin - 1]))
        --begin;
    std::size_t end = range.end;
    while (end < text.size() && isBlank(text[end]))
        ++end;
    const bool isFirst = begin == 0 || isLineEnd(text[begin - 1]);
    if (!isFirst || end == text.size() || !isLineEnd(text[end]))
        return range;
    end += text.compare(end, 2, "\r\n") == 0 ? 2U : 1U;
    return {begin, end};
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

TextEdit removal(const SourceDocument& document, SourceNode node)
{
    return {hasPlainSpaces(document) ? withLines(document, node.range()) : node.range(), {}};
}

TextEdit removal(const SourceDocument& document, SourceAttribute attribute)
{
    ByteRange range = attribute.range();
    const std::string& text = document.text();
    while (hasPlainSpaces(document) && range.begin > 0 &&
           (isBlank(text[range.begin - 1]) || isLineEnd(text[range.begin - 1])))
        --range.begin;
    return {range, {}};
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

} // namespace zupackage::check
