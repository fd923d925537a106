#pragma once

#include "command.hpp"

#include <string>
#include <string_view>

namespace zu::cli {

/// Writes the whole text to standard output at once.
/// @return false when it could not be written; standard error says why then.
bool writeOutput(std::string_view text);

/// Says something about a failure on standard error, as one line that cannot steer a terminal.
void complain(const std::string& message);

/// Says on standard error why standard output could not be written.
ExitCode outputFailed();

} // namespace zu::cli
