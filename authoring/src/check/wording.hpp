#pragma once

#include "white_space.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::check {

using authoring::isBlank;
using authoring::trimmed;

/// A text of the document as messages show it: in double quotes, at most 60 characters of it, without what could steer
/// a terminal (control characters and those that turn the direction of writing stand as U+FFFD).
std::string inQuotes(std::string_view text);

/// "a, b or c"
std::string alternatives(const std::vector<std::string>& texts);

/// The candidate that `text` is most probably a slip of; empty when none is near.
std::string_view nearest(std::string_view text, const std::vector<std::string_view>& candidates);

/// "; did you mean "nearest"?"; empty when there is none.
std::string didYouMean(std::string_view nearest);

} // namespace zupackage::check
