#pragma once

#include <cstddef>
#include <string>

namespace zu::cli {

/// The words of a text in lines of at most `width` bytes, the last one ended, too; a longer word has a line of its own.
std::string wrapped(const std::string& text, std::size_t width);

} // namespace zu::cli
