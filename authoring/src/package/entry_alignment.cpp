#include "package/entry_alignment.hpp"

#include <algorithm>
#include <string_view>

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

/// Joins texts such that no two lists of them make one text.
std::string joined(std::initializer_list<std::string> texts)
{
    std::string result;
    for (const std::string& text : texts)
        result += std::to_string(text.size()) + ":" + text;
    return result;
}

std::string kindOf(const PackageElement& entry) { return std::to_string(entry.entry->index); }

std::string attributesOf(const PackageElement& entry)
{
    std::string result;
    for (const std::string& value : entry.attributes)
        result += joined({value});
    return result;
}

/// What an entry is known by at first.
std::string nameOf(const PackageElement& entry)
{
    if (entry.entry->occurrence != Occurrence::Repeated)
        return kindOf(entry);
    if (!entry.entry->identity.empty())
        return joined({kindOf(entry), identityOf(entry)});
    return joined({kindOf(entry), attributesOf(entry), entry.text});
}

/// The text of the part that says what language the entry is for; empty for all but speech languages.
std::string localeOf(const PackageElement& entry)
{
    for (const PackageElement& child : entry.children) {
        if (isPart(*child.entry) && child.entry->text == ValueKind::LanguageCode)
            return joined({kindOf(entry), child.text});
    }
    return {};
}

/// What may take another's place: entries of one kind that nothing identifies, texts of one language alone.
std::string placeKindOf(const PackageElement& entry)
{
    if (entry.entry->occurrence != Occurrence::Repeated || !entry.entry->identity.empty())
        return {};
    return joined({kindOf(entry), entry.entry->text == ValueKind::None ? std::string() : attributesOf(entry)});
}

/// Where the entry stands among those of other elements; flags, whose order is the package's own, stand together.
std::size_t sectionOf(const PackageElement& entry)
{
    const bool isFlag = entry.entry->occurrence != Occurrence::Repeated && !isPart(*entry.entry);
    return isFlag ? 0 : entry.entry->index;
}

/// The places in a longest subsequence of rising numbers; those without a number are in none.
std::vector<bool> longestRising(const std::vector<std::optional<std::size_t>>& numbers)
{
    std::vector<std::size_t> ends; // of the rising sequences of each length, that with the lowest end
    std::vector<std::optional<std::size_t>> previous(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (!numbers[i])
            continue;
        const auto end = std::lower_bound(ends.begin(), ends.end(), *numbers[i],
                                          [&](std::size_t place, std::size_t n) { return *numbers[place] < n; });
        if (end != ends.begin())
            previous[i] = *(end - 1);
        if (end == ends.end())
            ends.push_back(i);
        else
            *end = i;
    }
    std::vector<bool> rises(numbers.size());
    std::optional<std::size_t> place;
    if (!ends.empty())
        place = ends.back();
    for (; place; place = previous[*place])
        rises[*place] = true;
    return rises;
}

class Alignment
{
public:
    Alignment(const std::vector<PackageElement>& before, const std::vector<PackageElement>& after)
        : m_before(before), m_after(after), m_counterpart(after.size()), m_isMatched(before.size()),
          m_anchors(before.size())
    {
    }

    std::vector<AlignedEntry> run()
    {
        match(keysOf(m_before), keysOf(m_after));
        match(localesOf(m_before), localesOf(m_after));
        m_rises = longestRising(m_counterpart);
        for (std::size_t j = 0; j < m_after.size(); ++j) {
            if (m_rises[j])
                m_anchors[*m_counterpart[j]] = true;
        }
        const std::vector<std::optional<std::size_t>> identified = m_counterpart;
        match(placesOf(m_before, m_anchors), placesOf(m_after, m_rises));
        // What took the place of another is there, and did not move.
        for (std::size_t j = 0; j < m_after.size(); ++j)
            m_tookPlace.push_back(m_counterpart[j].has_value() && !identified[j].has_value());
        return inOrder();
    }

private:
    static std::vector<std::string> keysOf(const std::vector<PackageElement>& entries)
    {
        KeyCounter counter;
        std::vector<std::string> keys;
        keys.reserve(entries.size());
        for (const PackageElement& entry : entries)
            keys.push_back(counter.keyOf(entry));
        return keys;
    }

    static std::vector<std::string> localesOf(const std::vector<PackageElement>& entries)
    {
        std::vector<std::string> locales;
        locales.reserve(entries.size());
        for (const PackageElement& entry : entries)
            locales.push_back(localeOf(entry));
        return locales;
    }

    /// Makes those of one name, and not of an empty one, counterparts, the first of them first.
    void match(const std::vector<std::string>& namesBefore, const std::vector<std::string>& namesAfter)
    {
        std::unordered_map<std::string_view, std::vector<std::size_t>> unmatched;
        for (std::size_t i = m_before.size(); i-- > 0;) {
            if (!m_isMatched[i] && !namesBefore[i].empty())
                unmatched[namesBefore[i]].push_back(i);
        }
        for (std::size_t j = 0; j < m_after.size(); ++j) {
            const auto found = unmatched.find(namesAfter[j]);
            if (m_counterpart[j] || found == unmatched.end() || found->second.empty())
                continue;
            m_counterpart[j] = found->second.back();
            m_isMatched[found->second.back()] = true;
            found->second.pop_back();
        }
    }

    /// Between which entries that stayed each of the others stands, with what may take its place.
    static std::vector<std::string> placesOf(const std::vector<PackageElement>& entries,
                                             const std::vector<bool>& anchors)
    {
        std::vector<std::string> places;
        places.reserve(entries.size());
        std::size_t gap = 0;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const std::string kind = placeKindOf(entries[i]);
            places.push_back(kind.empty() ? kind : joined({std::to_string(gap), kind}));
            gap += anchors[i] ? 1U : 0U;
        }
        return places;
    }

    std::vector<AlignedEntry> inOrder() const
    {
        std::vector<AlignedEntry> result;
        appendGone(result, 0);
        for (std::size_t j = 0; j < m_after.size(); ++j) {
            result.push_back({m_counterpart[j], j, m_counterpart[j] && !m_rises[j] && !m_tookPlace[j], m_tookPlace[j]});
            if (m_rises[j])
                appendGone(result, *m_counterpart[j] + 1);
        }
        const auto section = [this](const AlignedEntry& entry) {
            return sectionOf(entry.after ? m_after[*entry.after] : m_before[*entry.before]);
        };
        std::stable_sort(result.begin(), result.end(), [&section](const AlignedEntry& left, const AlignedEntry& right) {
            return section(left) < section(right);
        });
        return result;
    }

    /// Those that are gone, from that place to the next entry that stayed.
    void appendGone(std::vector<AlignedEntry>& result, std::size_t from) const
    {
        for (; from < m_before.size() && !m_anchors[from]; ++from) {
            if (!m_isMatched[from])
                result.push_back({from, std::nullopt});
        }
    }

    const std::vector<PackageElement>& m_before;
    const std::vector<PackageElement>& m_after;
    std::vector<std::optional<std::size_t>> m_counterpart; ///< of each entry after, the one before
    std::vector<bool> m_isMatched;                         ///< of those before
    std::vector<bool> m_anchors;                           ///< of those before: it stayed where it is
    std::vector<bool> m_rises;                             ///< of those after: it stayed where it is
    std::vector<bool> m_tookPlace;                         ///< of those after: of one that is gone
};

} // namespace

std::vector<AlignedEntry> align(const std::vector<PackageElement>& before, const std::vector<PackageElement>& after)
{
    return Alignment(before, after).run();
}

std::string KeyCounter::keyOf(const PackageElement& entry)
{
    const std::string name = nameOf(entry);
    return joined({name, std::to_string(m_counts[name]++)});
}

} // namespace zupackage::authoring
