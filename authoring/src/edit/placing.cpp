#include "edit/placing.hpp"

#include <algorithm>

namespace zupackage::edit {

using zu::authoring::NodeKind;

namespace {

/// A node that stays, and on which side of it something is to stand.
struct Neighbour
{
    SourceNode node;
    bool isBefore = false; ///< whether the node is before what is new
};

bool stays(SourceNode node, const Changes& changes) { return changes.removed.count(node.index()) == 0; }

/// The neighbour that the order of entries gives.
Neighbour neighbourByOrder(const Placing& placing, std::size_t entry)
{
    const auto isStaying = [&](SourceNode node) { return stays(node, placing.changes); };
    for (std::size_t i = entry + 1; i > 0; --i) {
        const Nodes& nodes = placing.groups[i - 1];
        const auto last = std::find_if(nodes.rbegin(), nodes.rend(), isStaying);
        if (last != nodes.rend())
            return {*last, true};
    }
    for (std::size_t i = entry + 1; i < placing.groups.size(); ++i) {
        const Nodes& nodes = placing.groups[i];
        const auto first = std::find_if(nodes.begin(), nodes.end(), isStaying);
        if (first != nodes.end())
            return {*first, false};
    }
    Neighbour last;
    for (const SourceNode child : placing.container.children())
        if (isStaying(child) && !(child.kind() == NodeKind::Text && isBlank(child.value())))
            last = {child, true};
    return last;
}

Neighbour neighbourOf(const Placing& placing, const Addition& addition)
{
    if (addition.after)
        return {addition.after, true};
    if (addition.before)
        return {addition.before, false};
    return neighbourByOrder(placing, addition.entry);
}

/// Puts what has no neighbours into the container.
void placeAlone(const Placing& placing, const std::vector<const Addition*>& additions, Edits& edits)
{
    const Layout& layout = placing.layout;
    const SourceNode container = placing.container;
    const std::optional<std::string> outer = layout.indentation(container);
    const std::optional<std::string> inner = outer ? std::optional(*outer + layout.unit()) : std::nullopt;
    std::string content;
    for (const Addition* const addition : additions)
        content += layout.newLine(inner) + placing.source(*addition, inner);
    if (container.isEmptyTag()) {
        fill(layout.document(), container, content + layout.newLine(outer), edits);
        return;
    }
    const SourceNode first = container.firstChild();
    const bool endsLine = first.kind() == NodeKind::Text &&
                          layout.document().source(first.range()).find_first_of("\r\n") != std::string_view::npos;
    const std::size_t begin = container.contentRange().begin;
    edits.push_back({{begin, begin}, endsLine ? content : content + layout.newLine(outer)});
}

} // namespace

void place(const Placing& placing, Edits& edits)
{
    // Comments that go are remarks on nothing, nor are those that are entries themselves: what is new has its place
    // among these.
    NodeSet noRemarks = placing.changes.removed;
    noRemarks.insert(placing.changes.keptComments.begin(), placing.changes.keptComments.end());
    std::vector<const Addition*> alone;
    for (const Addition& addition : placing.changes.additions) {
        const Neighbour neighbour = neighbourOf(placing, addition);
        if (!neighbour.node) {
            alone.push_back(&addition);
            continue;
        }
        const std::string source = placing.source(addition, placing.layout.indentation(neighbour.node));
        const auto insertion = neighbour.isBefore ? insertionAfter : insertionBefore;
        edits.push_back(insertion(placing.layout, neighbour.node, noRemarks, source));
    }
    if (!alone.empty())
        placeAlone(placing, alone, edits);
}

} // namespace zupackage::edit
