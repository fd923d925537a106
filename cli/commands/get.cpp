#include "commands/get.hpp"

#include "edit/edit_command.hpp"
#include "edit/path_arguments.hpp"
#include "manifest_bytes.hpp"
#include "output.hpp"

#include <memory>
#include <nlohmann/json.hpp>

namespace zu::cli {

namespace {

struct GetArguments
{
    std::string source;
    std::vector<std::string> paths;
    bool asJson = false;
    bool endsWithZero = false;
};

std::string printed(const std::vector<std::string>& texts, const GetArguments& arguments)
{
    if (arguments.asJson)
        return nlohmann::json(texts).dump(2) + "\n";
    std::string result;
    for (const std::string& text : texts)
        (result += text) += arguments.endsWithZero ? '\0' : '\n';
    return result;
}

ExitCode get(const GetArguments& arguments)
{
    std::vector<authoring::ManifestPath> paths;
    for (const std::string& argument : arguments.paths) {
        const std::optional<authoring::ManifestPath> path = pathIn(argument);
        if (!path)
            return k_usage;
        paths.push_back(*path);
    }
    const std::optional<authoring::SourceDocument> document = documentOf(arguments.source);
    ExitCode result = document ? k_success : k_inputFailed;
    std::vector<std::string> texts;
    for (const authoring::ManifestPath& path : document ? paths : std::vector<authoring::ManifestPath>()) {
        const std::vector<authoring::PathTarget> targets = select(*document, path);
        for (const authoring::PathTarget& target : targets)
            texts.push_back(target.text());
        if (targets.empty()) {
            complain(shownName(manifestPath(arguments.source)) + ": there is no " + path.text() + "; the nearest is " +
                     nearestPath(*document, path));
            result = k_absent;
        }
    }
    return writeOutput(printed(texts, arguments)) ? result : k_outputFailed;
}

std::function<ExitCode()> prepareGet(Arguments& arguments)
{
    auto parsed = std::make_shared<GetArguments>();
    arguments.require(parsed->source, "FILE", "FILE|FOLDER|-",
                      "A manifest file, a package folder (its manifest.xml), or - for standard input");
    arguments.require(parsed->paths, "PATH", "PATH", "What to print, such as @version or names/name[@lang='fr']");
    arguments.flag(parsed->asJson, "--json", "Print one JSON array of texts");
    arguments.flag(parsed->endsWithZero, "-0,--null", "End each text with a zero byte instead of a line end");
    return [parsed] { return get(*parsed); };
}

constexpr Example k_getExamples[] = {
    {"zupackage get manifest.xml @version", "Print the version"},
    {"zupackage get my-package \"names/name[@lang='fr']\" \"contents/*/@path\"",
     "Print the French name, and the paths of all contents"},
};

} // namespace

const Command k_get = {"get", "Print texts of a manifest", prepareGet, k_getExamples};

} // namespace zu::cli
