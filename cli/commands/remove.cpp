#include "commands/remove.hpp"

#include "edit/edit_command.hpp"
#include "edit/path_arguments.hpp"

#include <memory>

namespace zu::cli {

namespace {

struct RemoveArguments : EditArguments
{
    std::vector<std::string> paths;
};

ExitCode remove(const RemoveArguments& arguments)
{
    std::vector<authoring::PathEdit> edits;
    for (const std::string& argument : arguments.paths) {
        const auto path = pathIn(argument);
        if (!path)
            return k_usage;
        edits.emplace_back(authoring::Remove{*path});
    }
    return editManifest(arguments, edits);
}

std::function<ExitCode()> prepareRemove(Arguments& arguments)
{
    auto parsed = std::make_shared<RemoveArguments>();
    acceptEditArguments(*parsed, arguments);
    arguments.require(parsed->paths, "PATH", "PATH", "What to take away; all that a path leads to");
    return [parsed] { return remove(*parsed); };
}

constexpr Example k_removeExamples[] = {
    {"zupackage remove manifest.xml \"names/name[@lang='fr']\" @channel", "Take the French name and the channel away"},
};

} // namespace

const Command k_remove = {"remove", "Take elements or attributes out of a manifest", prepareRemove, k_removeExamples};

} // namespace zu::cli
