#pragma once

#include <string>
#include <string_view>

namespace zu::cli {

/// What becomes of different lines that both sides added in one place.
enum class AddedByBoth
{
    OursStay,
    AllStand, ///< ours first
};

/// The lines of `ours` with what `theirs` made of those of `base`. Where both changed lines that are the same, or stand
/// next to each other, to different ones, those of `ours` stay: merged the other way round it is those of `theirs`.
std::string mergedLines(std::string_view base, std::string_view ours, std::string_view theirs, AddedByBoth added);

} // namespace zu::cli
