#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zu::cli {

/// More of a title, or of a text in a list, nobody reads there.
inline constexpr std::size_t k_longestTitle = 300;

/// The text, or so many characters of it with an ellipsis as the last. Characters that stand on the one before are
/// characters, too.
std::string shortText(std::string_view text, std::size_t characters = k_longestTitle);

} // namespace zu::cli
