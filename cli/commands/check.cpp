#include "commands/check.hpp"

#include "check/report.hpp"
#include "check/rule_help.hpp"
#include "check/severity_names.hpp"
#include "manifest_search.hpp"
#include "ordered_parallel.hpp"
#include "output.hpp"
#include "terminal.hpp"

#include <cstdio>

namespace zu::cli {

namespace {

using authoring::Severity;

struct CheckArguments
{
    std::vector<std::string> sources;
    std::string root;
    std::string format = "text";
    std::string failOn = "error";
    std::vector<std::string> rules;
    bool fixes = false;
    bool fixesUnsafe = false;
    bool showsFixes = false;
    bool showsSuppressed = false;
    std::string explained;
    bool listsRules = false;
    std::string colour = "auto";
};

std::unique_ptr<CheckReporter> reporterFor(const CheckArguments& arguments)
{
    if (arguments.format == "json")
        return jsonReporter();
    if (arguments.format == "sarif")
        return sarifReporter();
    if (arguments.format == "github")
        return githubReporter();
    if (arguments.format == "junit")
        return junitReporter();
    const bool isColoured = isColourWanted(arguments.colour);
    return textReporter(
        {isTerminal(stdout) || isColoured, isColoured, arguments.showsSuppressed, !arguments.showsFixes});
}

CheckTask taskFor(const CheckArguments& arguments)
{
    CheckTask task;
    if (!arguments.root.empty())
        task.root = arguments.root;
    for (const std::string& rule : arguments.rules)
        addSetting(rule, "--rule", task.settings);
    task.fixesUnsafe = arguments.fixesUnsafe;
    task.fixes = arguments.fixes || arguments.fixesUnsafe || arguments.showsFixes;
    task.writesFixes = task.fixes && !arguments.showsFixes;
    return task;
}

/// Adds up what becomes of the manifests, and what the program ends with.
class Tally
{
public:
    explicit Tally(const std::string& failOn) : m_failOn(severityNamed(failOn)) {}

    void add(const CheckedManifest& manifest)
    {
        if (!manifest.failure.empty()) {
            complain("cannot read " + manifest.name + ": " + manifest.failure);
            ++m_summary.unreadable;
            end(k_inputFailed);
            return;
        }
        if (!manifest.writeFailure.empty()) {
            complain(manifest.writeFailure);
            end(k_outputFailed);
        }
        ++m_summary.manifests;
        m_summary.suppressed += manifest.report.suppressed.size();
        m_summary.fixes += manifest.fixes.size();
        for (const authoring::Diagnostic& finding : manifest.report.findings) {
            ++m_summary.findings[finding.severity];
            if (m_failOn && finding.severity >= *m_failOn)
                end(k_findings);
        }
    }

    void end(ExitCode code) { m_exitCode = worse(m_exitCode, code); }

    const CheckSummary& summary() const { return m_summary; }
    ExitCode exitCode() const { return m_exitCode; }

private:
    std::optional<Severity> m_failOn; ///< nothing never fails
    CheckSummary m_summary;
    ExitCode m_exitCode = k_success;
};

ExitCode checkAll(const CheckArguments& arguments)
{
    const CheckTask task = taskFor(arguments);
    Tally tally(arguments.failOn);
    ExitCode result = k_success;
    const std::vector<std::string> manifests =
        manifestsIn(arguments.sources.empty() ? std::vector<std::string>{"."} : arguments.sources, result);
    tally.end(result);
    const std::unique_ptr<CheckReporter> reporter = reporterFor(arguments);
    Progress progress(manifests.size(), "checked");
    inOrder<CheckedManifest>(
        manifests.size(), [&](std::size_t i) { return checkManifest(manifests[i], task); },
        [&](const CheckedManifest& manifest) {
            progress.clear();
            tally.add(manifest);
            const bool isWritten = writeOutput(reporter->add(manifest));
            if (!isWritten)
                tally.end(k_outputFailed);
            progress.advance();
            return isWritten;
        });
    progress.clear();
    if (tally.exitCode() != k_outputFailed && !writeOutput(reporter->finish(tally.summary())))
        tally.end(k_outputFailed);
    if (arguments.format == "text" && !manifests.empty())
        std::fprintf(stderr, "%s\n", wordsOf(tally.summary()).c_str());
    return tally.exitCode();
}

ExitCode explain(const std::string& id)
{
    const authoring::Rule* const rule = authoring::findRule(id);
    if (!rule) {
        complain("there is no rule \"" + id + "\"; --list-rules shows them");
        return k_absent;
    }
    return writeOutput(explanationOf(*rule)) ? k_success : k_outputFailed;
}

ExitCode check(const CheckArguments& arguments)
{
    if (!arguments.explained.empty())
        return explain(arguments.explained);
    if (arguments.listsRules)
        return writeOutput(ruleList()) ? k_success : k_outputFailed;
    const bool readsInput = std::count(arguments.sources.begin(), arguments.sources.end(), "-") > 0;
    if (readsInput && (arguments.fixes || arguments.fixesUnsafe) && !arguments.showsFixes) {
        complain("--fix changes files, not standard input");
        return k_usage;
    }
    try {
        return checkAll(arguments);
    } catch (const SettingsError& error) {
        complain(error.what());
        return k_usage;
    }
}

std::function<ExitCode()> prepare(Arguments& arguments)
{
    auto parsed = std::make_shared<CheckArguments>();
    arguments.accept(
        parsed->sources, "SOURCE", "FILE|FOLDER|-",
        "Manifest files, folders of packages at any depth, or - for standard input; by default this folder");
    arguments.option(parsed->root, "--root", "DIR", "The folder of the package's files; by default the manifest's");
    arguments.choice(parsed->format, "--format", {"text", "json", "sarif", "github", "junit"},
                     "What to write: text, json, sarif, github or junit");
    arguments.choice(parsed->failOn, "--fail-on", {"error", "warning", "info", "pedantic", "never"},
                     "The least severity that makes the exit code 1: error, warning, info, pedantic or never");
    arguments.repeated(parsed->rules, "--rule", "ID=SEVERITY|off",
                       "Give a rule another severity, or switch it off; stands before .zupackage-check");
    arguments.flag(parsed->fixes, "--fix", "Make the fixes that are safe");
    arguments.flag(parsed->fixesUnsafe, "--fix-unsafe", "Make also those that drop or rename something");
    arguments.flag(parsed->showsFixes, "--fix-dry-run", "Show the fixes, and leave the files as they are");
    arguments.flag(parsed->showsSuppressed, "--show-suppressed", "Show also what rules found that are switched off");
    arguments.option(parsed->explained, "--explain", "ID", "Explain a rule, with examples");
    arguments.flag(parsed->listsRules, "--list-rules", "List all rules");
    arguments.choice(parsed->colour, "--color", {"auto", "always", "never"}, "Whether to use colours");
    return [parsed] { return check(*parsed); };
}

constexpr Example k_examples[] = {
    {"zupackage check examples/packages", "Check all packages below a folder"},
    {"zupackage check --explain counted-node", "Explain a rule"},
    {"zupackage check --fix-dry-run hello", "Show what would be fixed"},
    {"zupackage check --format sarif . > findings.sarif", "Write a report for code scanning"},
};

} // namespace

const Command k_check = {"check", "Find what readers of manifests silently accept", prepare, k_examples};

} // namespace zu::cli
