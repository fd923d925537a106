#include "edit/unified_diff.hpp"

#include <algorithm>
#include <vector>

namespace zu::cli {

namespace {

using Lines = std::vector<std::string_view>;

/// The lines of a text, each with its end.
Lines linesOf(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

/// A line of both texts, of the first alone, or of the second alone.
struct Step
{
    char mark;
    std::string_view line;
};

/// From one text to the other by the shortest way, found greedily as E. Myers describes it: `m_reached[d]` holds how
/// far into the first text one comes with d lines removed or added, for each number k of removed less added lines.
class ShortestScript
{
public:
    ShortestScript(const Lines& before, const Lines& after) : m_before(before), m_after(after) {}

    std::vector<Step> steps()
    {
        // Beyond that nobody reads line by line, and the way back takes memory by the square.
        constexpr int k_mostDifferences = 2000;
        for (int d = 0; d <= k_mostDifferences; ++d) {
            m_reached.emplace_back(static_cast<std::size_t>(2 * d + 1));
            for (int k = -d; k <= d; k += 2) {
                const int x = afterCommonLines(start(d, k), k);
                reached(d, k) = x;
                if (x >= size(m_before) && x - k >= size(m_after))
                    return stepsBack(d);
            }
        }
        return replacement();
    }

private:
    static int size(const Lines& lines) { return static_cast<int>(lines.size()); }
    static std::string_view at(const Lines& lines, int number) { return lines[static_cast<std::size_t>(number)]; }
    int& reached(int d, int k)
    {
        const int fromLeast = k + d;
        return m_reached[static_cast<std::size_t>(d)][static_cast<std::size_t>(fromLeast)];
    }

    /// Whether one comes to k with the d-th difference by adding a line.
    bool isAddition(int d, int k) { return k == -d || (k != d && reached(d - 1, k - 1) < reached(d - 1, k + 1)); }

    int start(int d, int k)
    {
        if (d == 0)
            return 0;
        return isAddition(d, k) ? reached(d - 1, k + 1) : reached(d - 1, k - 1) + 1;
    }

    int afterCommonLines(int x, int k) const
    {
        while (x < size(m_before) && x - k < size(m_after) && at(m_before, x) == at(m_after, x - k))
            ++x;
        return x;
    }

    std::vector<Step> stepsBack(int d)
    {
        std::vector<Step> steps;
        int k = size(m_before) - size(m_after);
        for (int x = size(m_before); d >= 0; --d) {
            for (const int from = start(d, k); x > from; --x)
                steps.push_back({' ', at(m_before, x - 1)});
            if (d == 0)
                break;
            if (isAddition(d, k)) {
                steps.push_back({'+', at(m_after, x - k - 1)});
                ++k;
            } else {
                steps.push_back({'-', at(m_before, x - 1)});
                --k;
                --x;
            }
        }
        std::reverse(steps.begin(), steps.end());
        return steps;
    }

    std::vector<Step> replacement() const
    {
        std::vector<Step> steps;
        for (const std::string_view line : m_before)
            steps.push_back({'-', line});
        for (const std::string_view line : m_after)
            steps.push_back({'+', line});
        return steps;
    }

    const Lines& m_before;
    const Lines& m_after;
    std::vector<std::vector<int>> m_reached;
};

std::vector<Step> stepsBetween(std::string_view before, std::string_view after)
{
    Lines left = linesOf(before);
    Lines right = linesOf(after);
    std::vector<Step> steps;
    const auto begin = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    for (auto line = left.begin(); line != begin.first; ++line)
        steps.push_back({' ', *line});
    left.erase(left.begin(), begin.first);
    right.erase(right.begin(), begin.second);
    const auto end = std::mismatch(left.rbegin(), left.rend(), right.rbegin(), right.rend());
    const Lines common(end.first.base(), left.end());
    left.erase(end.first.base(), left.end());
    right.erase(end.second.base(), right.end());
    const std::vector<Step> middle = ShortestScript(left, right).steps();
    steps.insert(steps.end(), middle.begin(), middle.end());
    for (const std::string_view line : common)
        steps.push_back({' ', line});
    return steps;
}

/// "12,3", as the header of a hunk has it, for lines that begin behind the first `before`.
std::string rangeText(std::size_t before, std::size_t count)
{
    const std::string first = std::to_string(count == 0 ? before : before + 1);
    return count == 1 ? first : first + "," + std::to_string(count);
}

/// Writes steps with the lines around those that differ.
class HunkWriter
{
public:
    explicit HunkWriter(const std::vector<Step>& steps) : m_steps(steps) {}

    std::string hunks()
    {
        std::size_t left = 0;
        std::size_t right = 0;
        std::size_t at = 0;
        while (at < m_steps.size()) {
            const std::size_t end = hunkEnd(at);
            if (end == at) {
                ++at;
                ++left;
                ++right;
                continue;
            }
            writeHunk(at, end, left, right);
            at = end;
        }
        return std::move(m_text);
    }

private:
    static constexpr std::size_t k_context = 3;

    std::size_t nextDifference(std::size_t at) const
    {
        while (at < m_steps.size() && m_steps[at].mark == ' ')
            ++at;
        return at;
    }

    /// Where the hunk ends that begins there; there itself when none does.
    std::size_t hunkEnd(std::size_t begin) const
    {
        std::size_t end = begin;
        for (std::size_t next = nextDifference(begin); next < m_steps.size();) {
            const std::size_t context = end == begin ? k_context : 2 * k_context;
            if (next - end > context)
                break;
            end = next + 1;
            next = nextDifference(end);
        }
        return end == begin ? begin : std::min(end + k_context, m_steps.size());
    }

    void writeHunk(std::size_t begin, std::size_t end, std::size_t& left, std::size_t& right)
    {
        std::string lines;
        const std::size_t leftBefore = left;
        const std::size_t rightBefore = right;
        for (std::size_t i = begin; i < end; ++i) {
            left += m_steps[i].mark == '+' ? 0U : 1U;
            right += m_steps[i].mark == '-' ? 0U : 1U;
            (lines += m_steps[i].mark) += m_steps[i].line;
            if (lines.back() != '\n')
                lines += "\n\\ No newline at end of file\n";
        }
        m_text += "@@ -" + rangeText(leftBefore, left - leftBefore) + " +" +
                  rangeText(rightBefore, right - rightBefore) + " @@\n" + lines;
    }

    const std::vector<Step>& m_steps;
    std::string m_text;
};

} // namespace

std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after)
{
    if (before == after)
        return {};
    return "--- " + name + "\n+++ " + name + "\n" + HunkWriter(stepsBetween(before, after)).hunks();
}

} // namespace zu::cli
