#include "commands/add.hpp"

#include "edit/edit_command.hpp"
#include "edit/path_arguments.hpp"

#include <memory>

namespace zu::cli {

namespace {

struct AddArguments : EditArguments
{
    std::string path;
    std::vector<std::string> parts;
};

ExitCode add(const AddArguments& arguments)
{
    const auto path = pathIn(arguments.path);
    const auto parts = assignmentsIn(arguments.parts);
    return path && parts ? editManifest(arguments, {authoring::AddEntry{*path, *parts}}) : k_usage;
}

std::function<ExitCode()> prepareAdd(Arguments& arguments)
{
    auto parsed = std::make_shared<AddArguments>();
    acceptEditArguments(*parsed, arguments);
    arguments.require(parsed->path, "PATH", "PATH", "The entry to append to its list, such as services/service");
    arguments.accept(parsed->parts, "PART", "PATH=TEXT",
                     "What stands in it: @attribute=text, child=text, .=text for a text of its own");
    return [parsed] { return add(*parsed); };
}

constexpr Example k_addExamples[] = {
    {"zupackage add manifest.xml services/service @name=clock @execStart=bin/clock", "Append a service"},
    {"zupackage add manifest.xml supportedLanguages/language .=fr", "Append a language"},
};

} // namespace

const Command k_add = {"add", "Append an entry to a list of a manifest", prepareAdd, k_addExamples};

} // namespace zu::cli
