#include "commands/languages.hpp"

#include "languages/report.hpp"
#include "manifest_search.hpp"
#include "ordered_parallel.hpp"
#include "output.hpp"
#include "terminal.hpp"

#include <charconv>
#include <memory>

namespace zu::cli {

namespace {

struct LanguagesArguments
{
    std::vector<std::string> sources;
    std::string format = "text";
    std::optional<std::string> required;
    std::optional<std::string> failUnder;
    std::string colour = "auto";
};

/// The codes in "en,fr".
/// @return false when one of them is empty: a variable that should hold it is not set, and nothing would be required.
bool readCodes(const std::string& list, std::vector<std::string>& codes)
{
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        if (end == begin)
            return false;
        codes.push_back(list.substr(begin, end - begin));
        begin = end + 1;
    }
    return true;
}

/// @return false for what is no whole number from 0 to 100.
bool readPercent(const std::string& text, int& percent)
{
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, percent);
    return result.ec == std::errc() && result.ptr == end && percent >= 0 && percent <= 100;
}

std::unique_ptr<LanguagesReporter> reporterFor(const LanguagesArguments& arguments, const LanguageGate& gate)
{
    if (arguments.format == "json")
        return languagesJsonReporter(gate);
    if (arguments.format == "csv")
        return languagesCsvReporter();
    return languagesTextReporter(gate, isColourWanted(arguments.colour));
}

/// Says what is wrong with the manifest.
/// @return what the program ends with for it.
ExitCode judge(const ManifestLanguages& manifest, const LanguageGate& gate)
{
    if (!manifest.failure.empty()) {
        complain("cannot read " + manifest.path + ": " + manifest.failure);
        return k_inputFailed;
    }
    if (gate.hasNothingToJudge(manifest.matrix))
        complain("warning: " + manifest.path + " declares no language, so that --fail-under has nothing to judge");
    ExitCode result = k_success;
    for (const authoring::MatrixLanguage& language : manifest.matrix.languages) {
        if (!gate.isMissedBy(language))
            continue;
        const authoring::Coverage& coverage = language.coverage;
        complain(manifest.path + ": \"" + language.code + "\" has " + std::to_string(coverage.present) + " of " +
                 std::to_string(coverage.expected) + ", " + std::to_string(coverage.percent()) + " %, less than " +
                 std::to_string(gate.failUnder) + " %");
        result = k_findings;
    }
    return result;
}

ExitCode report(const LanguagesArguments& arguments, const LanguageGate& gate)
{
    ExitCode result = k_success;
    const std::vector<std::string> manifests =
        manifestsIn(arguments.sources.empty() ? std::vector<std::string>{"."} : arguments.sources, result);
    const std::unique_ptr<LanguagesReporter> reporter = reporterFor(arguments, gate);
    inOrder<ManifestLanguages>(
        manifests.size(), [&](std::size_t i) { return languagesOf(manifests[i], gate.required); },
        [&](const ManifestLanguages& manifest) {
            result = worse(result, judge(manifest, gate));
            const bool isWritten = writeOutput(reporter->add(manifest));
            if (!isWritten)
                result = worse(result, k_outputFailed);
            return isWritten;
        });
    if (result != k_outputFailed && !writeOutput(reporter->finish()))
        result = worse(result, k_outputFailed);
    return result;
}

ExitCode languages(const LanguagesArguments& arguments)
{
    LanguageGate gate;
    if (arguments.required) {
        gate.failUnder = 100;
        if (!readCodes(*arguments.required, gate.required)) {
            complain("--require: there is an empty code in \"" + *arguments.required + "\"");
            return k_usage;
        }
    }
    if (arguments.failUnder && !readPercent(*arguments.failUnder, gate.failUnder)) {
        complain("--fail-under: \"" + *arguments.failUnder + "\" is no whole number from 0 to 100");
        return k_usage;
    }
    return report(arguments, gate);
}

std::function<ExitCode()> prepareLanguages(Arguments& arguments)
{
    auto parsed = std::make_shared<LanguagesArguments>();
    arguments.accept(
        parsed->sources, "SOURCE", "FILE|FOLDER|-",
        "Manifest files, folders of packages at any depth, or - for standard input; by default this folder");
    arguments.choice(parsed->format, "--format", {"text", "json", "csv"}, "What to write: text, json or csv");
    arguments.option(parsed->required, "--require", "LANGUAGES",
                     "Languages in which every kind of text should be there, parted by commas");
    arguments.option(parsed->failUnder, "--fail-under", "PERCENT",
                     "The least coverage of the required languages, 100 by default, or else of the declared ones; less "
                     "makes the exit code 1");
    arguments.choice(parsed->colour, "--color", {"auto", "always", "never"}, "Whether to use colours");
    return [parsed] { return languages(*parsed); };
}

constexpr Example k_languagesExamples[] = {
    {"zupackage languages examples/packages", "Show the languages of all packages below a folder"},
    {"zupackage languages --require en,fr hello", "Fail when a text is missing in one of two languages"},
    {"zupackage languages --format csv . > languages.csv", "Write a table for a spreadsheet"},
};

} // namespace

const Command k_languages = {"languages", "Show which texts are there in which languages", prepareLanguages,
                             k_languagesExamples};

} // namespace zu::cli
