#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::edit {

/// Whether a piece of a document has references.
enum class References : std::uint8_t
{
    Resolved,
    None ///< as in CDATA sections
};

/// Where a character of a source ends, there and in what it says. It may be a reference there.
struct Token
{
    std::size_t sourceEnd;
    std::size_t valueEnd;
};

/// The characters of a source, and what they say together.
struct Tokens
{
    std::vector<Token> ends;
    std::string value;
};

/// As the package library's reader takes them: line ends and other white space stay what they are.
Tokens tokensOf(std::string_view source, References references);

/// From where to where two values differ, and what stands there in the source of the first.
struct Difference
{
    std::size_t sourceBegin;
    std::size_t sourceEnd;
    std::size_t valueBegin; ///< in the second value
    std::size_t valueEnd;   ///< in the second value
};

Difference differenceOf(const Tokens& tokens, std::string_view value);

} // namespace zupackage::edit
