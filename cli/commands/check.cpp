#include "commands/check.hpp"

#include "check/report.hpp"
#include "check/rule_help.hpp"
#include "check/severity_names.hpp"
#include "check/tally.hpp"
#include "manifest_search.hpp"
#include "ordered_parallel.hpp"
#include "output.hpp"
#include "terminal.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

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
        return githubReporter(arguments.showsSuppressed);
    if (arguments.format == "junit")
        return junitReporter(arguments.showsSuppressed);
    const bool isColoured = isColourWanted(arguments.colour);
    return textReporter({isTerminal(stdout) || isColoured, isColoured, arguments.showsSuppressed});
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

/// @return why no files can be looked for in the folder; empty when they can.
std::string unusabilityOf(const std::string& folder)
{
    std::error_code error;
    const bool isUsable = std::filesystem::is_directory(folder + "/.", error); // asks whether it may be entered, too
    return isUsable ? "" : error.message();
}

FoundManifests manifestsFor(const CheckArguments& arguments)
{
    if (!arguments.root.empty()) {
        const std::string reason = unusabilityOf(arguments.root);
        if (!reason.empty())
            return {{}, {{arguments.root, "cannot look for files in " + arguments.root + ": " + reason}}};
    }
    return searchManifests(arguments.sources.empty() ? std::vector<std::string>{"."} : arguments.sources);
}

ExitCode checkAll(const CheckArguments& arguments)
{
    const CheckTask task = taskFor(arguments);
    const FoundManifests found = manifestsFor(arguments);
    Tally tally(severityNamed(arguments.failOn));
    const std::unique_ptr<CheckReporter> reporter = reporterFor(arguments);
    bool isWritten = true;
    const auto write = [&isWritten](const std::string& text) { isWritten = isWritten && writeOutput(text); };
    for (const SearchFailure& failure : found.failures) {
        tally.add(failure);
        write(reporter->add(failure));
    }
    Progress progress(found.paths.size(), "checked");
    inOrder<CheckedManifest>(
        found.paths.size(), [&](std::size_t i) { return checkManifest(found.paths[i], task); },
        [&](const CheckedManifest& manifest) {
            progress.clear();
            tally.add(manifest);
            write(reporter->add(manifest));
            progress.advance();
            return isWritten;
        });
    progress.clear();
    write(reporter->finish(tally.summary()));
    if (!isWritten)
        tally.end(k_outputFailed);
    if (arguments.format == "text" && !found.paths.empty())
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

std::function<ExitCode()> prepareCheck(Arguments& arguments)
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

constexpr Example k_checkExamples[] = {
    {"zupackage check examples/packages", "Check all packages below a folder"},
    {"zupackage check --explain counted-node", "Explain a rule"},
    {"zupackage check --fix-dry-run hello", "Show what would be fixed"},
    {"zupackage check --format sarif . > findings.sarif", "Write a report for code scanning"},
};

} // namespace

const Command k_check = {"check", "Find what readers of manifests silently accept", prepareCheck, k_checkExamples};

} // namespace zu::cli
