#pragma once

#include "command.hpp"

#include <string>
#include <vector>

namespace zu::cli {

/// What was named or found and cannot be looked into.
struct SearchFailure
{
    std::string path;
    std::string message; ///< a clause that names the path: "cannot search a/b: Permission denied"
};

/// What the sources on a command line stand for.
struct FoundManifests
{
    std::vector<std::string> paths;
    std::vector<SearchFailure> failures;
};

/// The manifests that a user names: a file or "-" is one itself, a folder stands for every "manifest.xml" in it at any
/// depth, sorted by path. Hidden folders are left out. Links to folders are followed, each folder is searched once and
/// under its own path where it has one in the source; a link to a folder that holds the source is left out.
///
/// Failures are a folder without any manifest, folders that cannot be read, links of which cannot be told whether they
/// lead to folders, and what is called "manifest.xml" in a folder and is a pipe, a socket or a device.
FoundManifests searchManifests(const std::vector<std::string>& sources);

/// The manifests that all of the sources stand for. A failure of the search is an error of input, which standard error
/// tells.
/// @param result becomes worse then.
std::vector<std::string> manifestsIn(const std::vector<std::string>& sources, ExitCode& result);

} // namespace zu::cli
