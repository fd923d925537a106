#include "terminal.hpp"

#include <cstdlib>
#include <unistd.h>

namespace zu::cli {

bool isTerminal(std::FILE* stream) { return isatty(fileno(stream)) == 1; }

bool isColourWanted(const std::string& choice)
{
    if (choice != "auto")
        return choice == "always";
    const char* const noColour = std::getenv("NO_COLOR");
    return isTerminal(stdout) && (!noColour || *noColour == '\0');
}

std::string painted(std::string_view text, const char* colour, bool isColoured)
{
    const std::string plain(text);
    return isColoured ? "\x1B[" + std::string(colour) + "m" + plain + "\x1B[0m" : plain;
}

Progress::Progress(std::size_t count, const char* verb) : m_count(count), m_verb(verb)
{
    constexpr std::size_t k_short = 50;
    m_isShown = count > k_short && isTerminal(stderr);
}

void Progress::advance()
{
    ++m_done;
    if (m_isShown)
        std::fprintf(stderr, "\r%s %zu of %zu", m_verb, m_done, m_count);
}

void Progress::clear()
{
    if (m_isShown)
        std::fputs("\r\x1B[K", stderr);
}

} // namespace zu::cli
