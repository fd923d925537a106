#pragma once

#include "package/package_element.hpp"

#include <cstddef>
#include <optional>
#include <vector>

namespace zupackage::authoring {

/// The places of one entry in the lists of the three sides; nothing where it is not there.
struct MergedEntry
{
    std::optional<std::size_t> base;
    std::optional<std::size_t> ours;
    std::optional<std::size_t> theirs;
};

/// All entries of three lists, in the order that both sides agree on: ours, with what they alone moved or have behind
/// the entry that it follows on their side, and behind what we have added there.
std::vector<MergedEntry> mergedEntries(const std::vector<PackageElement>& base, const std::vector<PackageElement>& ours,
                                       const std::vector<PackageElement>& theirs);

} // namespace zupackage::authoring
