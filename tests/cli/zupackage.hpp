#pragma once

#include "support/files.hpp"
#include "support/program.hpp"

#include <string>
#include <vector>

namespace zu::test {

/// Runs the program that was built.
inline ProgramResult zupackage(const std::vector<std::string>& arguments, const std::string& input = {})
{
    return runProgram(ZUPACKAGE_PROGRAM, arguments, {input, {}, {}});
}

/// The folder or file of that name among the example packages.
inline std::string examplePath(const std::string& name) { return sourcePath("examples/packages/" + name).string(); }

} // namespace zu::test
