#include "check/source_excerpt.hpp"

#include "display_width.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace zu::cli {

namespace {

using authoring::SourceDocument;
using authoring::SourceRange;

/// The characters of `line` from number `first` on, at most `most` of them.
std::vector<DisplayedCharacter> charactersOf(std::string_view line, std::size_t first, std::size_t most)
{
    std::vector<DisplayedCharacter> characters;
    for (std::size_t number = 0; !line.empty() && characters.size() < most; ++number) {
        const DisplayedCharacter character = takeCharacter(line);
        if (number >= first)
            characters.push_back(character);
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
    const std::vector<DisplayedCharacter> characters = charactersOf(document.line(range.bytes.begin), first, k_longest);
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
