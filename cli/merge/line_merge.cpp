#include "merge/line_merge.hpp"

#include "edit/line_steps.hpp"

#include <cstddef>
#include <vector>

namespace zu::cli {

namespace {

/// What became of a line of the base, or of its end, on one side.
struct LineFate
{
    std::string addedBefore;
    std::string_view line;
    bool stays = false;
};

/// The fates of the lines, and one more of the end, which stays.
std::vector<LineFate> fatesOfLines(std::string_view base, std::string_view side)
{
    std::vector<LineFate> fates(1);
    for (const LineStep& step : lineSteps(base, side)) {
        if (step.mark == '+') {
            fates.back().addedBefore += step.line;
            continue;
        }
        fates.back().line = step.line;
        fates.back().stays = step.mark == ' ';
        fates.emplace_back();
    }
    fates.back().stays = true;
    return fates;
}

/// Lines between those that stay on both sides.
class Region
{
public:
    void add(const LineFate& ours, const LineFate& theirs)
    {
        const bool endsHere = ours.stays && theirs.stays;
        m_base += endsHere ? std::string_view() : ours.line;
        m_ours.append(ours.addedBefore).append(ours.stays && !endsHere ? ours.line : std::string_view());
        m_theirs.append(theirs.addedBefore).append(theirs.stays && !endsHere ? theirs.line : std::string_view());
    }

    std::string merged(AddedByBoth added) const
    {
        if (m_ours == m_base)
            return m_theirs;
        const bool allStand = added == AddedByBoth::AllStand && m_base.empty() && m_ours != m_theirs;
        return allStand ? m_ours + m_theirs : m_ours;
    }

private:
    std::string m_base;
    std::string m_ours;
    std::string m_theirs;
};

} // namespace

std::string mergedLines(std::string_view base, std::string_view ours, std::string_view theirs, AddedByBoth added)
{
    const std::vector<LineFate> ourFates = fatesOfLines(base, ours);
    const std::vector<LineFate> theirFates = fatesOfLines(base, theirs);
    std::string result;
    Region region;
    for (std::size_t i = 0; i < ourFates.size(); ++i) {
        region.add(ourFates[i], theirFates[i]);
        if (!ourFates[i].stays || !theirFates[i].stays)
            continue;
        result.append(region.merged(added)).append(ourFates[i].line);
        region = {};
    }
    return result;
}

} // namespace zu::cli
