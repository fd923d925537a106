#include "check/report.hpp"

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::Severity;

/// What would end a message or a property of a workflow command.
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
    return result;
}

const char* commandFor(Severity severity)
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

/// Workflow commands: each becomes an annotation beside the line.
class GithubReporter : public CheckReporter
{
public:
    std::string add(const CheckedManifest& manifest) override
    {
        const std::string file = "file=" + escaped(manifest.name, true);
        if (!manifest.failure.empty())
            return "::error " + file + ",title=unreadable::" + escaped(manifest.failure, false) + "\n";
        std::string text;
        for (const Diagnostic& finding : manifest.report.findings) {
            text += "::" + std::string(commandFor(finding.severity)) + " " + file +
                    ",line=" + std::to_string(finding.range.begin.line) +
                    ",endLine=" + std::to_string(finding.range.end.line);
            // Columns are taken only within one line.
            if (finding.range.begin.line == finding.range.end.line)
                text += ",col=" + std::to_string(finding.range.begin.column) +
                        ",endColumn=" + std::to_string(finding.range.end.column);
            text += ",title=" + escaped(finding.rule, true) + "::" + escaped(finding.message, false) + "\n";
        }
        return text;
    }

    std::string finish(const CheckSummary&) override { return {}; }
};

} // namespace

std::unique_ptr<CheckReporter> githubReporter() { return std::make_unique<GithubReporter>(); }

} // namespace zu::cli
