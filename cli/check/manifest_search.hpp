#pragma once

#include <string>
#include <vector>

namespace zu::cli {

/// The manifests that a user names: a file or "-" is one itself, a folder stands for every "manifest.xml" in it at any
/// depth, sorted by path. Hidden folders are left out, links to folders are not followed.
/// @return an empty list for a folder without any.
std::vector<std::string> findManifests(const std::string& source);

} // namespace zu::cli
