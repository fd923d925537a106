#include "characters.hpp"

#include <QtCore/QChar>

#include <algorithm>
#include <iterator>

namespace zupackage::authoring {

namespace {

constexpr bool isLetter(int c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

constexpr std::uint8_t classOf(int c)
{
    std::uint8_t classes = 0;
    const bool isBlank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (isLetter(c) || c == '_' || c == ':')
        classes |= BeginsName | ContinuesName;
    if ((c >= '0' && c <= '9') || c == '-' || c == '.')
        classes |= ContinuesName;
    if (isBlank)
        classes |= Blank;
    // 0xEF begins U+FFFE and U+FFFF, which are forbidden.
    const bool mayBeForbidden = (c < 0x20 && !isBlank) || c == 0xEF;
    if (mayBeForbidden || c == '<' || c == '&' || c == ']' || c == '\r')
        classes |= StopsText;
    if (mayBeForbidden || c == '<' || c == '&' || c == '"' || c == '\'' || (isBlank && c != ' '))
        classes |= StopsValue;
    return classes;
}

constexpr std::array<std::uint8_t, 256> byteClasses()
{
    std::array<std::uint8_t, 256> classes{};
    for (int c = 0; c < 256; ++c)
        classes[static_cast<std::size_t>(c)] = classOf(c);
    return classes;
}

struct Range
{
    char32_t first;
    char32_t last;
};

// Beyond ASCII. No parser of Qt knows a name beyond the basic plane.
constexpr Range k_nameStart[] = {{0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
                                 {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
                                 {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}};
constexpr Range k_nameRest[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t size>
bool isIn(const Range (&ranges)[size], char32_t c)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](Range range) { return range.first <= c && c <= range.last; });
}

bool beginsName(char32_t c)
{
    return isIn(k_nameStart, c) && (QChar::isLetter(c) || QChar::category(c) == QChar::Number_Letter);
}

bool continuesName(char32_t c)
{
    return beginsName(c) || ((isIn(k_nameStart, c) || isIn(k_nameRest, c)) && (QChar::isNumber(c) || QChar::isMark(c)));
}

} // namespace

const std::array<std::uint8_t, 256> k_byteClasses = byteClasses();

Character characterAt(std::size_t at, std::string_view utf8)
{
    const auto byte = [at, utf8](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(utf8[at + i]));
    };
    const auto rest = [&byte](std::size_t i) { return byte(i) & 0x3F; };
    const char32_t first = byte(0);
    if (first < 0x80)
        return {first, 1};
    if (first < 0xE0)
        return {(first & 0x1F) << 6 | rest(1), 2};
    if (first < 0xF0)
        return {(first & 0x0F) << 12 | rest(1) << 6 | rest(2), 3};
    return {(first & 0x07) << 18 | rest(1) << 12 | rest(2) << 6 | rest(3), 4};
}

void appendUtf8(char32_t codePoint, std::string& text)
{
    const auto byte = [](char32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    const auto rest = [&](int shift) { text += byte(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80) {
        text += byte(codePoint);
    } else if (codePoint < 0x800) {
        text += byte(0xC0 | codePoint >> 6);
        rest(0);
    } else if (codePoint < 0x10000) {
        text += byte(0xE0 | codePoint >> 12);
        rest(6);
        rest(0);
    } else {
        text += byte(0xF0 | codePoint >> 18);
        rest(12);
        rest(6);
        rest(0);
    }
}

bool isAllowed(char32_t codePoint)
{
    return codePoint < 0x20 ? codePoint == '\t' || codePoint == '\n' || codePoint == '\r'
                            : codePoint < 0xD800 || (codePoint > 0xDFFF && codePoint < 0xFFFE) ||
                                  (codePoint > 0xFFFF && codePoint <= 0x10FFFF);
}

std::size_t nameEnd(std::size_t at, std::string_view utf8)
{
    const std::size_t begin = at;
    while (at < utf8.size()) {
        if (isOf(at == begin ? BeginsName : ContinuesName, utf8[at])) {
            ++at;
            continue;
        }
        if (static_cast<unsigned char>(utf8[at]) < 0x80)
            break;
        const Character character = characterAt(at, utf8);
        if (!(at == begin ? beginsName(character.codePoint) : continuesName(character.codePoint)))
            break;
        at += character.size;
    }
    return at;
}

} // namespace zupackage::authoring
