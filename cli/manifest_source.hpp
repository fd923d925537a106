#pragma once

#include <zupackage/package_info.hpp>

#include <string>

namespace zu::cli {

/// Reads a manifest into `package` from what the user named: a file, a folder (its manifest.xml) or "-" (standard
/// input).
/// @return false when it could not be read; the library has written why to the log then.
bool loadManifestFrom(const std::string& source, PackageInfo& package);

/// "line 3, column 7: tag mismatch", for messages.
std::string wordsOf(const ManifestSyntaxError& error);

} // namespace zu::cli
