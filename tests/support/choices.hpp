#pragma once

#include <cstddef>
#include <rapidcheck.h>
#include <string>
#include <vector>

/// What generators are made of that build texts piece by piece.
namespace zu::test {

using Choices = std::vector<std::string>;

/// A number from 0 to `most`, however small the input is.
inline int upTo(int most) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, most + 1)); }

inline const std::string& oneOf(const Choices& choices)
{
    return choices[static_cast<std::size_t>(upTo(static_cast<int>(choices.size()) - 1))];
}

} // namespace zu::test
