// The one source that includes the parser of command lines, which takes longer to compile than the rest of the program.
#include "command_line.hpp"

#include "commands/add.hpp"
#include "commands/check.hpp"
#include "commands/diff.hpp"
#include "commands/get.hpp"
#include "commands/languages.hpp"
#include "commands/new.hpp"
#include "commands/remove.hpp"
#include "commands/set.hpp"
#include "commands/show.hpp"
#include "commands/site.hpp"
#include "output.hpp"

#include <CLI/CLI.hpp>

#include <iostream>

namespace zu::cli {

namespace {

constexpr char k_exitCodes[] =
    "Exit codes: 0 done; 1 findings, or differences; 2 wrong usage; 3 something could not be\n"
    "read; 4 what was asked for is not there; 5 output could not be written. The worst one\n"
    "wins, in the order 2, 5, 3, 4, 1.\n";

} // namespace

void Arguments::require(std::vector<std::string>& values, const char* name, const char* type, const char* help)
{
    m_parser.add_option(name, values, help)->required()->type_name(type);
}

void Arguments::require(std::string& value, const char* name, const char* type, const char* help)
{
    m_parser.add_option(name, value, help)->required()->type_name(type);
}

void Arguments::accept(std::vector<std::string>& values, const char* name, const char* type, const char* help)
{
    m_parser.add_option(name, values, help)->type_name(type);
}

void Arguments::repeated(std::vector<std::string>& values, const char* name, const char* type, const char* help)
{
    // One value a time, so that what follows is not taken for another.
    m_parser.add_option(name, values, help)->type_name(type)->allow_extra_args(false);
}

void Arguments::option(std::string& value, const char* name, const char* type, const char* help)
{
    m_parser.add_option(name, value, help)->type_name(type);
}

void Arguments::choice(std::string& value, const char* name, const std::vector<std::string>& choices, const char* help)
{
    m_parser.add_option(name, value, help)->check(CLI::IsMember(choices))->type_name("WHICH")->capture_default_str();
}

void Arguments::flag(bool& value, const char* name, const char* help) { m_parser.add_flag(name, value, help); }

void Arguments::examples(const char* lines)
{
    m_parser.footer(std::string("Examples:\n") + lines + "\n" + k_exitCodes);
}

ExitCode worse(ExitCode left, ExitCode right)
{
    for (const ExitCode code : {k_usage, k_outputFailed, k_inputFailed, k_absent, k_findings}) {
        if (left == code || right == code)
            return code;
    }
    return k_success;
}

ExitCode runCommandLine(int argc, char** argv)
{
    CLI::App app("Works with the packages of the robot middleware.", "zupackage");
    app.set_version_flag("--version", "zupackage " ZUPACKAGE_VERSION);
    app.require_subcommand(1);
    ExitCode result = k_success;
    for (const Command& command :
         {k_add, k_check, k_diff, k_get, k_languages, k_new, k_remove, k_set, k_show, k_site}) {
        CLI::App* subcommand = app.add_subcommand(command.name, command.summary);
        subcommand->footer(k_exitCodes);
        Arguments arguments(*subcommand);
        subcommand->callback([&result, runCommand = command.prepare(arguments)] { result = runCommand(); });
    }
    app.footer(k_exitCodes);
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
