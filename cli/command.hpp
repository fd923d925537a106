#pragma once

#include <functional>
#include <string>
#include <vector>

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

/// What a command takes on the command line.
class Arguments
{
public:
    explicit Arguments(CLI::App& parser) : m_parser(parser) {}

    /// One or more values, which `values` holds once the command line is parsed.
    void require(std::vector<std::string>& values, const char* name, const char* type, const char* help);

private:
    CLI::App& m_parser;
};

/// One subcommand of the program.
struct Command
{
    const char* name;
    const char* summary;
    /// Adds what the command takes to `arguments`; the result runs the command once they are parsed.
    std::function<ExitCode()> (*prepare)(Arguments& arguments);
};

} // namespace zu::cli
