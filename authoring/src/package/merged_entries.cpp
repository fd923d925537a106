#include "package/merged_entries.hpp"

#include "package/entry_alignment.hpp"

#include <list>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace zupackage::authoring {

namespace {

using Entries = std::vector<PackageElement>;

/// Which entries of one side are those of the base.
class Counterparts
{
public:
    Counterparts(const Entries& base, const Entries& side) : m_keys(side.size())
    {
        std::vector<bool> isIdentified(side.size());
        for (const AlignedEntry& aligned : align(base, side)) {
            if (!aligned.before || !aligned.after)
                continue;
            m_aligned.push_back(aligned);
            isIdentified[*aligned.after] = !aligned.tookPlace;
        }
        KeyCounter counter;
        for (std::size_t i = 0; i < side.size(); ++i) {
            if (!isIdentified[i])
                m_keys[i] = counter.keyOf(side[i]);
        }
    }

    /// Of each entry what it is known by among those that the base does not have; empty for those that it has.
    const std::vector<std::string>& keys() const { return m_keys; }

    /// The entries that are in the base. What took the place of another is a new one where the other side has it, too:
    /// otherwise it would be there twice, here as a change and there as an addition.
    std::vector<AlignedEntry> besides(const Counterparts& other) const
    {
        const std::unordered_set<std::string> others(other.m_keys.begin(), other.m_keys.end());
        std::vector<AlignedEntry> entries;
        for (const AlignedEntry& aligned : m_aligned) {
            if (!aligned.tookPlace || others.count(m_keys[*aligned.after]) == 0)
                entries.push_back(aligned);
        }
        return entries;
    }

private:
    std::vector<AlignedEntry> m_aligned;
    std::vector<std::string> m_keys;
};

class EntryMerge
{
public:
    EntryMerge(const Entries& base, const Entries& ours, const Entries& theirs)
        : m_entries(base.size()), m_ofOurs(ours.size()), m_ofTheirs(theirs.size()), m_moved(base.size())
    {
        for (std::size_t b = 0; b < base.size(); ++b)
            m_entries[b].base = b;
        const Counterparts ofOurs(base, ours);
        const Counterparts ofTheirs(base, theirs);
        for (const AlignedEntry& aligned : ofOurs.besides(ofTheirs))
            addOurs(*aligned.before, *aligned.after, aligned.isMoved);
        for (const AlignedEntry& aligned : ofTheirs.besides(ofOurs))
            addTheirs(*aligned.before, *aligned.after, aligned.isMoved);
        addNew(ofOurs.keys(), ofTheirs.keys());
    }

    std::vector<MergedEntry> inOrder()
    {
        for (const std::optional<std::size_t> entry : m_ofOurs) {
            if (!m_moved[*entry].byThem || m_moved[*entry].byUs)
                m_order.push_back(*entry);
        }
        placeTheirs();
        std::vector<MergedEntry> result;
        result.reserve(m_order.size());
        for (const std::size_t entry : m_order)
            result.push_back(m_entries[entry]);
        return result;
    }

private:
    struct Movers
    {
        bool byUs = false;
        bool byThem = false;
    };

    void addOurs(std::size_t entry, std::size_t ours, bool isMoved)
    {
        m_entries[entry].ours = ours;
        m_ofOurs[ours] = entry;
        m_moved[entry].byUs = isMoved;
    }

    void addTheirs(std::size_t entry, std::size_t theirs, bool isMoved)
    {
        m_entries[entry].theirs = theirs;
        m_ofTheirs[theirs] = entry;
        m_moved[entry].byThem = isMoved && m_entries[entry].ours;
    }

    std::size_t addEntry()
    {
        m_entries.emplace_back();
        m_moved.emplace_back();
        return m_entries.size() - 1;
    }

    /// What is new on both sides is one entry when it is known by the same.
    void addNew(const std::vector<std::string>& keysOfOurs, const std::vector<std::string>& keysOfTheirs)
    {
        std::unordered_map<std::string, std::size_t> newOurs;
        for (std::size_t o = 0; o < keysOfOurs.size(); ++o) {
            if (m_ofOurs[o])
                continue;
            addOurs(addEntry(), o, false);
            newOurs.emplace(keysOfOurs[o], *m_ofOurs[o]);
        }
        for (std::size_t t = 0; t < keysOfTheirs.size(); ++t) {
            if (m_ofTheirs[t])
                continue;
            const auto same = newOurs.find(keysOfTheirs[t]);
            addTheirs(same == newOurs.end() ? addEntry() : same->second, t, false);
        }
    }

    bool isNewOurs(std::size_t entry) const { return !m_entries[entry].base && !m_entries[entry].theirs; }

    void placeTheirs()
    {
        std::vector<std::optional<std::list<std::size_t>::iterator>> places(m_entries.size());
        for (auto place = m_order.begin(); place != m_order.end(); ++place)
            places[*place] = place;
        auto next = m_order.begin();
        for (const std::optional<std::size_t> entry : m_ofTheirs) {
            if (!places[*entry]) {
                while (next != m_order.end() && isNewOurs(*next))
                    ++next;
                places[*entry] = m_order.insert(next, *entry);
            }
            next = std::next(*places[*entry]);
        }
    }

    std::vector<MergedEntry> m_entries;                 ///< those of the base first
    std::vector<std::optional<std::size_t>> m_ofOurs;   ///< of each place, the number of the entry
    std::vector<std::optional<std::size_t>> m_ofTheirs; ///< the same
    std::vector<Movers> m_moved;                        ///< by the number of the entry
    std::list<std::size_t> m_order;
};

} // namespace

std::vector<MergedEntry> mergedEntries(const std::vector<PackageElement>& base, const std::vector<PackageElement>& ours,
                                       const std::vector<PackageElement>& theirs)
{
    return EntryMerge(base, ours, theirs).inOrder();
}

} // namespace zupackage::authoring
