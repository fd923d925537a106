#pragma once

#include <string_view>

/// The codes that language tags are made of, in lower case, sorted and written one after the other without a gap.
/// The build writes their definitions from the system's iso-codes data.
namespace zupackage::check::codes {

extern const std::string_view k_languagesOfTwoLetters;   ///< ISO 639-1
extern const std::string_view k_languagesOfThreeLetters; ///< ISO 639-2, 639-3 and 639-5
extern const std::string_view k_scripts;                 ///< ISO 15924
extern const std::string_view k_countries;               ///< ISO 3166-1, two letters

} // namespace zupackage::check::codes
