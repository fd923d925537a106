#pragma once

#include <string_view>
#include <vector>

namespace zu::cli {

/// A line of both texts (' '), of the first alone ('-') or of the second alone ('+'), with its end.
struct LineStep
{
    char mark;
    std::string_view line;
};

/// The way from one text to the other, line by line. As few lines as can be differ, unless thousands do. Takes time in
/// proportion to the size where the texts are the same, and to its product with the number of different lines
/// elsewhere. The lines are those of the texts, which have to stay.
std::vector<LineStep> lineSteps(std::string_view before, std::string_view after);

} // namespace zu::cli
