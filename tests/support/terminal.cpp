#include "support/terminal.hpp"

#include <array>
#include <cstdlib>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <termios.h>
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

/// What comes out of the terminal until nobody has it open any more.
std::string readAll(int terminal)
{
    constexpr int k_minute = 60'000;
    std::string output;
    for (;;) {
        pollfd wait = {terminal, POLLIN, 0};
        if (poll(&wait, 1, k_minute) <= 0)
            throw std::runtime_error("nothing comes from the terminal");
        std::array<char, 4096> part = {};
        const ssize_t count = read(terminal, part.data(), part.size());
        if (count <= 0)
            return output;
        output.append(part.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

ProgramResult runOnTerminal(const std::string& program, const std::vector<std::string>& arguments,
                            const std::vector<std::pair<std::string, std::string>>& environment)
{
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child < 0)
        throw std::runtime_error("there is no terminal to be had");
    if (child == 0)
        become(program, arguments, environment);
    const std::string output = readAll(terminal);
    close(terminal);
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status))
        throw std::runtime_error(program + " did not end");
    return {WEXITSTATUS(status), output, {}};
}

} // namespace zu::test
