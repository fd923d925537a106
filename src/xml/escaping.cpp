#include "xml/escaping.hpp"

#include <array>
#include <cstdint>

namespace zupackage::xml {

namespace {

using Byte = unsigned char;

constexpr std::string_view k_byteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view k_replacementCharacter = "\xef\xbf\xbd";

constexpr std::uint8_t bit(Place place) { return static_cast<std::uint8_t>(1U << static_cast<unsigned>(place)); }

using Places = std::array<std::uint8_t, 256>;

/// For each byte, the places where it may have to be replaced.
constexpr Places makeSpecialPlaces()
{
    constexpr std::uint8_t everywhere = bit(Place::Content) | bit(Place::AttributeValue) | bit(Place::CData);
    constexpr std::uint8_t outsideCData = bit(Place::Content) | bit(Place::AttributeValue);
    Places places{};
    for (std::size_t byte = 0; byte < places.size(); ++byte)
        if (byte < 0x20 || byte >= 0x80)
            places[byte] = everywhere;
    places['<'] = places['&'] = places['\r'] = outsideCData;
    places['"'] = places['\t'] = places['\n'] = bit(Place::AttributeValue);
    places['>'] = everywhere;
    return places;
}

constexpr Places k_specialPlaces = makeSpecialPlaces();

Byte byteAt(std::string_view text, std::size_t at) { return static_cast<Byte>(text[at]); }

/// The length of the well-formed UTF-8 sequence at `at`, where a byte beyond ASCII stands; 0 when there is none.
std::size_t sequenceLength(std::string_view text, std::size_t at)
{
    const Byte lead = byteAt(text, at);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - at < length)
        return 0;
    // Neither overlong forms nor surrogates nor what lies beyond U+10FFFF.
    const Byte lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const Byte highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    const Byte second = byteAt(text, at + 1);
    if (second < lowest || second > highest)
        return 0;
    for (std::size_t i = 2; i < length; ++i)
        if ((byteAt(text, at + i) & 0xC0) != 0x80)
            return 0;
    return length;
}

bool isNoncharacter(std::string_view sequence) { return sequence == "\xef\xbf\xbe" || sequence == "\xef\xbf\xbf"; }

bool endsCData(std::string_view text, std::size_t at)
{
    return at >= 2 && text[at - 1] == ']' && text[at - 2] == ']' && text[at] == '>';
}

std::string_view replacementOf(char c, Place place)
{
    switch (c) {
    case '<':
        return "&lt;";
    case '>':
        return place == Place::CData ? "]]><![CDATA[>" : "&gt;";
    case '&':
        return "&amp;";
    case '"':
        return "&quot;";
    case '\t':
        return "&#x9;";
    case '\n':
        return "&#xa;";
    case '\r':
        return "&#xd;";
    default:
        return k_replacementCharacter;
    }
}

struct Character
{
    std::size_t length;
    bool stays; ///< as it is
};

/// The character at `at`, whose first byte is a special one.
Character characterAt(std::string_view text, std::size_t at)
{
    if (byteAt(text, at) < 0x80)
        return {1, text[at] == '>' && !endsCData(text, at)};
    const std::size_t length = sequenceLength(text, at);
    if (length == 0)
        return {1, false};
    return {length, !isNoncharacter(text.substr(at, length))};
}

} // namespace

void appendEscaped(std::string& document, std::string_view text, Place place)
{
    if (text.substr(0, k_byteOrderMark.size()) == k_byteOrderMark)
        text.remove_prefix(k_byteOrderMark.size());
    std::size_t copied = 0;
    for (std::size_t at = 0; at < text.size();) {
        if ((k_specialPlaces[byteAt(text, at)] & bit(place)) == 0) {
            ++at;
            continue;
        }
        const auto [length, stays] = characterAt(text, at);
        if (!stays) {
            document.append(text, copied, at - copied).append(replacementOf(text[at], place));
            copied = at + length;
        }
        at += length;
    }
    document.append(text, copied);
}

} // namespace zupackage::xml
