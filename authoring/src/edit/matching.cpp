#include "edit/matching.hpp"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace zupackage::edit {

namespace {

class Matcher
{
public:
    Matcher(const Lists& lists, const Comparison& isEqual, const Comparison& isRenamed)
        : m_lists(lists), m_isEqual(isEqual), m_isRenamed(isRenamed), m_matches(lists.wanted.size())
    {
    }

    std::vector<Match> run()
    {
        matchEnds();
        matchByIdentity();
        keepLongest();
        matchRenamed();
        return std::move(m_matches);
    }

private:
    void keep(std::size_t present, std::size_t wanted, bool isEqual) { m_matches[wanted] = {present, true, isEqual}; }

    void matchEnds()
    {
        m_presentEnd = m_lists.present.size();
        m_wantedEnd = m_lists.wanted.size();
        while (m_begin < m_presentEnd && m_begin < m_wantedEnd && m_isEqual(m_begin, m_begin)) {
            keep(m_begin, m_begin, true);
            ++m_begin;
        }
        while (m_presentEnd > m_begin && m_wantedEnd > m_begin && m_isEqual(m_presentEnd - 1, m_wantedEnd - 1))
            keep(--m_presentEnd, --m_wantedEnd, true);
    }

    /// Of several that are alike the first is the first.
    void matchByIdentity()
    {
        std::unordered_map<std::string_view, std::vector<std::size_t>> places;
        for (std::size_t i = m_presentEnd; i > m_begin; --i)
            places[m_lists.present[i - 1]].push_back(i - 1);
        for (std::size_t i = m_begin; i < m_wantedEnd; ++i) {
            const auto place = places.find(m_lists.wanted[i]);
            if (place == places.end() || place->second.empty())
                continue;
            m_matches[i].present = place->second.back();
            place->second.pop_back();
        }
    }

    /// The longest ascending subsequence of the places stays.
    void keepLongest()
    {
        std::vector<std::size_t> tails; // by length, the wanted entry that ends the best one
        std::vector<std::size_t> before(m_matches.size(), k_none);
        for (std::size_t i = m_begin; i < m_wantedEnd; ++i) {
            if (m_matches[i].present == k_none)
                continue;
            const auto tail = std::lower_bound(tails.begin(), tails.end(), m_matches[i].present,
                                               [&](std::size_t t, std::size_t p) { return m_matches[t].present < p; });
            if (tail != tails.begin())
                before[i] = *std::prev(tail);
            if (tail == tails.end())
                tails.push_back(i);
            else
                *tail = i;
        }
        for (std::size_t i = tails.empty() ? k_none : tails.back(); i != k_none; i = before[i])
            m_matches[i].isKept = true;
    }

    void matchRenamed()
    {
        enum class Fate
        {
            Free,
            Moved,
            Kept
        };
        std::vector<Fate> fates(m_lists.present.size());
        for (const Match& match : m_matches)
            if (match.present != k_none)
                fates[match.present] = match.isKept ? Fate::Kept : Fate::Moved;
        std::size_t present = m_begin;
        for (std::size_t i = m_begin; i < m_wantedEnd; ++i) {
            if (m_matches[i].isKept)
                present = m_matches[i].present + 1;
            while (present < m_presentEnd && fates[present] == Fate::Moved)
                ++present;
            if (m_matches[i].present != k_none || present >= m_presentEnd || fates[present] != Fate::Free)
                continue;
            if (m_isRenamed(present, i))
                keep(present, i, false);
            ++present;
        }
    }

    const Lists& m_lists;
    const Comparison& m_isEqual;
    const Comparison& m_isRenamed;
    std::vector<Match> m_matches;
    std::size_t m_begin = 0; ///< of what differs, in both lists
    std::size_t m_presentEnd = 0;
    std::size_t m_wantedEnd = 0;
};

} // namespace

std::vector<Match> matchLists(const Lists& lists, const Comparison& isEqual, const Comparison& isRenamed)
{
    return Matcher(lists, isEqual, isRenamed).run();
}

} // namespace zupackage::edit
