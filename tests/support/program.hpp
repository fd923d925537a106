#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zu::test {

/// What a program left behind.
struct ProgramResult
{
    int exitCode;
    std::string output;
    std::string errors;
};

/// How a program is started, beyond its arguments.
struct ProgramSetting
{
    std::string input;                                            ///< its standard input
    std::string outputFile;                                       ///< where standard output goes instead of the result
    std::vector<std::pair<std::string, std::string>> environment; ///< set on top of ours
};

/// Runs a program to its end. A crash or a run of over a minute throws std::runtime_error.
ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProgramSetting& setting = {});

/// The same without root's right to read and write whatever there is, should we have it. The files are still ours.
ProgramResult runWithoutPrivileges(const std::string& program, const std::vector<std::string>& arguments);

} // namespace zu::test
