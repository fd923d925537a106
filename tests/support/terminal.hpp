#pragma once

#include "support/program.hpp"

#include <string>
#include <utility>
#include <vector>

namespace zu::test {

/// Runs a program to its end on a terminal of its own, which gets standard output and standard error alike, as they
/// come: both stand in `output`. A crash, a minute without output, and one in which the program does not end although
/// it has closed the terminal, throw std::runtime_error; the program is killed then.
ProgramResult runOnTerminal(const std::string& program, const std::vector<std::string>& arguments,
                            const std::vector<std::pair<std::string, std::string>>& environment = {});

} // namespace zu::test
