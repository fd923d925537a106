#pragma once

#include <zupackage/package_info.hpp>

#include <string>

namespace zu::test {

/// Within a property: makes less than `most` small edits to the package, of any field, entry or order, with few
/// different texts, so that two edited packages often meet.
void editAnything(PackageInfo& package, int most);

/// Within a property: a package of some of those edits.
PackageInfo anySmallPackage();

/// Everything that the package holds once it was written to a manifest and read again.
std::string asManifestsCarry(const PackageInfo& package);

} // namespace zu::test
