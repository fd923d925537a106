#pragma once

#include <functional>
#include <string_view>

namespace CLI {
class App;
}

namespace zu::cli {

/// The program's exit codes.
enum ExitCode : int
{
    k_success = 0,
    k_outputFailed = 1, ///< standard output took not everything
    k_usage = 2,
    k_inputFailed = 3 ///< something could not be read
};

/// One subcommand of the program.
struct Command
{
    const char* name;
    const char* summary;
    /// Adds the command's arguments to `app`; the result runs the command once they are parsed.
    std::function<ExitCode()> (*prepare)(CLI::App& app);
};

/// Writes the whole text to standard output at once.
/// @return false when it could not be written; standard error says why then.
bool writeOutput(std::string_view text);

} // namespace zu::cli
