#include "check/remarks.hpp"
#include "check/report.hpp"

#include <zupackage/authoring/rule.hpp>

#include <QtCore/QByteArray>

#include <nlohmann/json.hpp>

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::Rule;
using authoring::Severity;
using authoring::SourceDocument;
using authoring::SourceRange;
using nlohmann::ordered_json;

const char* levelOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Info:
    case Severity::Pedantic:
        break;
    }
    return "note";
}

ordered_json artifactOf(const std::string& path)
{
    const QByteArray uri = QByteArray::fromStdString(path).toPercentEncoding("/");
    return {{"uri", std::string(uri.constData())}};
}

ordered_json regionOf(const authoring::Place& begin, const authoring::Place& end, authoring::ByteRange bytes)
{
    return {{"startLine", begin.line}, {"startColumn", begin.column}, {"endLine", end.line},
            {"endColumn", end.column}, {"byteOffset", bytes.begin},   {"byteLength", bytes.size()}};
}

/// Compilers do not agree on whether braces around a single value make a list of it.
ordered_json listOf(ordered_json value)
{
    ordered_json list = ordered_json::array();
    list.push_back(std::move(value));
    return list;
}

ordered_json locationOf(const std::string& manifest, const SourceRange& range)
{
    ordered_json location = {
        {"physicalLocation",
         {{"artifactLocation", artifactOf(manifest)}, {"region", regionOf(range.begin, range.end, range.bytes)}}}};
    if (!range.path.empty())
        location["logicalLocations"] = listOf({{"fullyQualifiedName", range.path}});
    return location;
}

ordered_json fixOf(const CheckedManifest& manifest, const authoring::Fix& fix)
{
    ordered_json replacements = ordered_json::array();
    const SourceDocument& document = manifest.document;
    for (const authoring::TextEdit& edit : fix.edits) {
        ordered_json replacement = {
            {"deletedRegion", regionOf(document.place(edit.range.begin), document.place(edit.range.end), edit.range)}};
        if (!edit.replacement.empty())
            replacement["insertedContent"] = {{"text", edit.replacement}};
        replacements.push_back(std::move(replacement));
    }
    return {{"description", {{"text", fix.title}}},
            {"artifactChanges",
             listOf({{"artifactLocation", artifactOf(manifest.name)}, {"replacements", std::move(replacements)}})}};
}

ordered_json resultOf(const CheckedManifest& manifest, const Diagnostic& finding)
{
    const std::vector<Rule>& rules = authoring::rules();
    const Rule* const rule = authoring::findRule(finding.rule);
    ordered_json result = {{"ruleId", finding.rule},
                           {"ruleIndex", rule - rules.data()},
                           {"level", levelOf(finding.severity)},
                           {"message", {{"text", finding.message}}},
                           {"locations", listOf(locationOf(manifest.name, finding.range))}};
    for (const authoring::RelatedPlace& related : finding.related) {
        ordered_json& location = result["relatedLocations"].emplace_back(locationOf(manifest.name, related.range));
        location["message"] = {{"text", related.message}};
    }
    if (finding.fix)
        result["fixes"] = listOf(fixOf(manifest, *finding.fix));
    return result;
}

ordered_json rulesOf()
{
    ordered_json rules = ordered_json::array();
    for (const Rule& rule : authoring::rules())
        rules.push_back({{"id", rule.id},
                         {"shortDescription", {{"text", std::string(rule.summary) + "."}}},
                         {"fullDescription", {{"text", rule.explanation}}},
                         {"help",
                          {{"text", std::string(rule.explanation) + "\n\nWrong:\n" + std::string(rule.badExample) +
                                        "\n\nRight:\n" + std::string(rule.goodExample)}}},
                         {"defaultConfiguration", {{"level", levelOf(rule.severity)}}}});
    return rules;
}

class SarifReporter : public CheckReporter
{
public:
    std::string add(const SearchFailure& failure) override
    {
        notify("error", failure.message, {{"artifactLocation", artifactOf(failure.path)}});
        return {};
    }

    std::string add(const CheckedManifest& manifest) override
    {
        const ordered_json file = {{"artifactLocation", artifactOf(manifest.name)}};
        if (!manifest.failure.empty())
            notify("error", manifest.failure, file);
        if (!manifest.writeFailure.empty())
            notify("error", manifest.writeFailure, file);
        if (const std::string omission = omissionOf(manifest); !omission.empty())
            notify("warning", omission, file);
        for (const ManifestFix& fix : manifest.fixes) {
            ordered_json place = file;
            place["region"] = {{"startLine", fix.place.line}, {"startColumn", fix.place.column}};
            notify("note", wordsOf(manifest, fix), place);
        }
        for (const Diagnostic& finding : manifest.report.findings)
            m_results.push_back(resultOf(manifest, finding));
        for (const Diagnostic& finding : manifest.report.suppressed) {
            ordered_json& result = m_results.emplace_back(resultOf(manifest, finding));
            result["suppressions"] =
                listOf({{"kind", "external"}, {"justification", manifest.reasons.at(finding.rule)}});
        }
        return {};
    }

    std::string finish(const CheckSummary& summary) override
    {
        const ordered_json tool = {
            {"driver", {{"name", "zupackage"}, {"version", ZUPACKAGE_VERSION}, {"rules", rulesOf()}}}};
        const bool isSuccessful = summary.unreadable == 0 && summary.unwritten == 0;
        const ordered_json run = {{"tool", tool},
                                  {"columnKind", "unicodeCodePoints"},
                                  {"invocations", listOf({{"executionSuccessful", isSuccessful},
                                                          {"toolExecutionNotifications", std::move(m_notifications)}})},
                                  {"results", std::move(m_results)}};
        const ordered_json log = {
            {"$schema", "https://json.schemastore.org/sarif-2.1.0.json"}, {"version", "2.1.0"}, {"runs", listOf(run)}};
        return log.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    }

private:
    void notify(const char* level, const std::string& message, const ordered_json& physicalLocation)
    {
        m_notifications.push_back({{"level", level},
                                   {"message", {{"text", message}}},
                                   {"locations", listOf({{"physicalLocation", physicalLocation}})}});
    }

    ordered_json m_results = ordered_json::array();
    ordered_json m_notifications = ordered_json::array();
};

} // namespace

std::unique_ptr<CheckReporter> sarifReporter() { return std::make_unique<SarifReporter>(); }

} // namespace zu::cli
