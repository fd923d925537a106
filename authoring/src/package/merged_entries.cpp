#include "package/merged_entries.hpp"

#include "package/entry_alignment.hpp"

#include <list>
#include <string>
#include <unordered_map>

namespace zupackage::authoring {

namespace {

using Entries = std::vector<PackageElement>;

class EntryMerge
{
public:
    EntryMerge(const Entries& base, const Entries& ours, const Entries& theirs)
        : m_entries(base.size()), m_ofOurs(ours.size()), m_ofTheirs(theirs.size()), m_moved(base.size())
    {
        for (std::size_t b = 0; b < base.size(); ++b)
            m_entries[b].base = b;
        for (const AlignedEntry& aligned : align(base, ours)) {
            if (aligned.before && aligned.after)
                addOurs(*aligned.before, *aligned.after, aligned.isMoved);
        }
        for (const AlignedEntry& aligned : align(base, theirs)) {
            if (aligned.before && aligned.after)
                addTheirs(*aligned.before, *aligned.after, aligned.isMoved);
        }
        addNew(ours, theirs);
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
    void addNew(const Entries& ours, const Entries& theirs)
    {
        std::unordered_map<std::string, std::size_t> newOurs;
        const std::vector<std::string> keysOfOurs = keysOf(ours, m_ofOurs);
        for (std::size_t o = 0; o < ours.size(); ++o) {
            if (m_ofOurs[o])
                continue;
            addOurs(addEntry(), o, false);
            newOurs.emplace(keysOfOurs[o], *m_ofOurs[o]);
        }
        const std::vector<std::string> keysOfTheirs = keysOf(theirs, m_ofTheirs);
        for (std::size_t t = 0; t < theirs.size(); ++t) {
            if (m_ofTheirs[t])
                continue;
            const auto same = newOurs.find(keysOfTheirs[t]);
            addTheirs(same == newOurs.end() ? addEntry() : same->second, t, false);
        }
    }

    /// The keys of those that are new, as if no others were there.
    static std::vector<std::string> keysOf(const Entries& entries, const std::vector<std::optional<std::size_t>>& known)
    {
        std::vector<std::string> keys(entries.size());
        KeyCounter counter;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (!known[i])
                keys[i] = counter.keyOf(entries[i]);
        }
        return keys;
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
