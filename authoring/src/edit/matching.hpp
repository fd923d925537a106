#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zupackage::edit {

/// Two lists of which one is to become the other, in terms of what tells their entries apart.
struct Lists
{
    std::vector<std::string> present;
    std::vector<std::string> wanted;
};

constexpr std::size_t k_none = static_cast<std::size_t>(-1);

/// What becomes an entry that is wanted.
struct Match
{
    std::size_t present = k_none; ///< k_none for a new one
    bool isKept = false;          ///< in its place; moved else
    bool isEqual = false;         ///< known to be; others may be, too
};

using Comparison = std::function<bool(std::size_t present, std::size_t wanted)>;

/// For each wanted entry what becomes it. Entries that are equal at both ends are matched first, then those that are
/// told apart alike; of these as many as can stay keep their places. What is left between two that stay is matched in
/// order where `isRenamed` says that one is the other under a new name.
std::vector<Match> matchLists(const Lists& lists, const Comparison& isEqual, const Comparison& isRenamed);

} // namespace zupackage::edit
