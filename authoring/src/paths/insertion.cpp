#include "paths/insertion.hpp"

#include "characters.hpp"
#include "edit/reading.hpp"
#include "edits.hpp"
#include "layout.hpp"
#include "paths/vocabulary_of_nodes.hpp"
#include "source_tree.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::AttributeEntry;
using zu::authoring::ByteRange;
using zu::authoring::ElementEntry;
using zu::authoring::NodeKind;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;
using zu::authoring::TextEdit;

namespace {

/// The element in `parent` that a new one of that name comes behind; null when it comes first.
SourceNode predecessorFor(const std::string& name, SourceNode parent)
{
    const ElementEntry* const entry = entryOf(parent);
    const ElementEntry* const wanted = entry ? entry->child(name) : nullptr;
    SourceNode namesake;
    SourceNode earlier;
    for (const SourceNode child : parent.children()) {
        if (!child.isElement())
            continue;
        const ElementEntry* const known = entry ? entry->child(child.name()) : nullptr;
        if (child.name() == name)
            namesake = child;
        if (!wanted || (known && known->index < wanted->index))
            earlier = child;
    }
    return namesake ? namesake : earlier;
}

bool hasLineEnd(const SourceDocument& document, SourceNode text)
{
    return document.source(text.range()).find_first_of("\r\n") != std::string_view::npos;
}

/// The last comment behind a node that still stands in its line, else the node: what comes behind it comes behind both.
SourceNode withCommentInLine(const SourceDocument& document, SourceNode node)
{
    SourceNode last = node;
    for (SourceNode next = node.nextSibling(); next; next = next.nextSibling()) {
        if (next.kind() == NodeKind::Comment)
            last = next;
        else if (!isBlankText(document, next) || hasLineEnd(document, next))
            break;
    }
    return last;
}

SourceNode firstElementIn(SourceNode parent)
{
    for (const SourceNode child : parent.children()) {
        if (child.isElement())
            return child;
    }
    return {};
}

/// The last comment or instruction in a node.
SourceNode lastRemarkIn(SourceNode parent)
{
    SourceNode last;
    for (const SourceNode child : parent.children()) {
        if (child.kind() == NodeKind::Comment || child.kind() == NodeKind::ProcessingInstruction)
            last = child;
    }
    return last;
}

/// Between the tags of an element; an empty tag is opened.
TextEdit contentEdit(const SourceDocument& document, SourceNode element, ByteRange range, const std::string& content)
{
    if (!element.isEmptyTag())
        return {range, content};
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::string_view text = tree.utf8();
    std::size_t slash = tree.toText(element.range().end) - 2;
    while (isOf(Blank, text[slash - 1]))
        --slash;
    return {{tree.toDocument(slash), element.range().end}, ">" + content + "</" + std::string(element.name()) + ">"};
}

/// Writes new elements into one that is there.
class Inserter
{
public:
    Inserter(const SourceDocument& document, SourceNode parent, const NewElement& element)
        : m_document(document), m_parent(parent), m_element(element), m_layout(layoutAt(document, parent))
    {
        const ElementEntry* const entry = entryOf(parent);
        m_entry = entry ? entry->child(element.name) : nullptr;
    }

    TextEdit edit()
    {
        const SourceNode first = firstElementIn(m_parent);
        SourceNode predecessor = predecessorFor(m_element.name, m_parent);
        if (!first)
            predecessor = lastRemarkIn(m_parent);
        if (predecessor) {
            const std::size_t end = withCommentInLine(m_document, predecessor).range().end;
            return besides(predecessor, end);
        }
        return first ? besides(first, m_parent.contentRange().begin) : intoEmpty();
    }

private:
    TextEdit besides(SourceNode neighbour, std::size_t at)
    {
        const auto indentation = indentationOf(m_document, neighbour);
        return {{at, at}, indentation ? m_layout.lineEnd + *indentation + xml(*indentation) : xmlInOneLine()};
    }

    TextEdit intoEmpty()
    {
        const ByteRange content = m_parent.contentRange();
        const auto indentation = indentationOf(m_document, m_parent);
        const SourceNode text = m_parent.firstChild();
        if (text && !isBlankText(m_document, text))
            return {{content.end, content.end}, xmlInOneLine()};
        if (!indentation)
            return contentEdit(m_document, m_parent, content, xmlInOneLine());
        const std::string inner = *indentation + m_layout.step;
        return contentEdit(m_document, m_parent, content,
                           m_layout.lineEnd + inner + xml(inner) + m_layout.lineEnd + *indentation);
    }

    std::string xml(const std::string& indentation)
    {
        m_layout.indentation = indentation;
        return written(m_element, m_entry, m_layout);
    }

    std::string xmlInOneLine()
    {
        m_layout.isInOneLine = true;
        return written(m_element, m_entry, m_layout);
    }

    const SourceDocument& m_document;
    SourceNode m_parent;
    const NewElement& m_element;
    const ElementEntry* m_entry = nullptr;
    ElementLayout m_layout;
};

/// The attribute of an element that a new one of that name comes behind; null when it comes first.
SourceAttribute predecessorFor(std::string_view name, SourceNode element, const ElementEntry* entry)
{
    SourceAttribute predecessor;
    const AttributeEntry* const wanted = entry ? entry->attribute(name) : nullptr;
    for (const SourceAttribute attribute : element.attributes()) {
        const AttributeEntry* const known = entry ? entry->attribute(attribute.name()) : nullptr;
        if (!wanted || (known && known < wanted))
            predecessor = attribute;
    }
    return predecessor;
}

/// The white space before the first attribute, as before the next; a blank without attributes.
std::string spaceBeforeAttributes(const SourceDocument& document, SourceNode element)
{
    if (element.attributes().isEmpty())
        return " ";
    return std::string(document.source({element.nameRange().end, element.attributes()[0].range().begin}));
}

/// The one of an element's texts that another takes the place of; null when it has none.
SourceNode principalText(const SourceDocument& document, SourceNode element)
{
    SourceNode result;
    for (const SourceNode child : element.children()) {
        if (child.kind() == NodeKind::CData)
            return child;
        if (edit::isTextual(child.kind()) && (!result || isBlankText(document, result)))
            result = child;
    }
    return result;
}

} // namespace

ElementLayout layoutAt(const SourceDocument& document, SourceNode element)
{
    ElementLayout layout;
    layout.lineEnd = charactersOf(document.lineEnd());
    layout.step = indentationStep(document);
    const SourceNode sibling = firstElementIn(element);
    for (const SourceNode witness : {sibling, element, document.root()}) {
        if (!witness.attributes().isEmpty()) {
            layout.quote = witness.attributes()[0].quote();
            break;
        }
    }
    layout.hasEveryCharacter = hasEveryCharacter(document);
    return layout;
}

TextEdit insertion(const SourceDocument& document, SourceNode parent, const NewElement& element)
{
    return Inserter(document, parent, element).edit();
}

TextEdit insertion(const SourceDocument& document, SourceNode element, std::string_view attribute,
                   std::string_view value)
{
    const SourceAttribute predecessor = predecessorFor(attribute, element, entryOf(element));
    const std::size_t at = predecessor ? predecessor.range().end : element.nameRange().end;
    const char quote =
        element.attributes().isEmpty() ? layoutAt(document, element).quote : element.attributes()[0].quote();
    return {{at, at},
            spaceBeforeAttributes(document, element) + std::string(attribute) + "=" + quote +
                escapedValue(value, quote) + quote};
}

std::vector<TextEdit> textReplacement(const SourceDocument& document, SourceNode element, std::string_view text,
                                      bool dropsElements)
{
    const ElementLayout layout = layoutAt(document, element);
    const SourceNode principal = principalText(document, element);
    if (!principal) {
        const std::size_t end = element.contentRange().end;
        const bool replacesAll = dropsElements && !element.isEmptyTag();
        return {contentEdit(document, element, replacesAll ? element.contentRange() : ByteRange{end, end},
                            textSource(text, false, layout))};
    }
    std::vector<TextEdit> edits;
    for (const SourceNode child : element.children()) {
        if (child == principal) {
            edits.push_back({child.range(), textSource(text, child.kind() == NodeKind::CData, layout)});
        } else if (edit::isTextual(child.kind()) || (child.isElement() && dropsElements)) {
            edits.push_back({child.range(), {}});
        }
    }
    return edits;
}

} // namespace zupackage::authoring
