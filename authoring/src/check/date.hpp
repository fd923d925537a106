#pragma once

#include <string_view>

namespace zupackage::check {

/// Whether the text is a day that there is, as year, month and day of four, two and two digits: "2026-09-12".
bool isDate(std::string_view text);

} // namespace zupackage::check
