#include "edit/element_layout.hpp"

#include "edits.hpp"
#include "layout.hpp"
#include "source_tree.hpp"

#include <algorithm>

namespace zupackage::edit {

using zu::authoring::NodeKind;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;

namespace {

std::size_t linesIn(std::string_view text)
{
    std::size_t lines = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i, 2) != "\r\n"))
            ++lines;
    return lines;
}

bool hasElements(SourceNode element)
{
    for (const SourceNode child : element.children())
        if (child.isElement())
            return true;
    return false;
}

SourceNode previousSibling(SourceNode node)
{
    SourceNode previous;
    for (const SourceNode sibling : node.parent().children()) {
        if (sibling == node)
            return previous;
        previous = sibling;
    }
    return {};
}

bool isWhite(SourceNode node) { return node.kind() == NodeKind::Text && isBlank(node.value()); }

/// What a node takes of the document; a text without the white space around it.
ByteRange bodyOf(const SourceDocument& document, SourceNode node)
{
    if (node.kind() != NodeKind::Text || isWhite(node))
        return node.range();
    constexpr std::string_view k_white = " \t\r\n";
    const std::string_view text = document.source(node.range());
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::size_t begin = tree.toText(node.range().begin);
    return {tree.toDocument(begin + text.find_first_not_of(k_white)),
            tree.toDocument(begin + text.find_last_not_of(k_white) + 1)};
}

/// Behind the comments that stand in the line behind the node and belong to it.
std::size_t endOfRemarks(const SourceDocument& document, SourceNode node, const NodeSet& noRemarks)
{
    const std::size_t begin = bodyOf(document, node).end;
    std::size_t end = begin;
    for (SourceNode next = node.nextSibling(); next; next = next.nextSibling()) {
        const std::size_t lines = linesIn(document.source(next.range()));
        if (isWhite(next) && lines > 0)
            return end;
        if (!isWhite(next) && (next.kind() != NodeKind::Comment || lines > 0 || noRemarks.count(next.index()) > 0))
            return begin;
        if (!isWhite(next))
            end = next.range().end;
    }
    return end;
}

/// Before the comments that stand in the lines above the node, without an empty line between.
std::size_t beginOfRemarks(const Layout& layout, SourceNode node, const NodeSet& noRemarks)
{
    const std::size_t begin = bodyOf(layout.document(), node).begin;
    std::size_t remark = begin; // of the comments that end right above the node
    bool isJoined = false;
    for (const SourceNode sibling : node.parent().children()) {
        if (sibling == node)
            return isJoined ? remark : begin;
        if (isWhite(sibling)) {
            isJoined = isJoined && linesIn(layout.document().source(sibling.range())) == 1;
        } else if (sibling.kind() != NodeKind::Comment || noRemarks.count(sibling.index()) > 0) {
            isJoined = false;
        } else if (!isJoined) {
            isJoined = layout.indentation(sibling) == layout.indentation(node);
            remark = sibling.range().begin;
        }
    }
    return begin;
}

} // namespace

Layout::Layout(const SourceDocument& document, const SourceDocument& target)
    : m_document(document), m_target(target), m_lineEnd(charactersOf(document.lineEnd())),
      m_unit(authoring::indentationStep(document))
{
}

std::optional<std::string> Layout::indentation(SourceNode node) const
{
    // The white space before a loose text is part of it.
    return node.kind() == NodeKind::Text ? std::nullopt : authoring::indentationOf(m_document, node);
}

std::string Layout::newLine(const std::optional<std::string>& indentation) const
{
    return indentation ? std::string(m_lineEnd) + *indentation : std::string();
}

std::string Layout::text(SourceNode node) const
{
    // A section has no references for characters that the encoding does not have.
    const bool hasSections = authoring::hasEveryCharacter(m_document);
    if (node.kind() == NodeKind::CData && !hasSections)
        return authoring::escapedText(m_target.source(node.contentRange()));
    if (isWhite(node) && hasSections)
        return authoring::cdataSection(node.value());
    return std::string(m_target.source(node.range()));
}

std::string Layout::render(SourceNode element, const std::optional<std::string>& indentation) const
{
    std::string result(m_target.source(element.startTagRange()));
    const bool isParent = hasElements(element);
    const std::optional<std::string> inner = indentation ? std::optional(*indentation + m_unit) : std::nullopt;
    for (const SourceNode child : element.children()) {
        if (child.isElement())
            result += newLine(inner) + render(child, inner);
        else if (!isParent)
            result += text(child);
    }
    if (isParent)
        result += newLine(indentation);
    return result += m_target.source(element.endTagRange());
}

TextEdit insertionAfter(const Layout& layout, SourceNode node, const NodeSet& noRemarks, const std::string& rendered)
{
    if (const std::optional<std::string> indentation = layout.indentation(node)) {
        const std::size_t end = endOfRemarks(layout.document(), node, noRemarks);
        return {{end, end}, layout.newLine(indentation) + rendered};
    }
    const SourceNode gap = previousSibling(node);
    const std::string_view blanks = isWhite(gap) ? layout.document().source(gap.range()) : std::string_view();
    const std::size_t end = bodyOf(layout.document(), node).end;
    return {{end, end}, std::string(blanks) + rendered};
}

TextEdit insertionBefore(const Layout& layout, SourceNode node, const NodeSet& noRemarks, const std::string& rendered)
{
    const std::optional<std::string> indentation = layout.indentation(node);
    const std::size_t begin =
        indentation ? beginOfRemarks(layout, node, noRemarks) : bodyOf(layout.document(), node).begin;
    return {{begin, begin}, rendered + layout.newLine(indentation)};
}

TextEdit removalOf(const SourceDocument& document, SourceNode node)
{
    if (node.kind() == NodeKind::Text)
        return {bodyOf(document, node), {}};
    return authoring::removal(document, node);
}

std::string editedSource(const SourceDocument& document, ByteRange range, const Edits& edits)
{
    std::string result;
    std::size_t at = range.begin;
    for (const TextEdit& edit : edits) {
        result += document.source({at, edit.range.begin});
        result += edit.replacement;
        at = edit.range.end;
    }
    return result += document.source({at, range.end});
}

void sort(Edits& edits)
{
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& left, const TextEdit& right) {
        return left.range.begin != right.range.begin ? left.range.begin < right.range.begin
                                                     : left.range.end < right.range.end;
    });
}

} // namespace zupackage::edit
