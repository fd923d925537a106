#pragma once

#include <string>

namespace zu {
struct PackageInfoPrivate;
}

namespace zupackage {

/// The manifest of a package as it stands in a file.
std::string manifestFileOf(const zu::PackageInfoPrivate& package);

} // namespace zupackage
