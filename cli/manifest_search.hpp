#pragma once

#include "command.hpp"

#include <string>
#include <vector>

namespace zu::cli {

/// The manifests that a user names: a file or "-" is one itself, a folder stands for every "manifest.xml" in it at any
/// depth, sorted by path. Hidden folders are left out, links to folders are not followed.
/// @return an empty list for a folder without any.
std::vector<std::string> findManifests(const std::string& source);

/// The manifests that all of the sources stand for. A folder without any is an error of input, which standard error
/// tells.
/// @param result becomes worse then.
std::vector<std::string> manifestsIn(const std::vector<std::string>& sources, ExitCode& result);

} // namespace zu::cli
