// The one source that includes the parser of command lines, which takes longer to compile than the rest of the program.
#include "command_line.hpp"

#include "commands/show.hpp"
#include "output.hpp"

#include <CLI/CLI.hpp>

#include <iostream>

namespace zu::cli {

void Arguments::require(std::vector<std::string>& values, const char* name, const char* type, const char* help)
{
    m_parser.add_option(name, values, help)->required()->type_name(type);
}

ExitCode runCommandLine(int argc, char** argv)
{
    CLI::App app("Works with the packages of the robot middleware.", "zupackage");
    app.set_version_flag("--version", "zupackage " ZUPACKAGE_VERSION);
    app.require_subcommand(1);
    ExitCode result = k_success;
    for (const Command& command : {k_show}) {
        CLI::App* subcommand = app.add_subcommand(command.name, command.summary);
        Arguments arguments(*subcommand);
        subcommand->callback([&result, runCommand = command.prepare(arguments)] { result = runCommand(); });
    }
    app.footer("Exit codes: 0 done, 1 standard output failed, 2 wrong usage, 3 something could not be read.");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (app.exit(error) != 0)
            return k_usage;
        return std::cout.flush() ? k_success : outputFailed();
    }
    return result;
}

} // namespace zu::cli
