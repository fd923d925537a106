#include "check/report.hpp"
#include "check/severity_names.hpp"

#include <nlohmann/json.hpp>

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::SourceRange;
using nlohmann::ordered_json;

ordered_json jsonOf(const SourceRange& range)
{
    return {{"line", range.begin.line},       {"column", range.begin.column},    {"end_line", range.end.line},
            {"end_column", range.end.column}, {"byte_begin", range.bytes.begin}, {"byte_end", range.bytes.end},
            {"element", range.path}};
}

ordered_json jsonOf(const Diagnostic& finding)
{
    ordered_json result = {
        {"rule", finding.rule},           {"severity", nameOf(finding.severity)}, {"message", finding.message},
        {"range", jsonOf(finding.range)}, {"related", ordered_json::array()},     {"fix", nullptr}};
    for (const authoring::RelatedPlace& related : finding.related)
        result["related"].push_back({{"message", related.message}, {"range", jsonOf(related.range)}});
    if (finding.fix) {
        ordered_json edits = ordered_json::array();
        for (const authoring::TextEdit& edit : finding.fix->edits)
            edits.push_back(
                {{"byte_begin", edit.range.begin}, {"byte_end", edit.range.end}, {"replacement", edit.replacement}});
        result["fix"] = {{"title", finding.fix->title}, {"safe", finding.fix->isSafe}, {"edits", std::move(edits)}};
    }
    return result;
}

ordered_json jsonOf(const std::vector<ManifestFix>& fixes)
{
    ordered_json list = ordered_json::array();
    for (const ManifestFix& fix : fixes)
        list.push_back(
            {{"rule", fix.rule}, {"title", fix.title}, {"line", fix.place.line}, {"column", fix.place.column}});
    return list;
}

ordered_json jsonOf(const CheckedManifest& manifest)
{
    ordered_json result = {{"path", manifest.name},
                           {"error", nullptr},
                           {"write_error", nullptr},
                           {"findings", ordered_json::array()},
                           {"suppressed", ordered_json::array()},
                           {"fixed", ordered_json::array()},
                           {"would_fix", ordered_json::array()},
                           {"omitted", manifest.report.omitted}};
    if (!manifest.failure.empty())
        result["error"] = manifest.failure;
    if (!manifest.writeFailure.empty())
        result["write_error"] = manifest.writeFailure;
    for (const Diagnostic& finding : manifest.report.findings)
        result["findings"].push_back(jsonOf(finding));
    for (const Diagnostic& finding : manifest.report.suppressed) {
        ordered_json& suppressed = result["suppressed"].emplace_back(jsonOf(finding));
        suppressed["reason"] = manifest.reasons.at(finding.rule);
    }
    result[manifest.isFixed ? "fixed" : "would_fix"] = jsonOf(manifest.fixes);
    return result;
}

class JsonReporter : public CheckReporter
{
public:
    std::string add(const SearchFailure& failure) override
    {
        m_unreadable.push_back({{"path", failure.path}, {"error", failure.message}});
        return {};
    }

    std::string add(const CheckedManifest& manifest) override
    {
        m_manifests.push_back(jsonOf(manifest));
        return {};
    }

    std::string finish(const CheckSummary& summary) override
    {
        ordered_json counts = {
            {"manifests", summary.manifests}, {"unreadable", summary.unreadable}, {"unwritten", summary.unwritten}};
        ordered_json findings = ordered_json::object();
        for (const auto& [name, severity] : k_severityNames) {
            const auto count = summary.findings.find(severity);
            findings[std::string(name)] = count == summary.findings.end() ? 0 : count->second;
        }
        counts["findings"] = std::move(findings);
        counts["suppressed"] = summary.suppressed;
        counts["fixed"] = summary.fixed;
        counts["would_fix"] = summary.fixable;
        const ordered_json report = {{"format_version", 1},
                                     {"tool", {{"name", "zupackage"}, {"version", ZUPACKAGE_VERSION}}},
                                     {"manifests", std::move(m_manifests)},
                                     {"unreadable", std::move(m_unreadable)},
                                     {"summary", std::move(counts)}};
        // The names of files may be any bytes.
        return report.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    }

private:
    ordered_json m_manifests = ordered_json::array();
    ordered_json m_unreadable = ordered_json::array();
};

} // namespace

std::unique_ptr<CheckReporter> jsonReporter() { return std::make_unique<JsonReporter>(); }

} // namespace zu::cli
