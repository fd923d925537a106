#pragma once

#include "manual/program_definition.hpp"

namespace zu::cli {

/// A script that completes the program's command lines in bash.
std::string bashCompletion(const ProgramDefinition& program);

/// The same for zsh, as the function _zupackage.
std::string zshCompletion(const ProgramDefinition& program);

/// The same for fish.
std::string fishCompletion(const ProgramDefinition& program);

} // namespace zu::cli
