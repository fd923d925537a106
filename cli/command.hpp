#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zu::cli {

/// The program's exit codes, the same for every command.
enum ExitCode : int
{
    k_success = 0,
    k_findings = 1, ///< the command did its work and found something
    k_usage = 2,
    k_inputFailed = 3,  ///< something could not be read
    k_absent = 4,       ///< what was asked for is not there
    k_outputFailed = 5, ///< what the command made could not be written
};

/// What a command ends with that met both: wrong usage before output before input, then what is absent, then findings.
ExitCode worse(ExitCode left, ExitCode right);

/// What a command takes on the command line.
class Arguments
{
public:
    explicit Arguments(CLI::App& parser) : m_parser(parser) {}

    /// Exactly one value.
    void require(std::string& value, const char* name, const char* type, const char* help);

    /// One or more values, which `values` holds once the command line is parsed.
    void require(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// Any number of values, none included.
    void accept(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// An option that may stand several times, with a value each time.
    void repeated(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// An option with a value; without it `value` stays as it is.
    void option(std::string& value, const char* name, const char* type, const char* help);

    /// An option whose value is one of those; without it `value`, which must be one of them, stays as it is.
    void choice(std::string& value, const char* name, const std::vector<std::string>& choices, const char* help);

    /// An option without a value.
    void flag(bool& value, const char* name, const char* help);

    /// Command lines that the help shows, each behind two blanks.
    void examples(const char* lines);

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
