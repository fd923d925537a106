#pragma once

#include <string>
#include <string_view>

namespace zupackage::authoring {

/// The text, which is UTF-8, as a manifest carries it: with U+FFFD for what XML cannot, and without byte order marks
/// before it.
std::string carriable(std::string_view text);

/// The text without byte order marks before it.
std::string_view withoutByteOrderMarks(std::string_view text);

} // namespace zupackage::authoring
