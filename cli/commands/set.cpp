#include "commands/set.hpp"

#include "edit/edit_command.hpp"
#include "edit/path_arguments.hpp"

#include <memory>

namespace zu::cli {

namespace {

struct SetArguments : EditArguments
{
    std::vector<std::string> assignments;
};

ExitCode set(const SetArguments& arguments)
{
    const auto assignments = assignmentsIn(arguments.assignments);
    return assignments ? editManifest(arguments, {assignments->begin(), assignments->end()}) : k_usage;
}

std::function<ExitCode()> prepareSet(Arguments& arguments)
{
    auto parsed = std::make_shared<SetArguments>();
    acceptEditArguments(*parsed, arguments);
    arguments.require(parsed->assignments, "PATH=TEXT", "PATH=TEXT",
                      "What is to have which text. The path ends at the first = outside of brackets. What is missing "
                      "is made");
    return [parsed] { return set(*parsed); };
}

constexpr Example k_setExamples[] = {
    {"zupackage set manifest.xml @version=2.1.0", "Change the version"},
    {"zupackage set my-package \"names/name[@lang='fr']=L'heure du conte\" --dry-run",
     "Show what changing the French name would do"},
};

} // namespace

const Command k_set = {"set", "Change texts of a manifest, and nothing else in it", prepareSet, k_setExamples};

} // namespace zu::cli
