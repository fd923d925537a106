#include "edit/differ.hpp"
#include "edit/matching.hpp"

#include <algorithm>
#include <set>

namespace zupackage::edit {

using zu::authoring::AttributeEntry;
using zu::authoring::ValueKind;

namespace {

/// What tells an entry of a list from others: what the vocabulary says, or all that it says itself.
std::string identityOf(SourceNode node, const ElementEntry& entry, TextOf textOf)
{
    if (isListOfNames(*entry.parent))
        return std::string(node.name());
    if (!entry.identity.empty() && entry.identity != zu::authoring::k_ownText)
        return readAttribute(node, entry.identity);
    std::string identity = textOf(node);
    if (entry.identity.empty())
        for (const AttributeEntry& attribute : entry.attributes)
            identity.append(1, '\0').append(readAttribute(node, attribute.name));
    return identity;
}

/// The nodes that count for each key, and the keys.
using NodesByKey = std::map<std::string, SourceNode>;

NodesByKey byKey(const Nodes& nodes, const ElementEntry& entry)
{
    NodesByKey result;
    for (const SourceNode node : nodes) {
        const std::string key = readAttribute(node, keyName(entry));
        if (keepingOf(entry) == Keeping::FirstOfKey)
            result.emplace(key, node);
        else
            result[key] = node;
    }
    return result;
}

} // namespace

Differ::Items Differ::itemsOf(const Nodes& nodes, const ElementEntry& entry, TextOf textOf)
{
    Items items;
    for (const SourceNode node : nodes)
        items.push_back({node, identityOf(node, entry, textOf)});
    return items;
}

void Differ::keyed(const Sides& sides, Changes& changes) const
{
    const NodesByKey present = byKey(sides.present, sides.entry);
    NodesByKey wanted = byKey(sides.wanted, sides.entry);
    for (auto entry = wanted.begin(); entry != wanted.end();)
        entry = isWritten(entry->second, sides.entry, writtenText) ? std::next(entry) : wanted.erase(entry);

    for (const SourceNode node : sides.present) {
        const std::string key = readAttribute(node, keyName(sides.entry));
        const bool goes = wanted.count(key) == 0 && isWritten(present.at(key), sides.entry, readText);
        if (goes && (node.isElement() || isWritten(node, sides.entry, readText)))
            changes.removed.insert(node.index());
    }

    SourceNode previous;
    std::vector<std::size_t> first; // the additions before all that stays
    for (const auto& [key, target] : wanted) {
        const auto there = present.find(key);
        const SourceNode node = there == present.end() ? SourceNode() : there->second;
        if (node.isElement()) {
            element(node, target, sides.entry, changes.edits);
            for (const std::size_t addition : first)
                changes.additions[addition].before = node;
            first.clear();
            previous = node;
        } else if (!node || !readsAs(node, target, sides.entry)) {
            const bool isFirst = keepingOf(sides.entry) == Keeping::FirstOfKey;
            if (!node && !previous)
                first.push_back(changes.additions.size());
            changes.additions.push_back(
                {sides.number, target, {}, isFirst || !node ? previous : node, isFirst ? node : SourceNode()});
        }
    }
}

void Differ::textsOfKeys(const Sides& sides, Changes& changes) const
{
    std::map<std::string, std::pair<Nodes, Nodes>> lists;
    for (const SourceNode node : sides.present)
        if (isWritten(node, sides.entry, readText))
            lists[readAttribute(node, keyName(sides.entry))].first.push_back(node);
    for (const SourceNode node : sides.wanted)
        if (isWritten(node, sides.entry, writtenText))
            lists[readAttribute(node, keyName(sides.entry))].second.push_back(node);
    SourceNode last;
    for (const auto& [key, nodes] : lists)
        last = list(sides, itemsOf(nodes.first, sides.entry, readText), itemsOf(nodes.second, sides.entry, writtenText),
                    last, changes);
}

Differ::Items Differ::firstOnes(Items items, Items& repeated)
{
    Items result;
    std::set<std::string> seen;
    for (Item& item : items)
        (seen.insert(item.identity).second ? result : repeated).push_back(std::move(item));
    return result;
}

void Differ::eachOnce(const Sides& sides, Changes& changes) const
{
    Items repeated;
    Items ignored;
    const Items present = firstOnes(itemsOf(sides.present, sides.entry, readText), repeated);
    // Not every door into a package keeps its lists free of repetitions.
    const Items wanted = firstOnes(itemsOf(sides.wanted, sides.entry, writtenText), ignored);
    list(sides, present, wanted, {}, changes);

    // Where the first one goes, its repetitions must not take its place.
    std::set<std::string> staying;
    for (const Item& item : wanted)
        staying.insert(item.identity);
    for (const Item& item : present)
        if (changes.removed.count(item.node.index()) > 0)
            staying.erase(item.identity);
    for (const Item& item : repeated)
        if (staying.count(item.identity) == 0)
            changes.removed.insert(item.node.index());
}

bool Differ::isWrittenAlike(const Items& present, std::size_t presentNumber, const Items& wanted,
                            std::size_t wantedNumber, const ElementEntry& entry) const
{
    // All of a list of the package, and nothing else, is written, so that the numbers are those of the written ones.
    const bool isOfPackage = keepingOf(entry) == Keeping::List && entry.parent->parent && !entry.parent->parent->parent;
    const ByteRange range = wanted[wantedNumber].node.range();
    return isOfPackage &&
           ((presentNumber == wantedNumber && range.end <= m_beginningEnd) ||
            (present.size() - presentNumber == wanted.size() - wantedNumber && range.begin >= m_endBegin));
}

SourceNode Differ::list(const Sides& sides, const Items& present, const Items& wanted, SourceNode anchor,
                        Changes& changes) const
{
    Lists lists;
    for (const Item& item : present)
        lists.present.push_back(item.identity);
    for (const Item& item : wanted)
        lists.wanted.push_back(item.identity);
    std::vector<Match> matches = matchLists(
        lists,
        [&](auto p, auto w) {
            return isWrittenAlike(present, p, wanted, w, sides.entry) ||
                   (present[p].identity == wanted[w].identity && readsAs(present[p].node, wanted[w].node, sides.entry));
        },
        [&](auto p, auto w) { return isRenamed(present[p].node, wanted[w].node, sides.entry); });
    return become(sides, present, wanted, matches, anchor, changes);
}

SourceNode Differ::become(const Sides& sides, const Items& present, const Items& wanted, std::vector<Match>& matches,
                          SourceNode anchor, Changes& changes) const
{
    std::set<std::size_t> kept;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        Match& match = matches[i];
        if (match.present == k_none)
            continue;
        const SourceNode node = present[match.present].node;
        // What is no element cannot be edited into one.
        if (!node.isElement() && !match.isEqual && !readsAs(node, wanted[i].node, sides.entry))
            match = {};
        if (!match.isKept)
            continue;
        kept.insert(match.present);
        if (node.kind() == NodeKind::Comment)
            changes.keptComments.insert(node.index());
    }
    for (std::size_t i = 0; i < present.size(); ++i)
        if (kept.count(i) == 0)
            changes.removed.insert(present[i].node.index());

    const SourceNode first = kept.empty() ? SourceNode() : present[*kept.begin()].node;
    SourceNode last = first ? SourceNode() : anchor;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const SourceNode node = matches[i].present == k_none ? SourceNode() : present[matches[i].present].node;
        if (matches[i].isKept) {
            if (!matches[i].isEqual)
                element(node, wanted[i].node, sides.entry, changes.edits);
            last = node;
        } else {
            changes.additions.push_back({sides.number, wanted[i].node, node, last, last ? SourceNode() : first});
        }
    }
    return last;
}

bool Differ::isRenamed(SourceNode node, SourceNode target, const ElementEntry& entry) const
{
    if (!node.isElement() || (entry.attributes.empty() && entry.text == ValueKind::None))
        return false;
    if (entry.children.empty())
        return true;
    Edits edits;
    element(node, target, entry, edits);
    return std::all_of(edits.begin(), edits.end(),
                       [&](const TextEdit& edit) { return node.startTagRange().contains(edit.range); });
}

} // namespace zupackage::edit
