#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zu::cli {

/// A character as a terminal shows it.
struct DisplayedCharacter
{
    std::string_view bytes; ///< those of U+FFFD for one that would steer the terminal
    std::size_t width;      ///< in columns: none for one that stands on the one before, two in some scripts
};

/// Takes the first character off a text that is not empty.
DisplayedCharacter takeCharacter(std::string_view& text);

/// The text in characters that cannot steer a terminal. Any bytes will do: those that are no UTF-8 become U+FFFD.
std::string displayed(std::string_view text);

/// How many columns of a terminal displayed() text takes.
std::size_t displayWidth(std::string_view text);

/// The text displayed() in at most that many columns, of which there is at least one: what is too much gives way to "…"
/// in the middle, so that the end of a path stays.
std::string shortened(std::string_view text, std::size_t width);

} // namespace zu::cli
