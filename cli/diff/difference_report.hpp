#pragma once

#include <zupackage/authoring/package_difference.hpp>

#include <string>
#include <vector>

namespace zu::cli {

/// A manifest that could not be read.
struct UnreadableManifest
{
    std::string name;
    std::string reason;
};

/// What became of a manifest.
struct ManifestDifference
{
    std::string before; ///< as messages show it
    std::string after;
    std::vector<UnreadableManifest> unreadable; ///< nothing was compared when there is one
    bool isIdentical = false;                   ///< to the byte
    std::vector<authoring::PackageChange> changes;
};

/// In lines for people: one for each change, those for its texts behind it. Nothing for identical manifests; one line
/// where nothing of the package differs.
std::string textReport(const ManifestDifference& difference, bool isColoured);

/// As one JSON document.
std::string jsonReport(const ManifestDifference& difference);

} // namespace zu::cli
