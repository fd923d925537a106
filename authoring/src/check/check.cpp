#include "check/element_paths.hpp"
#include "check/findings.hpp"

#include <zupackage/authoring/check.hpp>

#include <algorithm>
#include <iterator>
#include <map>

namespace zu::authoring {

namespace {

using zupackage::check::Checked;
using zupackage::check::ElementPaths;
using zupackage::check::Finding;
using zupackage::check::Findings;
using zupackage::check::PackageFolder;
using zupackage::check::RuleRow;

SourceRange sourceRange(const SourceDocument& document, const ElementPaths& paths, ByteRange bytes, SourceNode node,
                        std::string_view attribute)
{
    return {bytes, document.place(bytes.begin), document.place(bytes.end), paths.path(node, attribute)};
}

Diagnostic diagnostic(const SourceDocument& document, const ElementPaths& paths, Finding& finding, Severity severity)
{
    Diagnostic result;
    result.rule = finding.rule->id;
    result.severity = severity;
    result.message = std::move(finding.message);
    result.range = sourceRange(document, paths, finding.range, finding.node, finding.attribute);
    for (auto& [message, node] : finding.related)
        result.related.push_back({std::move(message), sourceRange(document, paths, node.startTagRange(), node, {})});
    result.fix = std::move(finding.fix);
    return result;
}

std::optional<Severity> configured(const CheckOptions& options, const Rule& rule)
{
    const auto found = options.severities.find(std::string(rule.id));
    return found == options.severities.end() ? std::optional(rule.severity) : found->second;
}

} // namespace

CheckReport check(const SourceDocument& document, const CheckOptions& options)
{
    const zupackage::check::Outline outline(document);
    const std::optional<PackageFolder> folder =
        options.root ? std::optional<PackageFolder>(std::in_place, *options.root) : std::nullopt;
    const Checked checked{document, outline, folder};
    Findings findings(options.limitPerRule);
    for (const RuleRow* row : zupackage::check::allRules()) {
        findings.beginRule(row->rule);
        row->find(checked, findings);
    }
    CheckReport report;
    report.omitted = findings.omitted();
    std::vector<Finding>& found = findings.found();
    if (found.empty())
        return report;

    std::stable_sort(found.begin(), found.end(), [](const Finding& left, const Finding& right) {
        return left.range.begin != right.range.begin ? left.range.begin < right.range.begin
                                                     : left.range.end < right.range.end;
    });
    const ElementPaths paths(document);
    for (Finding& finding : found) {
        const std::optional<Severity> severity = configured(options, *finding.rule);
        (severity ? report.findings : report.suppressed)
            .push_back(diagnostic(document, paths, finding, severity.value_or(finding.rule->severity)));
    }
    return report;
}

std::string applyFixes(const SourceDocument& document, const std::vector<Diagnostic>& findings, bool alsoUnsafe,
                       std::vector<std::size_t>* applied)
{
    std::vector<TextEdit> edits;
    std::map<std::size_t, std::size_t> taken; // the ends of what is edited by its beginnings
    const auto overlaps = [&](const TextEdit& edit) {
        const auto next = taken.lower_bound(edit.range.begin);
        return (next != taken.end() && (next->first == edit.range.begin || next->first < edit.range.end)) ||
               (next != taken.begin() && std::prev(next)->second > edit.range.begin);
    };
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const auto& fix = findings[i].fix;
        if (!fix || (!fix->isSafe && !alsoUnsafe) || std::any_of(fix->edits.begin(), fix->edits.end(), overlaps))
            continue;
        for (const TextEdit& edit : fix->edits) {
            taken.emplace(edit.range.begin, edit.range.end);
            edits.push_back(edit);
        }
        if (applied)
            applied->push_back(i);
    }
    std::sort(edits.begin(), edits.end(),
              [](const TextEdit& left, const TextEdit& right) { return left.range.begin < right.range.begin; });
    return applyEdits(document, edits).value_or(document.text());
}

} // namespace zu::authoring
