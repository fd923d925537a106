#pragma once

#include "manual/program_definition.hpp"

namespace zu::cli {

/// zupackage(1), the page of the whole program.
std::string programPage(const ProgramDefinition& program);

/// zupackage-COMMAND(1).
std::string commandPage(const ProgramDefinition& program, const CommandDefinition& command);

} // namespace zu::cli
