#pragma once

#include <cstddef>
#include <functional>
#include <optional>
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

    /// One or more values, which `values` holds once the command line is parsed.
    void require(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// Exactly one value.
    void require(std::string& value, const char* name, const char* type, const char* help);

    /// Any number of values, none included.
    void accept(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// An option that may stand several times, with a value each time.
    void repeated(std::vector<std::string>& values, const char* name, const char* type, const char* help);

    /// An option with a value; without it `value` stays as it is.
    void option(std::string& value, const char* name, const char* type, const char* help);

    /// The same where an empty value is not as good as none.
    void option(std::optional<std::string>& value, const char* name, const char* type, const char* help);

    /// An option whose value is one of those; without it `value`, which must be one of them, stays as it is.
    void choice(std::string& value, const char* name, const std::vector<std::string>& choices, const char* help);

    /// An option that must stand there, with one of those values.
    void requireChoice(std::string& value, const char* name, const std::vector<std::string>& choices, const char* help);

    /// An option without a value.
    void flag(bool& value, const char* name, const char* help);

private:
    CLI::App& m_parser;
};

/// A command line that people may type, and what it does, as one clause: "Check all packages of a folder".
struct Example
{
    const char* commandLine;
    const char* purpose;
};

/// The examples of a command, which have static storage.
class Examples
{
public:
    constexpr Examples() = default;
    template <std::size_t Count>
    // NOLINTNEXTLINE(google-explicit-constructor): a command is a list of its parts
    constexpr Examples(const Example (&examples)[Count]) : m_begin(examples), m_end(examples + Count)
    {
    }

    constexpr const Example* begin() const { return m_begin; }
    constexpr const Example* end() const { return m_end; }

private:
    const Example* m_begin = nullptr;
    const Example* m_end = nullptr;
};

/// One subcommand of the program.
struct Command
{
    const char* name;
    const char* summary;
    /// Adds what the command takes to `arguments`; the result runs the command once they are parsed.
    std::function<ExitCode()> (*prepare)(Arguments& arguments);
    Examples examples = {};
};

} // namespace zu::cli
