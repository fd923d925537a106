#include "escaped.hpp"

#include <cstdint>

namespace zu::detail {

namespace {

/// A character of a text in UTF-8, or a byte that is none.
struct Character
{
    std::uint32_t number;
    std::size_t bytes;
    bool isValid = true;
};

unsigned char byteAt(std::string_view text, std::size_t at)
{
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

Character characterAt(std::string_view text, std::size_t at)
{
    const unsigned char first = byteAt(text, at);
    if (first < 0x80)
        return {first, 1};
    const std::size_t bytes = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    std::uint32_t number = first & (0x7fU >> bytes);
    bool isValid = first >= 0xc2 && first <= 0xf4;
    for (std::size_t i = 1; i != bytes; ++i) {
        isValid &= (byteAt(text, at + i) & 0xc0) == 0x80;
        number = number << 6 | (byteAt(text, at + i) & 0x3fU);
    }
    const bool isShortest = number >= (bytes == 4 ? 0x10000U : bytes == 3 ? 0x800U : 0x80U);
    const bool isCharacter = number <= 0x10ffff && (number < 0xd800 || number > 0xdfff);
    if (isValid && isShortest && isCharacter)
        return {number, bytes};
    return {first, 1, false};
}

/// The controls (C0, DEL, C1), and what overrides or isolates the direction of writing.
bool steers(std::uint32_t number)
{
    return (number < 0x20 && number != '\t') || (number >= 0x7f && number <= 0x9f) ||
           (number >= 0x202a && number <= 0x202e) || (number >= 0x2066 && number <= 0x2069);
}

void appendEscape(std::string& line, const Character& character)
{
    if (character.number == '\n') {
        line += "\\n";
        return;
    }
    if (character.number == '\r') {
        line += "\\r";
        return;
    }
    const bool isByte = character.bytes == 1;
    line += isByte ? "\\x" : "\\u";
    for (int shift = isByte ? 4 : 12; shift >= 0; shift -= 4)
        line += "0123456789abcdef"[character.number >> shift & 0xf];
}

} // namespace

void appendEscaped(std::string& line, std::string_view text, std::string_view alsoEscaped)
{
    line.reserve(line.size() + text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = characterAt(text, at);
        if (!character.isValid || steers(character.number)) {
            appendEscape(line, character);
        } else {
            if (alsoEscaped.find(text[at]) != std::string_view::npos)
                line += '\\';
            line += text.substr(at, character.bytes);
        }
        at += character.bytes;
    }
}

} // namespace zu::detail
