#include "commands/convert.hpp"

#include "manifest_bytes.hpp"
#include "manifest_source.hpp"
#include "output.hpp"

#include <zupackage/authoring/package_json.hpp>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace zu::cli {

namespace {

constexpr char k_json[] = "json";
constexpr char k_xml[] = "xml";

struct ConvertArguments
{
    std::string source;
    std::string to;
    std::string output = "-";
};

/// The package in a file of JSON. Standard error says why there is none.
std::optional<PackageInfo> packageInJson(const std::string& path)
{
    std::string json;
    std::string failure;
    if (!readManifestBytes(path, json, failure)) {
        complain("cannot read " + shownName(path) + ": " + failure);
        return std::nullopt;
    }
    try {
        return packageFromJson(json);
    } catch (const authoring::PackageJsonError& error) {
        complain("cannot read " + shownName(path) + ": " + error.what());
        return std::nullopt;
    }
}

/// What the source becomes. Standard error says why it becomes nothing.
std::optional<std::string> converted(const ConvertArguments& arguments)
{
    if (arguments.to == k_json) {
        PackageInfo package;
        if (!loadManifestFrom(arguments.source, package))
            return std::nullopt;
        return toJson(package);
    }
    if (std::optional<PackageInfo> package = packageInJson(manifestPath(arguments.source, "manifest.json")))
        return package->saveToManifestContent();
    return std::nullopt;
}

ExitCode convert(const ConvertArguments& arguments)
{
    const std::optional<std::string> text = converted(arguments);
    if (!text)
        return k_inputFailed;
    if (arguments.output == "-")
        return writeOutput(*text) ? k_success : k_outputFailed;
    try {
        replaceManifest(arguments.output, *text);
        return k_success;
    } catch (const std::runtime_error& error) {
        complain(error.what());
        return k_outputFailed;
    }
}

std::function<ExitCode()> prepareConvert(Arguments& arguments)
{
    auto parsed = std::make_shared<ConvertArguments>();
    arguments.require(
        parsed->source, "SOURCE", "FILE|FOLDER|-",
        "A manifest, or one in JSON; of a folder its manifest.xml or manifest.json; - for standard input");
    arguments.requireChoice(parsed->to, "--to", {k_json, k_xml}, "What to make of it: json or xml");
    arguments.option(parsed->output, "-o,--output", "FILE",
                     "The file to replace, or - for standard output, which it is by default");
    return [parsed] { return convert(*parsed); };
}

constexpr Example k_convertExamples[] = {
    {"zupackage convert --to json my-package | jq .names", "Print the names of a package as JSON"},
    {"zupackage convert --to xml package.json -o my-package/manifest.xml", "Make a manifest of JSON"},
};

} // namespace

const Command k_convert = {"convert", "Turn a manifest into JSON, and back", prepareConvert, k_convertExamples};

} // namespace zu::cli
