#pragma once

#include <string>
#include <string_view>

namespace zu::cli {

/// Text as a line of a manual page shows it: nothing in it is taken for a request of the formatter.
std::string roff(std::string_view text);

/// The first line of a manual page.
std::string roffTitle(const std::string& name, int section, const std::string& version);

} // namespace zu::cli
