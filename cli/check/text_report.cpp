#include "check/remarks.hpp"
#include "check/report.hpp"
#include "check/severity_names.hpp"
#include "check/source_excerpt.hpp"
#include "display_width.hpp"
#include "terminal.hpp"

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::Place;
using authoring::Severity;

constexpr const char* k_bold = "1";
constexpr const char* k_dim = "2";
constexpr const char* k_green = "1;32";

const char* colourOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "1;31";
    case Severity::Warning:
        return "1;33";
    case Severity::Info:
        return "1;36";
    case Severity::Pedantic:
        return k_dim;
    }
    return k_dim;
}

class TextReporter : public CheckReporter
{
public:
    explicit TextReporter(const TextStyle& style) : m_style(style) {}

    /// Standard error tells it.
    std::string add(const SearchFailure&) override { return {}; }

    std::string add(const CheckedManifest& manifest) override
    {
        std::string text;
        for (const ManifestFix& fix : manifest.fixes)
            text += placed(manifest, fix.place) + painted(verbOf(manifest), k_green) + ": " + displayed(fix.title) +
                    " [" + fix.rule + "]\n";
        for (const Diagnostic& finding : manifest.report.findings)
            text += lines(manifest, finding, painted(nameOf(finding.severity), colourOf(finding.severity)));
        if (m_style.showsSuppressed) {
            for (const Diagnostic& finding : manifest.report.suppressed)
                text += lines(manifest, finding, painted("suppressed", k_dim)) + "    " +
                        displayed(manifest.reasons.at(finding.rule)) + "\n";
        }
        if (const std::string omission = omissionOf(manifest); !omission.empty())
            text += displayed(manifest.name) + ": " + omission + "\n";
        return text;
    }

    std::string finish(const CheckSummary&) override { return {}; }

private:
    std::string painted(std::string_view text, const char* colour) const
    {
        return zu::cli::painted(text, colour, m_style.isColoured);
    }

    std::string placed(const CheckedManifest& manifest, Place place) const
    {
        return painted(displayed(manifest.name) + ":" + std::to_string(place.line) + ":" +
                           std::to_string(place.column) + ":",
                       k_bold) +
               " ";
    }

    std::string lines(const CheckedManifest& manifest, const Diagnostic& finding, const std::string& severity) const
    {
        std::string text = placed(manifest, finding.range.begin) + severity + ": " + displayed(finding.message) + " [" +
                           finding.rule + "]\n";
        if (m_style.showsSource)
            text += sourceExcerpt(manifest.document, finding.range);
        for (const authoring::RelatedPlace& related : finding.related)
            text += placed(manifest, related.range.begin) + painted("note", k_dim) + ": " + displayed(related.message) +
                    "\n";
        return text;
    }

    TextStyle m_style;
};

std::string counted(std::size_t count, const std::string& singular, const std::string& plural)
{
    return std::to_string(count) + " " + (count == 1 ? singular : plural);
}

} // namespace

std::unique_ptr<CheckReporter> textReporter(const TextStyle& style) { return std::make_unique<TextReporter>(style); }

std::string wordsOf(const CheckSummary& summary)
{
    std::string words;
    const auto add = [&words](const std::string& part) { words += (words.empty() ? "" : ", ") + part; };
    const auto found = [&summary](Severity severity) {
        const auto count = summary.findings.find(severity);
        return count == summary.findings.end() ? 0 : count->second;
    };
    if (const std::size_t count = found(Severity::Error); count > 0)
        add(counted(count, "error", "errors"));
    if (const std::size_t count = found(Severity::Warning); count > 0)
        add(counted(count, "warning", "warnings"));
    if (const std::size_t count = found(Severity::Info) + found(Severity::Pedantic); count > 0)
        add(counted(count, "remark", "remarks"));
    if (words.empty())
        add("no findings");
    words += " in " + counted(summary.manifests, "manifest", "manifests");
    if (summary.fixed > 0)
        add(std::to_string(summary.fixed) + " fixed");
    if (summary.fixable > 0)
        add(std::to_string(summary.fixable) + " would be fixed");
    if (summary.suppressed > 0)
        add(std::to_string(summary.suppressed) + " suppressed");
    if (summary.unreadable > 0)
        add(std::to_string(summary.unreadable) + " could not be checked");
    if (summary.unwritten > 0)
        add(std::to_string(summary.unwritten) + " could not be written");
    return words;
}

} // namespace zu::cli
