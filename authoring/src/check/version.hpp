#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace zupackage::check {

/// A version in its parts: "1.12.0-beta.2+7" has the numbers 1, 12 and 0, and the pre-release "beta.2".
struct Version
{
    std::vector<std::string_view> numbers; ///< at least one, of any length, without leading zeros
    std::string_view preRelease;           ///< empty for a release
};

/// Numbers parted by dots, then, each where it is wanted, a hyphen and a pre-release, a plus sign and a build.
/// @return nothing for another text. The parts refer to `text`.
std::optional<Version> parseVersion(std::string_view text);

/// Whether `left` comes before `right`: number by number, a missing one being 0; a pre-release before its release;
/// pre-releases by their parts, of which numbers come before words.
bool isBefore(const Version& left, const Version& right);

} // namespace zupackage::check
