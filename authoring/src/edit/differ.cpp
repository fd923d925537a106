#include "edit/differ.hpp"

#include "edit/attribute_edits.hpp"
#include "edit/placing.hpp"

#include <algorithm>

namespace zupackage::edit {

using zu::authoring::ValueKind;

namespace {

/// Whether all that counts in it is of one entry.
bool isOneList(const ElementEntry& entry) { return entry.countsEveryChild || isListOfNames(entry); }

/// The number of the entry that the reader takes a node for; that of all entries for none.
std::size_t numberOf(SourceNode node, const ElementEntry& entry)
{
    if (entry.countsEveryChild)
        return counts(node) ? 0 : 1;
    const auto child = std::find_if(entry.children.begin(), entry.children.end(),
                                    [name = node.name()](const ElementEntry* c) { return c->name == name; });
    const auto number = static_cast<std::size_t>(child - entry.children.begin());
    return isListOfNames(entry) && number < entry.children.size() ? 0 : number;
}

/// The nodes of each entry in containers that are read as one.
std::vector<Nodes> grouped(const Nodes& containers, const ElementEntry& entry)
{
    std::vector<Nodes> groups(entry.children.size());
    for (const SourceNode container : containers)
        for (const SourceNode child : container.children())
            if (const std::size_t number = numberOf(child, entry); number < groups.size())
                groups[number].push_back(child);
    if (isOneList(entry))
        groups.resize(1);
    return groups;
}

Nodes elementsOf(const Nodes& nodes)
{
    Nodes elements;
    std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(elements), [](SourceNode n) { return n.isElement(); });
    return elements;
}

} // namespace

Differ::Differ(const SourceDocument& document, const SourceDocument& target, std::string_view written)
    : m_document(document), m_layout(document, target)
{
    const std::string_view wanted = target.text();
    const auto beginning = std::mismatch(wanted.begin(), wanted.end(), written.begin(), written.end());
    const auto end = std::mismatch(wanted.rbegin(), wanted.rend(), written.rbegin(), written.rend());
    m_beginningEnd = static_cast<std::size_t>(beginning.first - wanted.begin());
    m_endBegin = wanted.size() - static_cast<std::size_t>(end.first - wanted.rbegin());
}

void Differ::element(SourceNode node, SourceNode target, const ElementEntry& entry, Edits& edits) const
{
    setAttributes(m_document, node, target, entry, edits);
    if (entry.text != ValueKind::None)
        if (const std::string text = writtenText(target); text != readText(node))
            setText(m_document, node, text, edits);
    if (!entry.children.empty())
        children({node}, target, entry, edits);
}

bool Differ::readsAs(SourceNode node, SourceNode target, const ElementEntry& entry) const
{
    Edits edits;
    element(node, target, entry, edits);
    return edits.empty();
}

void Differ::children(const Nodes& containers, SourceNode target, const ElementEntry& entry, Edits& edits) const
{
    const std::vector<Nodes> present = grouped(containers, entry);
    const std::vector<Nodes> wanted = grouped({target}, entry);
    Changes changes;
    for (std::size_t i = 0; i < present.size(); ++i)
        if (!present[i].empty() || !wanted[i].empty())
            childrenOf({i, *entry.children[i], present[i], wanted[i]}, changes);
    edits.insert(edits.end(), changes.edits.begin(), changes.edits.end());
    for (const std::size_t number : changes.removed)
        edits.push_back(removalOf(m_document, m_document.node(number)));
    const auto source = [&](const Addition& addition, const std::optional<std::string>& indentation) {
        if (!addition.moved)
            return m_layout.render(addition.target, indentation);
        Edits inner;
        element(addition.moved, addition.target, *entry.children[addition.entry], inner);
        sort(inner);
        return editedSource(m_document, addition.moved.range(), inner);
    };
    place({m_layout, containers.back(), present, changes, source}, edits);
}

void Differ::childrenOf(const Sides& sides, Changes& changes) const
{
    if (isListOfNames(*sides.entry.parent)) {
        eachOnce(sides, changes);
        return;
    }
    switch (keepingOf(sides.entry)) {
    case Keeping::Section:
        section(sides, changes);
        break;
    case Keeping::LastOne:
        lastOne(sides, changes);
        break;
    case Keeping::Presence:
        presence(sides, changes);
        break;
    case Keeping::FirstOfKey:
    case Keeping::LastOfKey:
        keyed(sides, changes);
        break;
    case Keeping::Codes:
        eachOnce(sides, changes);
        break;
    case Keeping::TextsOfKeys:
        textsOfKeys(sides, changes);
        break;
    case Keeping::List:
        list(sides, itemsOf(sides.present, sides.entry, readText), itemsOf(sides.wanted, sides.entry, writtenText), {},
             changes);
        break;
    }
}

void Differ::section(const Sides& sides, Changes& changes) const
{
    const Nodes sections = elementsOf(sides.present);
    const SourceNode target = sides.wanted.empty() ? SourceNode() : sides.wanted.front();
    if (!sections.empty())
        children(sections, target, sides.entry, changes.edits);
    else if (!elementsOf({target.children().begin(), target.children().end()}).empty())
        changes.additions.push_back({sides.number, target, {}, {}, {}});
}

void Differ::lastOne(const Sides& sides, Changes& changes) const
{
    // What is never written is not read, either.
    if (sides.wanted.empty())
        return;
    const SourceNode target = sides.wanted.front();
    const SourceNode last = sides.present.empty() ? SourceNode() : sides.present.back();
    if (last.isElement())
        element(last, target, sides.entry, changes.edits);
    else if (!readsAs(last, target, sides.entry))
        changes.additions.push_back({sides.number, target, {}, last, {}});
}

void Differ::presence(const Sides& sides, Changes& changes) const
{
    if (sides.wanted.empty())
        for (const SourceNode node : sides.present)
            changes.removed.insert(node.index());
    else if (sides.present.empty())
        changes.additions.push_back({sides.number, sides.wanted.front(), {}, {}, {}});
}

} // namespace zupackage::edit
