#include "edit/value_edits.hpp"

#include "edit/reading.hpp"
#include "edit/tokens.hpp"
#include "edits.hpp"
#include "source_tree.hpp"

#include <algorithm>

namespace zupackage::edit {

using authoring::fitsSection;
using authoring::hasEveryCharacter;
using authoring::readableText;
using zu::authoring::NodeKind;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;

namespace {

/// What a value stands in.
enum class Place
{
    Text,
    CData,
    Attribute
};

std::string sourceIn(Place place, std::string_view value, char quote)
{
    switch (place) {
    case Place::Text:
        return authoring::escapedText(value);
    case Place::CData:
        return std::string(value);
    case Place::Attribute:
        return authoring::escapedValue(value, quote);
    }
    return {};
}

/// Makes what stands in the range say `value`.
void replace(const SourceDocument& document, ByteRange range, Place place, char quote, std::string_view value,
             Edits& edits)
{
    // What is kept of the one and put beside it must not become the end of a section.
    if (value.find("]]>") != std::string_view::npos) {
        edits.push_back({range, sourceIn(place, value, quote)});
        return;
    }
    const Tokens tokens =
        tokensOf(document.source(range), place == Place::CData ? References::None : References::Resolved);
    const Difference difference = differenceOf(tokens, value);
    const std::string_view middle = value.substr(difference.valueBegin, difference.valueEnd - difference.valueBegin);
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::size_t begin = tree.toText(range.begin);
    edits.push_back({{tree.toDocument(begin + difference.sourceBegin), tree.toDocument(begin + difference.sourceEnd)},
                     sourceIn(place, middle, quote)});
}

/// All texts within the element, at any depth; loose white space that the reader drops alone is `blank`.
struct Texts
{
    std::vector<SourceNode> speaking;
    std::vector<SourceNode> blank;
};

void collectTexts(SourceNode element, Texts& texts)
{
    for (const SourceNode child : element.children()) {
        if (child.isElement())
            collectTexts(child, texts);
        else if (isTextual(child.kind()))
            (counts(child) ? texts.speaking : texts.blank).push_back(child);
    }
}

/// All texts go but one, which becomes the text.
void setWhole(const SourceDocument& document, SourceNode element, const Texts& texts, std::string_view text,
              Edits& edits)
{
    const auto place = std::find_if(texts.speaking.begin(), texts.speaking.end(),
                                    [&](SourceNode node) { return node.parent() == element; });
    const std::size_t content = element.contentRange().begin;
    edits.push_back({place == texts.speaking.end() ? ByteRange{content, content} : place->range(),
                     readableText(text, hasEveryCharacter(document))});
    for (const std::vector<SourceNode>* const nodes : {&texts.speaking, &texts.blank})
        for (const SourceNode node : *nodes)
            if (place == texts.speaking.end() || node != *place)
                edits.push_back({node.range(), {}});
}

} // namespace

void setValue(const SourceDocument& document, SourceAttribute attribute, std::string_view value, Edits& edits)
{
    replace(document, attribute.valueRange(), Place::Attribute, attribute.quote(), value, edits);
}

void setText(const SourceDocument& document, SourceNode element, std::string_view text, Edits& edits)
{
    if (element.isEmptyTag()) {
        fill(document, element, readableText(text, hasEveryCharacter(document)), edits);
        return;
    }
    Texts texts;
    collectTexts(element, texts);
    if (texts.speaking.size() == 1 && texts.speaking.front().parent() == element) {
        const SourceNode node = texts.speaking.front();
        if (node.kind() == NodeKind::Text && !isBlank(text)) {
            replace(document, node.range(), Place::Text, '\0', text, edits);
            return;
        }
        if (node.kind() == NodeKind::CData && fitsSection(text, hasEveryCharacter(document))) {
            replace(document, node.contentRange(), Place::CData, '\0', text, edits);
            return;
        }
    }
    setWhole(document, element, texts, text, edits);
}

void fill(const SourceDocument& document, SourceNode element, std::string_view content, Edits& edits)
{
    const ByteRange range = element.contentRange();
    if (!element.isEmptyTag()) {
        edits.push_back({range, std::string(content)});
        return;
    }
    const std::string_view tag = document.source(element.range());
    const std::size_t slash = tag.find_last_of('/');
    const std::size_t end = tag.find_last_not_of(" \t\r\n", slash - 1) + 1;
    const SourceTree& tree = SourceTreeAccess::tree(document);
    edits.push_back({{tree.toDocument(tree.toText(element.range().begin) + end), element.range().end},
                     ">" + std::string(content) + "</" + std::string(element.name()) + ">"});
}

} // namespace zupackage::edit
