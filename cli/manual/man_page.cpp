#include "manual/man_page.hpp"

#include "manual/roff.hpp"

namespace zu::cli {

namespace {

std::string nameSection(const std::string& name, const std::string& summary)
{
    return ".SH NAME\n" + roff(name) + " \\- " + roff(summary) + "\n";
}

std::string bold(const std::string& text) { return "\\fB" + roff(text) + "\\fR"; }
std::string italic(const std::string& text) { return "\\fI" + roff(text) + "\\fR"; }

std::string joined(const std::vector<std::string>& texts, const std::string& separator,
                   std::string (*shown)(const std::string&))
{
    std::string all;
    for (const std::string& text : texts)
        all.append(all.empty() ? "" : separator).append(shown(text));
    return all;
}

std::string optionEntry(const OptionDefinition& option)
{
    // Of an argument the name is shown, not the long list of commands that one may be.
    const bool isNamed = option.isArgument() || option.choices.empty();
    const std::string value = isNamed ? italic(option.value) : joined(option.choices, "|", bold);
    std::string head = joined(option.names, ", ", bold);
    if (!option.value.empty())
        head += (head.empty() ? "" : " ") + value;
    if (option.isRepeated)
        head += " ...";
    return ".TP\n" + head + "\n" + roff(option.help) + ".\n";
}

/// The arguments, or the options, below a heading; empty when there are none.
std::string optionSection(const std::string& heading, const std::vector<OptionDefinition>& options, bool arguments)
{
    std::string entries;
    for (const OptionDefinition& option : options) {
        if (option.isArgument() == arguments)
            entries += optionEntry(option);
    }
    return entries.empty() ? "" : ".SH " + heading + "\n" + entries;
}

std::string synopsisOf(const CommandDefinition& command)
{
    std::string synopsis = bold("zupackage " + command.name) + " [" + italic("OPTION") + " ...]";
    for (const OptionDefinition& option : command.options) {
        if (!option.isArgument())
            continue;
        const std::string value = italic(option.value) + (option.isRepeated ? " ..." : "");
        synopsis += option.isRequired ? " " + value : " [" + value + "]";
    }
    return ".SH SYNOPSIS\n" + synopsis + "\n";
}

std::string exampleSection(const CommandDefinition& command)
{
    std::string section;
    for (const Example& example : command.examples)
        section.append(".TP\n")
            .append(roff(example.purpose))
            .append(":\n\\fB")
            .append(roff(example.commandLine))
            .append("\\fR\n");
    return section.empty() ? "" : ".SH EXAMPLES\n" + section;
}

std::string exitSection(const ProgramDefinition& program)
{
    std::string section = ".SH EXIT STATUS\nThe worst of these that a command meets, in the order 2, 5, 3, 4, 1:\n";
    for (const ExitCodeDefinition& code : program.exitCodes)
        section.append(".TP\n")
            .append(bold(std::to_string(code.code)))
            .append("\n")
            .append(roff(code.meaning))
            .append(".\n");
    return section;
}

} // namespace

std::string programPage(const ProgramDefinition& program)
{
    std::string page =
        roffTitle(program.name, 1, program.version) +
        nameSection(program.name, "works with the packages of the robot middleware") + ".SH SYNOPSIS\n" +
        bold(program.name) + " " + italic("COMMAND") + " [" + italic("ARGUMENT") + " ...]\n.SH DESCRIPTION\n" +
        roff(program.summary) +
        "\nA package is described by its manifest, an XML document; see \\fBzupackage\\-manifest\\fR(5).\n"
        ".SH COMMANDS\n";
    std::string pages;
    for (const CommandDefinition& command : program.commands) {
        page += ".TP\n" + bold(command.name) + "\n" + roff(command.summary) + ".\n";
        pages += bold("zupackage-" + command.name) + "(1),\n";
    }
    return page + optionSection("OPTIONS", program.options, false) + exitSection(program) + ".SH SEE ALSO\n" + pages +
           "\\fBzupackage\\-manifest\\fR(5)\n";
}

std::string commandPage(const ProgramDefinition& program, const CommandDefinition& command)
{
    const std::string name = "zupackage-" + command.name;
    return roffTitle(name, 1, program.version) + nameSection(name, command.summary) + synopsisOf(command) +
           ".SH DESCRIPTION\n" + roff(command.summary) + ".\n" + optionSection("ARGUMENTS", command.options, true) +
           optionSection("OPTIONS", command.options, false) + exampleSection(command) + exitSection(program) +
           ".SH SEE ALSO\n\\fBzupackage\\fR(1),\n\\fBzupackage\\-manifest\\fR(5)\n";
}

} // namespace zu::cli
