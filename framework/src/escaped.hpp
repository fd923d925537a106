#pragma once

#include <string>
#include <string_view>

namespace zu::detail {

/// Appends a text such that it cannot steer a terminal: control characters but for the tab, characters that override or
/// isolate the direction of what follows, and bytes that are no UTF-8 are written as escapes ("\n", "\x1b", "\u202e").
/// All else stays as it is, but for a backslash before each of the characters `alsoEscaped`.
void appendEscaped(std::string& line, std::string_view text, std::string_view alsoEscaped = {});

} // namespace zu::detail
