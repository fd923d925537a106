#pragma once

#include "support/program.hpp"

#include <string>
#include <utility>
#include <vector>

namespace zu::test {

/// Runs a program to its end on a terminal of its own, which gets standard output and standard error alike, as they
/// come: both stand in `output`. A crash or a minute without output throws std::runtime_error.
ProgramResult runOnTerminal(const std::string& program, const std::vector<std::string>& arguments,
                            const std::vector<std::pair<std::string, std::string>>& environment = {});

} // namespace zu::test
