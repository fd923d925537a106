#include "white_space.hpp"

#include "characters.hpp"

#include <QtCore/QChar>

#include <algorithm>

namespace zupackage::authoring {

namespace {

/// The size of the white space character that begins there; 0 when another one does, or bytes that are no character.
std::size_t whiteSpaceAt(std::size_t at, std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[at]);
    // No white space is beyond the basic plane.
    const std::size_t size = first < 0x80 ? 1 : first < 0xC2 || first >= 0xF0 ? 0 : first < 0xE0 ? 2 : 3;
    const std::string_view character = text.substr(at, size);
    if (size == 0 || character.size() < size ||
        !std::all_of(character.begin() + 1, character.end(), continuesCharacter))
        return 0;
    const char32_t codePoint = characterAt(0, character).codePoint;
    const bool isOverlong = size == 3 && codePoint < 0x800;
    return !isOverlong && QChar::isSpace(codePoint) ? size : 0;
}

/// Where the white space at the beginning ends.
std::size_t whiteSpaceEnd(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t size = whiteSpaceAt(end, text);
        if (size == 0)
            break;
        end += size;
    }
    return end;
}

/// How long the text is without the white space at its end.
std::size_t lengthWithoutEnd(std::string_view text)
{
    std::size_t length = text.size();
    while (length > 0) {
        std::size_t begin = length - 1;
        while (begin > 0 && continuesCharacter(text[begin]))
            --begin;
        if (whiteSpaceAt(begin, text) != length - begin)
            break;
        length = begin;
    }
    return length;
}

} // namespace

bool isBlank(std::string_view text) { return whiteSpaceEnd(text) == text.size(); }

std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(whiteSpaceEnd(text));
    return text.substr(0, lengthWithoutEnd(text));
}

} // namespace zupackage::authoring
