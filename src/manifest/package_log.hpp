#pragma once

#include <zu/log.hpp>

namespace zupackage {

/// The log category "zu.package.info", made when the library is loaded.
zu::log::Category& packageInfoCategory();

/// The category of the errors of reading a package's manifest; those who watch it know it by this name.
inline constexpr std::string_view k_packageCategory = "zupackage";

/// The origin of the package records' log records. Those who filter them go by this file and by fixed function names,
/// whichever source they stand in now.
constexpr zu::log::Origin packageInfoOrigin(const char* function, int line)
{
    return {"src/package_info", function, line};
}

} // namespace zupackage
