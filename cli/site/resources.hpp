#pragma once

#include <string_view>

namespace zu::cli {

/// The style sheet of all pages: style.css beside this header.
extern const std::string_view k_style;
/// What searches and filters in the list of packages: script.js beside this header.
extern const std::string_view k_script;

} // namespace zu::cli
