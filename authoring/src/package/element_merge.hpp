#pragma once

#include "package/package_element.hpp"

#include <zupackage/authoring/package_merge.hpp>

#include <vector>

namespace zupackage::authoring {

/// Three elements put together, with one side of every conflict and with the other.
struct MergedElement
{
    PackageElement ours;
    PackageElement theirs;
    std::vector<zu::authoring::MergeConflict> conflicts;
};

/// Merges what two sides made of a package's root element.
MergedElement mergeElements(const PackageElement& base, const PackageElement& ours, const PackageElement& theirs);

} // namespace zupackage::authoring
