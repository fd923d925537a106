#include "edit/unified_diff.hpp"

#include "edit/line_steps.hpp"

#include <algorithm>
#include <vector>

namespace zu::cli {

namespace {

using Step = LineStep;

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

bool needsEscape(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f' || c == '"' || c == '\\'; }

std::string escaped(char c)
{
    if (c == '"' || c == '\\')
        return {'\\', c};
    const auto digit = [byte = static_cast<unsigned char>(c)](unsigned shift) {
        return static_cast<char>('0' + (byte >> shift & 7U));
    };
    return {'\\', digit(6), digit(3), digit(0)};
}

/// The name of a file such that GNU patch takes all of it: as GNU diff does, in C's quotes when it has what ends a line
/// or a quoted name, else with a tab behind it when it has blanks.
std::string nameInHeader(const std::string& name)
{
    if (name.front() != ' ' && std::none_of(name.begin(), name.end(), needsEscape))
        return name.find(' ') == std::string::npos ? name : name + "\t";
    std::string quoted = "\"";
    for (const char c : name)
        quoted += needsEscape(c) ? escaped(c) : std::string(1, c);
    return quoted + '"';
}

} // namespace

std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after)
{
    if (before == after)
        return {};
    const std::string header = nameInHeader(name);
    return "--- " + header + "\n+++ " + header + "\n" + HunkWriter(lineSteps(before, after)).hunks();
}

} // namespace zu::cli
