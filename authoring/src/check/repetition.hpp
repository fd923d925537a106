#pragma once

#include "check/findings.hpp"

#include <string>

namespace zupackage::check {

/// What becomes of a repeated entry.
enum class Fate
{
    FirstCounts, ///< the later ones are dropped
    LastCounts,  ///< the earlier ones are overwritten
    BothCount
};

/// Says that the two are one, and takes away the one that does not count.
void reportPair(const Checked& checked, Findings& findings, SourceNode earlier, SourceNode later, Fate fate,
                const std::string& what);

} // namespace zupackage::check
