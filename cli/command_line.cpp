// The one source that includes the parser of command lines, which takes longer to compile than the rest of the program.
#include "command_line.hpp"

#include "commands/add.hpp"
#include "commands/check.hpp"
#include "commands/convert.hpp"
#include "commands/diff.hpp"
#include "commands/format.hpp"
#include "commands/get.hpp"
#include "commands/languages.hpp"
#include "commands/merge.hpp"
#include "commands/new.hpp"
#include "commands/remove.hpp"
#include "commands/schema.hpp"
#include "commands/set.hpp"
#include "commands/show.hpp"
#include "commands/site.hpp"
#include "display_width.hpp"
#include "manual/program_definition.hpp"
#include "output.hpp"
#include "process_settings.hpp"
#include "wrapped_text.hpp"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>
#include <sstream>

namespace zu::cli {

namespace {

constexpr ExitCodeDefinition k_exitCodes[] = {
    {k_success, "done"},
    {k_findings, "findings, or differences"},
    {k_usage, "wrong usage"},
    {k_inputFailed, "something could not be read"},
    {k_absent, "what was asked for is not there"},
    {k_outputFailed, "output could not be written"},
};

std::string footerOf(const Examples& examples)
{
    std::string text;
    for (const Example& example : examples)
        text.append(text.empty() ? "Examples:\n" : "")
            .append("  ")
            .append(example.commandLine)
            .append("\n      ")
            .append(example.purpose)
            .append("\n");
    std::string codes;
    for (const ExitCodeDefinition& definition : k_exitCodes)
        codes.append(codes.empty() ? "Exit codes: " : "; ")
            .append(std::to_string(definition.code))
            .append(" ")
            .append(definition.meaning);
    return (text.empty() ? text : text + "\n") +
           wrapped(codes + ". The worst one wins, in the order 2, 5, 3, 4, 1.", 88);
}

/// All but `help`, which knows the others.
std::vector<Command> commands()
{
    return {k_add,   k_check, k_convert, k_diff,   k_format, k_get,  k_languages,
            k_merge, k_new,   k_remove,  k_schema, k_set,    k_show, k_site};
}

constexpr Example k_helpExamples[] = {{"zupackage help check", "Explain the command check and its options"}};

/// The parser, and what it found once it has parsed.
struct CommandLine
{
    CLI::App app{"Works with the packages of the robot middleware.", "zupackage"};
    std::string explained; ///< the command that `help` is to explain
    ExitCode result = k_success;
};

/// `zupackage help COMMAND` is `zupackage COMMAND --help`.
ExitCode printHelp(const CommandLine& line)
{
    return writeOutput(line.explained.empty()
                           ? line.app.get_formatter()->make_help(&line.app, "zupackage", CLI::AppFormatMode::Normal)
                           : line.app.get_subcommand(line.explained)->help("zupackage"))
               ? k_success
               : k_outputFailed;
}

void addHelp(CommandLine& line)
{
    CLI::App* const help = line.app.add_subcommand("help", "Explain a command");
    std::vector<std::string> names;
    for (const CLI::App* command : line.app.get_subcommands({}))
        names.push_back(command->get_name());
    help->footer([] { return footerOf(k_helpExamples); });
    help->add_option("COMMAND", line.explained, "The command to explain; without one, all in short")
        ->check(CLI::IsMember(names))
        ->type_name("COMMAND");
    help->callback([&line] { line.result = printHelp(line); });
}

void addOptions(CommandLine& line)
{
    line.app.set_version_flag("--version", "zupackage " ZUPACKAGE_VERSION, "Print the version and exit");
    line.app.require_subcommand(1);
    line.app.failure_message([](const CLI::App* app, const CLI::Error& error) {
        return displayed(error.what()) + "\nRun with " + app->get_help_ptr()->get_name() + " for more information.\n";
    });
    line.app.footer([] { return footerOf({}); });
}

void addCommands(CommandLine& line, const std::vector<Command>& commands)
{
    for (const Command& command : commands) {
        CLI::App* const subcommand = line.app.add_subcommand(command.name, command.summary);
        subcommand->footer([examples = command.examples] { return footerOf(examples); });
        Arguments arguments(*subcommand);
        subcommand->callback([&line, run = command.prepare(arguments)] {
            settleProcess();
            line.result = run();
        });
    }
}

/// Everything that the program can be asked.
void addAll(CommandLine& line)
{
    addOptions(line);
    addCommands(line, commands());
    addHelp(line);
}

/// What these arguments may ask. To add all commands takes longer than most of them run.
void addNeeded(CommandLine& line, int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 2 && first == "--version")
        return addOptions(line);
    for (const Command& command : commands()) {
        if (command.name == first) {
            addOptions(line);
            return addCommands(line, {command});
        }
    }
    addAll(line);
}

/// The values in "WHICH:{text,json}", which is how the parser shows a value that is one of several.
std::vector<std::string> choicesIn(const std::string& typeName)
{
    std::vector<std::string> choices;
    const std::size_t open = typeName.find(":{");
    if (open == std::string::npos)
        return choices;
    std::istringstream list(typeName.substr(open + 2, typeName.rfind('}') - open - 2));
    for (std::string choice; std::getline(list, choice, ',');)
        choices.push_back(choice);
    return choices;
}

std::vector<OptionDefinition> optionsOf(const CLI::App& app)
{
    std::vector<OptionDefinition> options;
    for (const CLI::Option* option : app.get_options()) {
        OptionDefinition definition;
        for (const std::string& name : option->get_snames())
            definition.names.push_back("-" + name);
        for (const std::string& name : option->get_lnames())
            definition.names.push_back("--" + name);
        const bool hasValue = option->get_items_expected_max() > 0;
        const std::string typeName = option->get_type_name();
        definition.value = hasValue ? typeName.substr(0, typeName.find(":{")) : "";
        definition.choices = choicesIn(typeName);
        definition.help = option->get_description();
        definition.isRequired = option->get_required();
        definition.isRepeated = option->get_items_expected_max() > 1;
        options.push_back(std::move(definition));
    }
    return options;
}

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

void Arguments::option(std::optional<std::string>& value, const char* name, const char* type, const char* help)
{
    // The parser takes an empty text for no value.
    m_parser
        .add_option_function<std::string>(
            name, [&value](const std::string& text) { value = text; }, help)
        ->type_name(type);
}

void Arguments::choice(std::string& value, const char* name, const std::vector<std::string>& choices, const char* help)
{
    m_parser.add_option(name, value, help)->check(CLI::IsMember(choices))->type_name("WHICH")->capture_default_str();
}

void Arguments::requireChoice(std::string& value, const char* name, const std::vector<std::string>& choices,
                              const char* help)
{
    m_parser.add_option(name, value, help)->required()->check(CLI::IsMember(choices))->type_name("WHICH");
}

void Arguments::flag(bool& value, const char* name, const char* help) { m_parser.add_flag(name, value, help); }

ExitCode worse(ExitCode left, ExitCode right)
{
    for (const ExitCode code : {k_usage, k_outputFailed, k_inputFailed, k_absent, k_findings}) {
        if (left == code || right == code)
            return code;
    }
    return k_success;
}

ProgramDefinition programDefinition()
{
    CommandLine line;
    ProgramDefinition program = {line.app.get_name(), line.app.get_description(), ZUPACKAGE_VERSION, {}, {}, {}};
    std::map<std::string, Examples> examples = {{"help", k_helpExamples}};
    for (const Command& command : commands())
        examples[command.name] = command.examples;
    addAll(line);
    program.options = optionsOf(line.app);
    for (const CLI::App* command : line.app.get_subcommands({})) {
        const Examples& rows = examples[command->get_name()];
        program.commands.push_back(
            {command->get_name(), command->get_description(), optionsOf(*command), {rows.begin(), rows.end()}});
    }
    program.exitCodes.assign(std::begin(k_exitCodes), std::end(k_exitCodes));
    return program;
}

ExitCode runCommandLine(int argc, char** argv)
{
    CommandLine line;
    addNeeded(line, argc, argv);
    try {
        line.app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (line.app.exit(error) != 0)
            return k_usage;
        return std::cout.flush() ? k_success : outputFailed();
    }
    return line.result;
}

} // namespace zu::cli
