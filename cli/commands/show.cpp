#include "commands/show.hpp"

#include "manifest_source.hpp"
#include "output.hpp"

#include <zupackage/package_info.hpp>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zu::cli {

namespace {

ExitCode show(const std::vector<std::string>& sources)
{
    ExitCode result = k_success;
    for (const std::string& source : sources) {
        PackageInfo package;
        // What went wrong, the library has said to standard error.
        if (!loadManifestFrom(source, package)) {
            result = k_inputFailed;
            continue;
        }
        // Composed first: a dump flushes line by line.
        std::ostringstream dump;
        dump << package;
        if (!writeOutput(dump.str()))
            return k_outputFailed;
    }
    return result;
}

std::function<ExitCode()> prepare(Arguments& arguments)
{
    auto sources = std::make_shared<std::vector<std::string>>();
    arguments.require(*sources, "SOURCE", "FILE|FOLDER|-",
                      "A manifest file, a package folder (its manifest.xml), or - for standard input");
    return [sources] { return show(*sources); };
}

constexpr Example k_examples[] = {
    {"zupackage show examples/packages/story-teller", "Print the package in a folder"},
    {"zupackage show examples/packages/*", "Print several"},
    {"curl -s https://example.org/manifest.xml | zupackage show -", "Print what comes through a pipe"},
};

} // namespace

const Command k_show = {"show", "Print manifests as readable text", prepare, k_examples};

} // namespace zu::cli
