#include "check/remarks.hpp"
#include "check/report.hpp"
#include "display_width.hpp"

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::Severity;

/// Without what would end a message or a property of a workflow command, or steer the terminal that shows it.
std::string escaped(std::string_view text, bool isProperty)
{
    std::string result;
    for (const char c : text) {
        if (c == '%')
            result += "%25";
        else if (c == '\r')
            result += "%0D";
        else if (c == '\n')
            result += "%0A";
        else if (isProperty && c == ':')
            result += "%3A";
        else if (isProperty && c == ',')
            result += "%2C";
        else
            result += c;
    }
    return displayed(result);
}

const char* commandOf(Severity severity)
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
    return "notice";
}

std::string annotation(const char* command, const std::string& properties, const std::string& title,
                       const std::string& message)
{
    return "::" + std::string(command) + " " + properties + ",title=" + escaped(title, true) +
           "::" + escaped(message, false) + "\n";
}

std::string fileProperty(const std::string& path) { return "file=" + escaped(path, true); }

std::string properties(const std::string& path, const authoring::SourceRange& range)
{
    std::string text =
        fileProperty(path) + ",line=" + std::to_string(range.begin.line) + ",endLine=" + std::to_string(range.end.line);
    // Columns are taken only within one line.
    if (range.begin.line == range.end.line)
        text += ",col=" + std::to_string(range.begin.column) + ",endColumn=" + std::to_string(range.end.column);
    return text;
}

/// Workflow commands: each becomes an annotation beside the line.
class GithubReporter : public CheckReporter
{
public:
    explicit GithubReporter(bool showsSuppressed) : m_showsSuppressed(showsSuppressed) {}

    std::string add(const SearchFailure& failure) override
    {
        return annotation("error", fileProperty(failure.path), "unreadable", failure.message);
    }

    std::string add(const CheckedManifest& manifest) override
    {
        const std::string file = fileProperty(manifest.name);
        std::string text;
        if (!manifest.failure.empty())
            text += annotation("error", file, manifest.failureTitle(), manifest.failure);
        if (!manifest.writeFailure.empty())
            text += annotation("error", file, "not written", manifest.writeFailure);
        for (const ManifestFix& fix : manifest.fixes)
            text += annotation(
                "notice", file + ",line=" + std::to_string(fix.place.line) + ",col=" + std::to_string(fix.place.column),
                fix.rule, wordsOf(manifest, fix));
        for (const Diagnostic& finding : manifest.report.findings)
            text += annotation(commandOf(finding.severity), properties(manifest.name, finding.range), finding.rule,
                               finding.message);
        if (m_showsSuppressed) {
            for (const Diagnostic& finding : manifest.report.suppressed)
                text += annotation("notice", properties(manifest.name, finding.range), finding.rule,
                                   "suppressed: " + finding.message + " (" + manifest.reasons.at(finding.rule) + ")");
        }
        if (const std::string omission = omissionOf(manifest); !omission.empty())
            text += annotation("warning", file, "left out", omission);
        return text;
    }

    std::string finish(const CheckSummary&) override { return {}; }

private:
    bool m_showsSuppressed;
};

} // namespace

std::unique_ptr<CheckReporter> githubReporter(bool showsSuppressed)
{
    return std::make_unique<GithubReporter>(showsSuppressed);
}

} // namespace zu::cli
