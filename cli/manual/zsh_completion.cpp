#include "manual/completion.hpp"

namespace zu::cli {

namespace {

/// A text within single quotes for _arguments or _describe, to which colons and brackets end parts.
std::string escapedPart(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '\'')
            escaped += "'\\''";
        else if (c == ':' || c == '[' || c == ']' || c == '\\')
            escaped.append("\\").append(1, c);
        else
            escaped += c;
    }
    return escaped;
}

/// ":what:how" of a value; empty when there is none.
std::string valueOf(const OptionDefinition& option)
{
    if (option.value.empty())
        return {};
    std::string words;
    for (const std::string& choice : option.choices)
        words.append(words.empty() ? "" : " ").append(choice);
    return ":" + escapedPart(option.value) + ":" +
           (!words.empty()        ? "(" + words + ")"
            : option.takesFiles() ? "_files"
                                  : "");
}

/// The arguments of _arguments for an option, a line for each name.
std::string argumentOf(const OptionDefinition& option, const std::string& indent)
{
    if (option.isArgument()) {
        const char* const kind = option.isRepeated ? "*" : option.isRequired ? "" : ":";
        return indent + "'" + kind + valueOf(option) + "'";
    }
    std::string lines;
    for (const std::string& name : option.names) {
        // "--name=" takes its value as the next word or behind the sign.
        const bool takesSign = !option.value.empty() && name.compare(0, 2, "--") == 0;
        lines.append(lines.empty() ? "" : " \\\n")
            .append(indent)
            .append("'")
            .append(option.isRepeated ? "*" : "")
            .append(name)
            .append(takesSign ? "=[" : "[")
            .append(escapedPart(option.help))
            .append("]")
            .append(valueOf(option))
            .append("'");
    }
    return lines;
}

std::string argumentsOf(const std::vector<OptionDefinition>& options, const std::string& indent)
{
    std::string lines;
    for (const OptionDefinition& option : options)
        lines.append(" \\\n").append(argumentOf(option, indent));
    return lines;
}

} // namespace

std::string zshCompletion(const ProgramDefinition& program)
{
    std::string script = "#compdef zupackage\n"
                         "# Completion of zupackage in zsh, written by the build from the program's definition.\n\n"
                         "_zupackage() {\n"
                         "    local curcontext=$curcontext state line\n"
                         "    typeset -A opt_args\n"
                         "    local -a commands=(\n";
    std::string cases;
    for (const CommandDefinition& command : program.commands) {
        script += "        '" + escapedPart(command.name) + ":" + escapedPart(command.summary) + "'\n";
        cases += "        " + command.name + ")\n            _arguments" +
                 argumentsOf(command.options, "                ") + "\n            ;;\n";
    }
    script += "    )\n    _arguments -C" + argumentsOf(program.options, "        ") +
              " \\\n        '1: :->command' \\\n        '*:: :->argument'\n"
              "    case $state in\n"
              "    command) _describe command commands ;;\n"
              "    argument)\n"
              "        case $words[1] in\n" +
              cases +
              "        esac\n"
              "        ;;\n"
              "    esac\n"
              "}\n\n"
              "_zupackage \"$@\"\n";
    return script;
}

} // namespace zu::cli
