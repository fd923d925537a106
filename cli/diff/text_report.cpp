#include "diff/difference_report.hpp"
#include "display_width.hpp"
#include "terminal.hpp"

#include <string_view>

namespace zu::cli {

namespace {

using authoring::ChangeKind;
using authoring::PackageChange;

constexpr const char* k_removedColour = "31";
constexpr const char* k_addedColour = "32";

const char* colourOf(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Added:
        return k_addedColour;
    case ChangeKind::Removed:
        return k_removedColour;
    case ChangeKind::Changed:
        return "33";
    case ChangeKind::Moved:
        return "36";
    }
    return "";
}

/// A kind of change, in as many columns as the others.
std::string labelOf(ChangeKind kind, bool isColoured)
{
    constexpr std::size_t k_width = 8;
    std::string label(nameOf(kind));
    label.resize(k_width, ' ');
    return painted(label, colourOf(kind), isColoured);
}

/// The text in double quotes, with escapes for these and for what does not stand in a line.
std::string inQuotes(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '"' || c == '\\')
            (escaped += '\\') += c;
        else if (c == '\n')
            escaped += "\\n";
        else if (c == '\r')
            escaped += "\\r";
        else if (c == '\t')
            escaped += "\\t";
        else
            escaped += c;
    }
    return '"' + displayed(escaped) + '"';
}

/// The lines of a text, each behind a mark.
std::string marked(std::string_view lines, std::string_view mark, const char* colour, bool isColoured)
{
    std::string result;
    for (;;) {
        const std::size_t end = lines.find('\n');
        const std::string line = std::string(mark) + " " + displayed(lines.substr(0, end));
        result += "\n         " + painted(line, colour, isColoured);
        if (end == std::string_view::npos)
            return result;
        lines.remove_prefix(end + 1);
    }
}

/// What stands behind the path.
std::string textsOf(const PackageChange& change, bool isColoured)
{
    constexpr std::size_t k_short = 80;
    if (change.kind == ChangeKind::Changed) {
        if (change.path.size() + change.before.size() + change.after.size() <= k_short)
            return ": " + inQuotes(change.before) + " -> " + inQuotes(change.after);
        return marked(inQuotes(change.before), "-", k_removedColour, isColoured) +
               marked(inQuotes(change.after), "+", k_addedColour, isColoured);
    }
    const std::string& text = change.kind == ChangeKind::Removed ? change.before : change.after;
    if (!change.isMarkup)
        return text.empty() ? std::string() : ": " + inQuotes(text);
    switch (change.kind) {
    case ChangeKind::Added:
        return marked(text, "+", k_addedColour, isColoured);
    case ChangeKind::Removed:
        return marked(text, "-", k_removedColour, isColoured);
    case ChangeKind::Changed:
    case ChangeKind::Moved:
        break;
    }
    return {};
}

} // namespace

std::string textReport(const ManifestDifference& difference, bool isColoured)
{
    if (!difference.unreadable.empty() || difference.isIdentical)
        return {};
    if (difference.changes.empty())
        return "nothing of the package differs, only the text of the manifest\n";
    std::string report;
    for (const PackageChange& change : difference.changes) {
        report += labelOf(change.kind, isColoured) + " " + displayed(change.path) + textsOf(change, isColoured) + "\n";
    }
    return report;
}

} // namespace zu::cli
