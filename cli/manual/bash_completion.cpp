#include "manual/completion.hpp"

namespace zu::cli {

namespace {

constexpr char k_begin[] = R"(# Completion of zupackage in bash, written by the build from the program's definition.

_zupackage() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command= options= choices= files=
    local i
    # "--option=value" comes as three words.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for ((i = 1; i < COMP_CWORD; ++i)); do
        if [[ ${COMP_WORDS[i]} != -* ]]; then
            command=${COMP_WORDS[i]}
            break
        fi
    done
    # The value of an option.
    case "$command $previous" in
)";

constexpr char k_words[] = R"(    *) options=yes ;;
    esac
    # Options and arguments.
    if [[ $options ]]; then
        case "$command $current" in
)";

constexpr char k_end[] = R"(        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$current")
    if [[ $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -F _zupackage zupackage
)";

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all.append(all.empty() ? "" : " ").append(text);
    return all;
}

/// What sets the variables that say how a value is completed.
std::string assignmentFor(const OptionDefinition& option)
{
    std::string assignment;
    if (!option.choices.empty())
        assignment += " choices='" + joined(option.choices) + "'";
    if (option.takesFiles())
        assignment += " files=yes";
    return assignment.empty() ? " :" : assignment;
}

std::string optionNames(const std::vector<OptionDefinition>& options)
{
    std::string names;
    for (const OptionDefinition& option : options) {
        if (!option.isArgument())
            names.append(names.empty() ? "" : " ").append(joined(option.names));
    }
    return names;
}

} // namespace

std::string bashCompletion(const ProgramDefinition& program)
{
    std::string script = k_begin;
    std::string words;
    std::string names;
    for (const CommandDefinition& command : program.commands) {
        names.append(names.empty() ? "" : " ").append(command.name);
        words += "        '" + command.name + " '-*) choices='" + optionNames(command.options) + "' ;;\n";
        for (const OptionDefinition& option : command.options) {
            if (option.isArgument()) {
                words += "        '" + command.name + " '*)" + assignmentFor(option) + " ;;\n";
                continue;
            }
            for (const std::string& name : option.names) {
                if (!option.value.empty())
                    script += "    '" + command.name + " " + name + "')" + assignmentFor(option) + " ;;\n";
            }
        }
    }
    script += k_words + words;
    script += "        ' '*) choices='" + names + " " + optionNames(program.options) + "' ;;\n";
    return script + k_end;
}

} // namespace zu::cli
