#include "merge/text_merge.hpp"

#include "merge/line_merge.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/package_difference.hpp>

#include <algorithm>
#include <utility>

namespace zu::cli {

namespace {

using authoring::ManifestMerge;
using authoring::SourceDocument;

PackageInfo packageIn(const std::string& manifest)
{
    return authoring::ManifestEditor(SourceDocument::parse(manifest)).package();
}

bool readAlike(const std::string& left, const std::string& right)
{
    return left == right || authoring::differences(packageIn(left), packageIn(right)).empty();
}

/// How many things stand twice: a merge of lines knows nothing of what both sides added in different places.
std::ptrdiff_t repetitionsIn(const std::string& manifest)
{
    const authoring::CheckReport report = authoring::check(SourceDocument::parse(manifest));
    return std::count_if(report.findings.begin(), report.findings.end(),
                         [](const authoring::Diagnostic& finding) { return finding.rule.rfind("repeated-", 0) == 0; });
}

bool isBetter(const ManifestMerge& candidate, const ManifestMerge& merged)
{
    return candidate.leftBehind.size() < merged.leftBehind.size() && readAlike(candidate.ours, merged.ours) &&
           readAlike(candidate.theirs, merged.theirs) && repetitionsIn(candidate.ours) <= repetitionsIn(merged.ours);
}

/// Takes what lines make of them where that is better.
void improve(ManifestMerge& merged, const std::string& base, const std::string& lines, const std::string& theirs)
{
    try {
        ManifestMerge candidate = authoring::mergeManifests(base, lines, theirs);
        if (!isBetter(candidate, merged))
            return;
        candidate.conflicts = std::move(merged.conflicts);
        merged = std::move(candidate);
    } catch (const authoring::ManifestEditError&) {
        return; // they make no manifest
    }
}

} // namespace

ManifestMerge mergedTexts(const std::string& base, const std::string& ours, const std::string& theirs)
{
    ManifestMerge merged = authoring::mergeManifests(base, ours, theirs);
    for (const AddedByBoth added : {AddedByBoth::OursStay, AddedByBoth::AllStand}) {
        if (!merged.leftBehind.empty())
            improve(merged, base, mergedLines(base, ours, theirs, added), theirs);
    }
    return merged;
}

} // namespace zu::cli
