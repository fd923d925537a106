#pragma once

#include "command.hpp"

#include <string>
#include <vector>

namespace zu::cli {

/// An option or an argument of a command, as the parser of command lines has it.
struct OptionDefinition
{
    std::vector<std::string> names;   ///< "--format"; none for an argument
    std::string value;                ///< what its value is called, "FILE|FOLDER|-"; empty when it has none
    std::vector<std::string> choices; ///< the values that it takes; empty when it takes others, too
    std::string help;
    bool isRequired;
    bool isRepeated; ///< may be given more than once

    bool isArgument() const { return names.empty(); }
    bool takesFiles() const;
};

struct CommandDefinition
{
    std::string name;
    std::string summary;
    std::vector<OptionDefinition> options;
    std::vector<Example> examples;
};

struct ExitCodeDefinition
{
    ExitCode code;
    const char* meaning;
};

/// Everything that manual pages and completion say about the program.
struct ProgramDefinition
{
    std::string name;
    std::string summary;
    std::string version;
    std::vector<OptionDefinition> options;
    std::vector<CommandDefinition> commands;
    std::vector<ExitCodeDefinition> exitCodes;
};

/// The program as its parser of command lines defines it.
ProgramDefinition programDefinition();

} // namespace zu::cli
