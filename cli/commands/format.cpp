#include "commands/format.hpp"

#include "edit/edit_command.hpp"
#include "manifest_bytes.hpp"
#include "manifest_search.hpp"
#include "ordered_parallel.hpp"
#include "output.hpp"

#include <zupackage/authoring/formatting.hpp>

#include <algorithm>
#include <memory>

namespace zu::cli {

namespace {

struct FormatArguments
{
    std::vector<std::string> sources;
    bool checks = false;
    bool showsDifferences = false;
};

/// What became of a manifest.
struct FormattedManifest
{
    std::string path;
    std::string failure; ///< why it could not be read, with its place; empty when it was
    bool isChanged = false;
    std::string bytes;      ///< formatted
    std::string difference; ///< where it is asked for
};

FormattedManifest formatManifest(const std::string& path, bool showsDifference)
{
    FormattedManifest result;
    result.path = path;
    const std::optional<authoring::SourceDocument> document = documentOf(path, result.failure);
    if (!document)
        return result;
    result.bytes = formatted(*document);
    result.isChanged = result.bytes != document->text();
    if (result.isChanged && showsDifference)
        result.difference = differenceOf(path, *document, authoring::SourceDocument::parse(result.bytes));
    return result;
}

/// What there is to say or to do about one, and what the program ends with for it.
ExitCode deliver(const FormattedManifest& manifest, const FormatArguments& arguments)
{
    if (!manifest.failure.empty()) {
        complain(manifest.failure);
        return k_inputFailed;
    }
    const ExitCode found = manifest.isChanged ? k_findings : k_success;
    if (arguments.showsDifferences)
        return writeOutput(manifest.difference) ? found : k_outputFailed;
    if (arguments.checks)
        return !manifest.isChanged || writeOutput(shownName(manifest.path) + "\n") ? found : k_outputFailed;
    const bool isToBeWritten = manifest.isChanged || manifest.path == "-";
    return isToBeWritten ? writeDocument(manifest.path, manifest.bytes) : k_success;
}

ExitCode format(const FormatArguments& arguments)
{
    ExitCode result = k_success;
    const std::vector<std::string> manifests = manifestsIn(arguments.sources, result);
    inOrder<FormattedManifest>(
        manifests.size(), [&](std::size_t i) { return formatManifest(manifests[i], arguments.showsDifferences); },
        [&](const FormattedManifest& manifest) {
            result = worse(result, deliver(manifest, arguments));
            return true;
        });
    return result;
}

std::function<ExitCode()> prepareFormat(Arguments& arguments)
{
    auto parsed = std::make_shared<FormatArguments>();
    arguments.require(parsed->sources, "SOURCE", "FILE|FOLDER|-",
                      "Manifest files, folders of packages at any depth, or - for standard input to standard output");
    arguments.flag(parsed->checks, "--check", "List the files that are not formatted, and leave them as they are");
    arguments.flag(parsed->showsDifferences, "--diff", "Show what formatting would change, and change nothing");
    return [parsed] { return format(*parsed); };
}

constexpr Example k_formatExamples[] = {
    {"zupackage format my-package", "Bring the manifest of a package into form"},
    {"zupackage format --check packages", "Fail where a manifest is not in form, and name it"},
};

} // namespace

const Command k_format = {"format", "Bring manifests into one form; they read as before", prepareFormat,
                          k_formatExamples};

} // namespace zu::cli
