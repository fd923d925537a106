#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace zu::cli {

bool isTerminal(std::FILE* stream);

/// Whether standard output is to be coloured: as the user says, "always" or "never", or on "auto" when it is a terminal
/// and NO_COLOR is not set.
bool isColourWanted(const std::string& choice);

/// The text in a colour of the terminal, as "1;31", if it is to have one.
std::string painted(std::string_view text, const char* colour, bool isColoured);

/// A line on standard error that says how far a long piece of work has come; silent for short ones, and where nobody
/// watches a terminal.
class Progress
{
public:
    /// @param verb what is done to each of the things: "checked".
    Progress(std::size_t count, const char* verb);

    /// One more is done.
    void advance();

    /// Takes the line away, so that something else can be written.
    void clear();

private:
    std::size_t m_count;
    const char* m_verb;
    std::size_t m_done = 0;
    bool m_isShown;
};

} // namespace zu::cli
