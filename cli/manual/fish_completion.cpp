#include "manual/completion.hpp"

namespace zu::cli {

namespace {

std::string quoted(const std::string& text)
{
    std::string escaped = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\')
            escaped += '\\';
        escaped += c;
    }
    return escaped + "'";
}

std::string choicesOf(const OptionDefinition& option)
{
    std::string words;
    for (const std::string& choice : option.choices)
        words.append(words.empty() ? "" : " ").append(choice);
    return words;
}

std::string lineFor(const OptionDefinition& option, const std::string& condition)
{
    std::string line = "complete -c zupackage -n " + quoted(condition);
    for (const std::string& name : option.names)
        line += name.compare(0, 2, "--") == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1);
    const bool takesFiles = option.takesFiles();
    if (!option.isArgument()) {
        if (!option.value.empty())
            line += takesFiles ? " -r -F" : " -x";
        line += " -d " + quoted(option.help);
    } else if (takesFiles) {
        line += " -F";
    }
    if (!option.choices.empty())
        line += " -a " + quoted(choicesOf(option));
    return line + "\n";
}

} // namespace

std::string fishCompletion(const ProgramDefinition& program)
{
    std::string script = "# Completion of zupackage in fish, written by the build from the program's definition.\n\n"
                         "complete -c zupackage -f\n";
    for (const OptionDefinition& option : program.options)
        script += lineFor(option, "__fish_use_subcommand");
    for (const CommandDefinition& command : program.commands)
        script += "complete -c zupackage -n __fish_use_subcommand -a " + command.name + " -d " +
                  quoted(command.summary) + "\n";
    for (const CommandDefinition& command : program.commands) {
        for (const OptionDefinition& option : command.options) {
            const bool isAnything = option.isArgument() && !option.takesFiles() && option.choices.empty();
            if (!isAnything)
                script += lineFor(option, "__fish_seen_subcommand_from " + command.name);
        }
    }
    return script;
}

} // namespace zu::cli
