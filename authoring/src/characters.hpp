#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Characters as XML 1.0 sees them, in UTF-8 that is valid.
namespace zupackage::authoring {

/// What a byte can be.
enum ByteClass : std::uint8_t
{
    BeginsName = 1,    ///< of ASCII characters alone
    ContinuesName = 2, ///< of ASCII characters alone
    Blank = 4,
    StopsText = 8,   ///< must be looked at in a text: markup, a reference, or what may be forbidden
    StopsValue = 16, ///< must be looked at in the value of an attribute
};

extern const std::array<std::uint8_t, 256> k_byteClasses;

inline bool isOf(std::uint8_t classes, char byte)
{
    return (k_byteClasses[static_cast<unsigned char>(byte)] & classes) != 0;
}

constexpr std::size_t k_byteOrderMarkSize = 3;
constexpr std::string_view k_byteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t k_replacementCodePoint = 0xFFFD;
constexpr std::string_view k_replacementCharacter = "\xEF\xBF\xBD"; ///< the same in UTF-8

struct Character
{
    char32_t codePoint;
    std::size_t size; ///< in bytes
};

/// Whether a byte is the second of a character or a later one.
inline bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The character that begins there.
Character characterAt(std::size_t at, std::string_view utf8);

void appendUtf8(char32_t codePoint, std::string& text);

/// Whether XML can carry the character.
bool isAllowed(char32_t codePoint);

/// Where the name that begins there ends; `at` when none does. Colons are part of it.
std::size_t nameEnd(std::size_t at, std::string_view utf8);

/// The position of the first character at or behind `at` that is no blank.
inline std::size_t afterBlanks(std::size_t at, std::string_view utf8)
{
    while (at < utf8.size() && isOf(Blank, utf8[at]))
        ++at;
    return at;
}

} // namespace zupackage::authoring
