#pragma once

#include <zupackage/package_info.hpp>

#include <rapidcheck.h>

namespace zu::test {

/// Texts full of markup, quotes, line ends, blanks and characters beyond the basic plane; empty ones, too.
rc::Gen<std::string> texts();

/// Those of texts() that are more than white space.
rc::Gen<std::string> visibleTexts();

/// Byte strings: beside what texts() has, control characters and bytes that are no UTF-8.
rc::Gen<std::string> byteStrings();

/// Packages with every attribute filled from `attributes` and the texts of every element from `contents`; empty keys
/// occur. Installer and path stay empty.
rc::Gen<PackageInfo> packages(const rc::Gen<std::string>& contents, const rc::Gen<std::string>& attributes = texts());

/// Everything that a package holds: its dump, and what the dump leaves out.
std::string describe(const PackageInfo& package);

} // namespace zu::test
