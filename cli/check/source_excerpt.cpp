#include "check/source_excerpt.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace zu::cli {

namespace {

using authoring::SourceDocument;
using authoring::SourceRange;

struct Character
{
    std::string_view bytes;
    std::size_t width; ///< in columns of a terminal
};

std::size_t lengthOfCharacter(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return length;
}

char32_t codePointOf(std::string_view character)
{
    auto codePoint = static_cast<char32_t>(static_cast<unsigned char>(character[0]));
    if (character.size() > 1)
        codePoint &= 0x7FU >> character.size();
    for (std::size_t i = 1; i < character.size(); ++i)
        codePoint = codePoint << 6U | (static_cast<unsigned char>(character[i]) & 0x3FU);
    return codePoint;
}

/// What a terminal takes for a command, or for an order to write in the other direction.
bool steersTerminal(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0x200E && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

/// The scripts whose characters take two columns.
bool isWide(char32_t c)
{
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1F64F) || (c >= 0x20000 && c <= 0x3FFFD);
}

/// Characters that stand on the one before.
bool isCombining(char32_t c)
{
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x3099 && c <= 0x309A) || c == 0x200B || c == 0x200D ||
           (c >= 0xFE00 && c <= 0xFE0F);
}

Character shown(std::string_view bytes)
{
    const char32_t codePoint = codePointOf(bytes);
    if (codePoint == '\t')
        return {" ", 1};
    if (steersTerminal(codePoint))
        return {"\xEF\xBF\xBD", 1};
    return {bytes, isWide(codePoint) ? 2U : isCombining(codePoint) ? 0U : 1U};
}

/// The characters of `line` from number `first` on, at most `most` of them.
std::vector<Character> charactersOf(std::string_view line, std::size_t first, std::size_t most)
{
    std::vector<Character> characters;
    for (std::size_t number = 0; !line.empty() && characters.size() < most; ++number) {
        const std::string_view character = line.substr(0, lengthOfCharacter(line));
        line.remove_prefix(character.size());
        if (number >= first)
            characters.push_back(shown(character));
    }
    return characters;
}

} // namespace

std::string sourceExcerpt(const SourceDocument& document, const SourceRange& range)
{
    constexpr std::size_t k_before = 40;
    constexpr std::size_t k_longest = 100;
    const std::size_t column = range.begin.column - 1;
    const std::size_t first = column > k_longest - k_before ? column - k_before : 0;
    const std::vector<Character> characters = charactersOf(document.line(range.bytes.begin), first, k_longest);
    const std::size_t end = range.end.line == range.begin.line ? range.end.column - 1 : first + characters.size();

    std::string text(first > 0 ? "  …" : "  ");
    std::string marks(first > 0 ? "   " : "  ");
    for (std::size_t i = 0; i < characters.size(); ++i) {
        text.append(characters[i].bytes);
        const std::size_t at = first + i;
        const bool isMarked = at >= column && at < std::max(end, column + 1);
        marks.append(characters[i].width, !isMarked ? ' ' : at == column ? '^' : '~');
    }
    // What is missing is missing behind the last character.
    if (column >= first + characters.size())
        marks += '^';
    return text + "\n" + marks.substr(0, marks.find_last_not_of(' ') + 1) + "\n";
}

} // namespace zu::cli
