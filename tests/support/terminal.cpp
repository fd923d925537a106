#include "support/terminal.hpp"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

namespace zu::test {

namespace {

/// Becomes the program, with the terminal as its standard streams.
[[noreturn]] void become(const std::string& program, std::vector<std::string> arguments,
                         const std::vector<std::pair<std::string, std::string>>& environment)
{
    termios settings = {};
    tcgetattr(STDOUT_FILENO, &settings);
    settings.c_oflag &= ~static_cast<tcflag_t>(OPOST); // line feeds stay what they are
    tcsetattr(STDOUT_FILENO, TCSANOW, &settings);
    unsetenv("NO_COLOR");
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    arguments.insert(arguments.begin(), program);
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    std::_Exit(127);
}

/// A program that runs on a terminal of its own. It is killed when nobody waits for its end any more.
class ProgramOnTerminal
{
public:
    ProgramOnTerminal(const std::string& program, const std::vector<std::string>& arguments,
                      const std::vector<std::pair<std::string, std::string>>& environment)
        : m_program(program), m_process(::forkpty(&m_terminal, nullptr, nullptr, nullptr))
    {
        if (m_process < 0)
            throw std::runtime_error("there is no terminal to be had");
        if (m_process == 0)
            become(program, arguments, environment);
    }

    ~ProgramOnTerminal()
    {
        if (m_isRunning) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
        }
        ::close(m_terminal);
    }

    ProgramOnTerminal(const ProgramOnTerminal&) = delete;
    ProgramOnTerminal& operator=(const ProgramOnTerminal&) = delete;

    /// What comes out of the terminal until nobody else has it open any more.
    std::string readAll() const
    {
        std::string output;
        for (;;) {
            pollfd wait = {m_terminal, POLLIN, 0};
            if (::poll(&wait, 1, static_cast<int>(k_patience.count())) <= 0)
                throw std::runtime_error("nothing comes from " + m_program);
            std::array<char, 4096> part = {};
            const ssize_t count = ::read(m_terminal, part.data(), part.size());
            if (count <= 0)
                return output;
            output.append(part.data(), static_cast<std::size_t>(count));
        }
    }

    /// @return its exit code.
    int waitForEnd()
    {
        const auto deadline = std::chrono::steady_clock::now() + k_patience;
        int status = 0;
        while (::waitpid(m_process, &status, WNOHANG) == 0) {
            if (std::chrono::steady_clock::now() > deadline)
                throw std::runtime_error(m_program + " did not end");
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        m_isRunning = false;
        if (!WIFEXITED(status))
            throw std::runtime_error(m_program + " was ended by signal " + std::to_string(WTERMSIG(status)));
        return WEXITSTATUS(status);
    }

private:
    static constexpr std::chrono::milliseconds k_patience = std::chrono::minutes(1);

    std::string m_program;
    int m_terminal = -1;
    pid_t m_process;
    bool m_isRunning = true;
};

} // namespace

ProgramResult runOnTerminal(const std::string& program, const std::vector<std::string>& arguments,
                            const std::vector<std::pair<std::string, std::string>>& environment)
{
    ProgramOnTerminal process(program, arguments, environment);
    const std::string output = process.readAll();
    return {process.waitForEnd(), output, {}};
}

} // namespace zu::test
