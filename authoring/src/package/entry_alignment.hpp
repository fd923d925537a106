#pragma once

#include "package/package_element.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace zupackage::authoring {

/// What stands for one entry in two lists.
struct AlignedEntry
{
    std::optional<std::size_t> before; ///< its place in the list before; nothing for one that is new
    std::optional<std::size_t> after;  ///< its place in the list after; nothing for one that is gone
    bool isMoved = false;              ///< against the order of those that are not
    bool tookPlace = false;            ///< nothing but its place makes it the one before
};

/// Which of the children of two elements of one kind are the same: by what identifies them, then speech languages of
/// one locale, then those that nothing identifies where they stand in the place of others. In the order of the second
/// list, with what is gone before what came into its place; moved are as few as possible.
std::vector<AlignedEntry> align(const std::vector<PackageElement>& before, const std::vector<PackageElement>& after);

/// Says what tells each entry from the others of a list: its element and identity, or its text and attributes, and how
/// many of the same were asked for before it.
class KeyCounter
{
public:
    std::string keyOf(const PackageElement& entry);

private:
    std::unordered_map<std::string, std::size_t> m_counts;
};

} // namespace zupackage::authoring
