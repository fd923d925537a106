#pragma once

#include <string>
#include <string_view>

namespace zu::cli {

/// The difference of two texts in lines, in the form that `diff -u` has and `patch -p0` takes; empty when there is
/// none. As few lines as can be are marked, unless thousands differ. Takes time in proportion to the size where the
/// texts are the same, and to its product with the number of different lines elsewhere.
/// @param name what both texts are called, not empty; written as GNU diff does it where it has blanks or control
/// characters.
std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after);

} // namespace zu::cli
