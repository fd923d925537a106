#pragma once

#include <zupackage/package_info.hpp>

#include <iosfwd>

namespace zu::test {

/// Prints a package text by text with the stream's own insertions, each line ended by std::endl.
void plainDump(std::ostream& out, const PackageInfo& package);

} // namespace zu::test
