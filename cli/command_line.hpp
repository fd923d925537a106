#pragma once

#include "command.hpp"

namespace zu::cli {

/// Runs the command that the arguments of the program name; wrong usage is explained on standard error.
ExitCode runCommandLine(int argc, char** argv);

} // namespace zu::cli
