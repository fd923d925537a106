#include "json/carriable_text.hpp"

#include "characters.hpp"

namespace zupackage::authoring {

std::string carriable(std::string_view text)
{
    text = withoutByteOrderMarks(text);
    std::string result;
    result.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Character character = characterAt(at, text);
        if (!isAllowed(character.codePoint)) {
            result.append(text, copied, at - copied).append(k_replacementCharacter);
            copied = at + character.size;
        }
        at += character.size;
    }
    return result.append(text, copied);
}

std::string_view withoutByteOrderMarks(std::string_view text)
{
    while (text.substr(0, k_byteOrderMark.size()) == k_byteOrderMark)
        text.remove_prefix(k_byteOrderMark.size());
    return text;
}

} // namespace zupackage::authoring
