#include "edit/line_steps.hpp"

#include <algorithm>

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

/// From one text to the other by the shortest way, found greedily as E. Myers describes it: `m_reached[d]` holds how
/// far into the first text one comes with d lines removed or added, for each number k of removed less added lines.
class ShortestScript
{
public:
    ShortestScript(const Lines& before, const Lines& after) : m_before(before), m_after(after) {}

    std::vector<LineStep> steps()
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

    std::vector<LineStep> stepsBack(int d)
    {
        std::vector<LineStep> steps;
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

    std::vector<LineStep> replacement() const
    {
        std::vector<LineStep> steps;
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

} // namespace

std::vector<LineStep> lineSteps(std::string_view before, std::string_view after)
{
    Lines left = linesOf(before);
    Lines right = linesOf(after);
    std::vector<LineStep> steps;
    const auto begin = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    for (auto line = left.begin(); line != begin.first; ++line)
        steps.push_back({' ', *line});
    left.erase(left.begin(), begin.first);
    right.erase(right.begin(), begin.second);
    const auto end = std::mismatch(left.rbegin(), left.rend(), right.rbegin(), right.rend());
    const Lines common(end.first.base(), left.end());
    left.erase(end.first.base(), left.end());
    right.erase(end.second.base(), right.end());
    const std::vector<LineStep> middle = ShortestScript(left, right).steps();
    steps.insert(steps.end(), middle.begin(), middle.end());
    for (const std::string_view line : common)
        steps.push_back({' ', line});
    return steps;
}

} // namespace zu::cli
