#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::check {

/// A text of the document as messages show it: in double quotes, at most 60 characters of it, without what could steer
/// a terminal (control characters and those that turn the direction of writing stand as U+FFFD).
std::string inQuotes(std::string_view text);

/// "a, b or c"
std::string alternatives(const std::vector<std::string>& texts);

/// The candidate that `text` is most probably a slip of; empty when none is near.
std::string_view nearest(std::string_view text, const std::vector<std::string_view>& candidates);

/// "; did you mean "nearest"?"; empty when there is none.
std::string didYouMean(std::string_view nearest);

/// Whether there is nothing but the white space of XML.
bool isBlank(std::string_view text);

/// The text without the white space of XML around it.
std::string_view trimmed(std::string_view text);

} // namespace zupackage::check
