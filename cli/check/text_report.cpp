#include "check/report.hpp"
#include "check/severity_names.hpp"
#include "check/source_excerpt.hpp"
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

    std::string add(const CheckedManifest& manifest) override
    {
        std::string text;
        for (const AppliedFix& fix : manifest.fixes)
            text += placed(manifest, fix.place) + painted(m_style.fixesAreMade ? "fixed" : "would fix", k_green) +
                    ": " + fix.title + " [" + fix.rule + "]\n";
        for (const Diagnostic& finding : manifest.report.findings)
            text += lines(manifest, finding, painted(nameOf(finding.severity), colourOf(finding.severity)));
        if (m_style.showsSuppressed) {
            for (const Diagnostic& finding : manifest.report.suppressed)
                text += lines(manifest, finding, painted("suppressed", k_dim)) + "    " +
                        manifest.reasons.at(finding.rule) + "\n";
        }
        if (manifest.report.omitted > 0)
            text += manifest.name + ": " + std::to_string(manifest.report.omitted) + " more of these were left out\n";
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
        return painted(manifest.name + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ":",
                       k_bold) +
               " ";
    }

    std::string lines(const CheckedManifest& manifest, const Diagnostic& finding, const std::string& severity) const
    {
        std::string text =
            placed(manifest, finding.range.begin) + severity + ": " + finding.message + " [" + finding.rule + "]\n";
        if (m_style.showsSource)
            text += sourceExcerpt(manifest.document, finding.range);
        for (const authoring::RelatedPlace& related : finding.related)
            text += placed(manifest, related.range.begin) + painted("note", k_dim) + ": " + related.message + "\n";
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
    if (summary.fixes > 0)
        add(std::to_string(summary.fixes) + " fixed");
    if (summary.suppressed > 0)
        add(std::to_string(summary.suppressed) + " suppressed");
    if (summary.unreadable > 0)
        add(std::to_string(summary.unreadable) + " could not be read");
    return words;
}

} // namespace zu::cli
