#include "commands/show.hpp"

#include "manifest_source.hpp"
#include "output.hpp"

#include <zupackage/authoring/package_json.hpp>
#include <zupackage/package_info.hpp>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zu::cli {

namespace {

struct ShowArguments
{
    std::vector<std::string> sources;
    std::string format = "text";
};

/// Composed first: a dump flushes line by line.
std::string dumpOf(const PackageInfo& package)
{
    std::ostringstream dump;
    dump << package;
    return dump.str();
}

ExitCode show(const ShowArguments& arguments)
{
    const bool isJson = arguments.format == "json";
    if (isJson && arguments.sources.size() != 1) {
        complain("--format json shows one package");
        return k_usage;
    }
    ExitCode result = k_success;
    for (const std::string& source : arguments.sources) {
        PackageInfo package;
        // What went wrong, the library has said to standard error.
        if (!loadManifestFrom(source, package)) {
            result = k_inputFailed;
            continue;
        }
        if (!writeOutput(isJson ? toJson(package) : dumpOf(package)))
            return k_outputFailed;
    }
    return result;
}

std::function<ExitCode()> prepareShow(Arguments& arguments)
{
    auto parsed = std::make_shared<ShowArguments>();
    arguments.require(parsed->sources, "SOURCE", "FILE|FOLDER|-",
                      "A manifest file, a package folder (its manifest.xml), or - for standard input");
    arguments.choice(parsed->format, "--format", {"text", "json"}, "What to write: text, or one package as JSON");
    return [parsed] { return show(*parsed); };
}

constexpr Example k_showExamples[] = {
    {"zupackage show examples/packages/story-teller", "Print the package in a folder"},
    {"zupackage show examples/packages/*", "Print several"},
    {"curl -s https://example.org/manifest.xml | zupackage show -", "Print what comes through a pipe"},
};

} // namespace

const Command k_show = {"show", "Print manifests as readable text", prepareShow, k_showExamples};

} // namespace zu::cli
