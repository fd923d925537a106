#include "site/short_text.hpp"

namespace zu::cli {

std::string shortText(std::string_view text, std::size_t characters)
{
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    std::size_t end = 0; // of all characters but the last
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!begins(text[i]))
            continue;
        if (++count == characters)
            end = i;
        if (count > characters)
            return std::string(text.substr(0, end)) + "…";
    }
    return std::string(text);
}

} // namespace zu::cli
