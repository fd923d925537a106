#include "check/wording.hpp"

#include "ascii.hpp"
#include "characters.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace zupackage::check {

namespace {

std::size_t lengthOfCharacter(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return length;
}

/// Control characters of both blocks, and marks, embeddings, overrides and isolates of direction.
bool steersTerminal(std::string_view character)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    if (character.size() == 1)
        return byte(0) < 0x20 || byte(0) >= 0x7F;
    if (character.size() == 2)
        return byte(0) == 0xC2 && byte(1) < 0xA0;
    if (character.size() == 3 && byte(0) == 0xE2)
        return (byte(1) == 0x80 && ((byte(2) >= 0x8E && byte(2) <= 0x8F) || (byte(2) >= 0xA8 && byte(2) <= 0xAE))) ||
               (byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9);
    return false;
}

/// How many letters have to be inserted, removed, changed or swapped with their neighbour, whatever their case.
std::size_t distance(std::string_view left, std::string_view right)
{
    const std::size_t width = right.size() + 1;
    std::vector<std::size_t> beforeLast(width);
    std::vector<std::size_t> last(width);
    std::vector<std::size_t> row(width);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= left.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j < width; ++j) {
            const char a = ascii::lowered(left[i - 1]);
            const char b = ascii::lowered(right[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a == b ? 0 : 1)});
            if (i > 1 && j > 1 && a == ascii::lowered(right[j - 2]) && ascii::lowered(left[i - 2]) == b)
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.back();
}

} // namespace

std::string inQuotes(std::string_view text)
{
    constexpr int k_longest = 60;
    std::string result = "\"";
    for (int shown = 0; !text.empty(); ++shown) {
        if (shown == k_longest) {
            result += "…";
            break;
        }
        const std::string_view character = text.substr(0, lengthOfCharacter(text));
        result += steersTerminal(character) ? authoring::k_replacementCharacter : character;
        text.remove_prefix(character.size());
    }
    return result + "\"";
}

std::string alternatives(const std::vector<std::string>& texts)
{
    std::string result;
    for (std::size_t i = 0; i < texts.size(); ++i)
        result += (i == 0 ? "" : i + 1 == texts.size() ? " or " : ", ") + texts[i];
    return result;
}

std::string_view nearest(std::string_view text, const std::vector<std::string_view>& candidates)
{
    // Nobody mistypes more than a third of a word, and no name of ours is near a text of such a length.
    constexpr std::size_t k_longestName = 64;
    if (text.size() > k_longestName)
        return {};
    std::string_view result;
    std::size_t best = std::max<std::size_t>(1, text.size() / 3) + 1;
    for (const std::string_view candidate : candidates) {
        const std::size_t slips = distance(text, candidate);
        if (slips < best) {
            best = slips;
            result = candidate;
        }
    }
    return result;
}

std::string didYouMean(std::string_view nearest)
{
    return nearest.empty() ? std::string() : "; did you mean " + inQuotes(nearest) + "?";
}

} // namespace zupackage::check
