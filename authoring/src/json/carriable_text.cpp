#include "json/carriable_text.hpp"

#include "characters.hpp"

namespace zupackage::authoring {

std::string carriable(std::string_view text)
{
    while (text.substr(0, k_byteOrderMark.size()) == k_byteOrderMark)
        text.remove_prefix(k_byteOrderMark.size());
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool isNoncharacter = text.compare(i, 3, "\xEF\xBF\xBE") == 0 || text.compare(i, 3, "\xEF\xBF\xBF") == 0;
        if (isNoncharacter)
            i += 2;
        if (isNoncharacter || (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r'))
            result += k_replacementCharacter;
        else
            result += text[i];
    }
    return result;
}

} // namespace zupackage::authoring
