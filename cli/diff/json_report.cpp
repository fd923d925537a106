#include "diff/difference_report.hpp"

#include <nlohmann/json.hpp>

namespace zu::cli {

namespace {

using authoring::ChangeKind;
using authoring::PackageChange;
using nlohmann::ordered_json;

const char* outcomeOf(const ManifestDifference& difference)
{
    if (!difference.unreadable.empty())
        return "unreadable";
    if (difference.isIdentical)
        return "identical";
    return difference.changes.empty() ? "same_package" : "different";
}

ordered_json jsonOf(const PackageChange& change)
{
    ordered_json result = {{"path", change.path},
                           {"kind", nameOf(change.kind)},
                           {"before", change.before},
                           {"after", change.after},
                           {"form", change.isMarkup ? "markup" : "text"}};
    if (change.kind == ChangeKind::Added)
        result["before"] = nullptr;
    if (change.kind == ChangeKind::Removed)
        result["after"] = nullptr;
    return result;
}

} // namespace

std::string jsonReport(const ManifestDifference& difference)
{
    ordered_json report = {{"format_version", 1},
                           {"tool", {{"name", "zupackage"}, {"version", ZUPACKAGE_VERSION}}},
                           {"before", difference.before},
                           {"after", difference.after},
                           {"outcome", outcomeOf(difference)},
                           {"errors", ordered_json::array()},
                           {"changes", ordered_json::array()}};
    for (const UnreadableManifest& manifest : difference.unreadable)
        report["errors"].push_back({{"path", manifest.name}, {"message", manifest.reason}});
    for (const PackageChange& change : difference.changes)
        report["changes"].push_back(jsonOf(change));
    // The names of files may be any bytes.
    return report.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace zu::cli
