#include "reference.hpp"

#include "characters.hpp"

namespace zupackage::authoring {

namespace {

/// The value of a digit; 16 when it is none.
unsigned digit(char c)
{
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A') + 10;
    return 16;
}

Reference numberedAt(std::size_t at, std::string_view utf8)
{
    constexpr char32_t k_tooLarge = 0x110000;
    const Reference broken{ReferenceKind::Broken, at + 1, 0, {}};
    const bool isHexadecimal = at + 2 < utf8.size() && utf8[at + 2] == 'x';
    const unsigned base = isHexadecimal ? 16 : 10;
    const std::size_t digits = at + (isHexadecimal ? 3 : 2);
    char32_t codePoint = 0;
    std::size_t end = digits;
    for (; end < utf8.size() && digit(utf8[end]) < base; ++end)
        codePoint = codePoint >= k_tooLarge ? k_tooLarge : codePoint * base + digit(utf8[end]);
    if (end == digits || end == utf8.size() || utf8[end] != ';')
        return broken;
    return {isAllowed(codePoint) ? ReferenceKind::Character : ReferenceKind::Forbidden, end + 1, codePoint, {}};
}

} // namespace

Reference referenceAt(std::size_t at, std::string_view utf8)
{
    struct Predefined
    {
        std::string_view name;
        char32_t codePoint;
    };
    constexpr Predefined k_predefined[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

    if (at + 1 < utf8.size() && utf8[at + 1] == '#')
        return numberedAt(at, utf8);
    const std::size_t end = nameEnd(at + 1, utf8);
    if (end == at + 1 || end == utf8.size() || utf8[end] != ';')
        return {ReferenceKind::Broken, at + 1, 0, {}};
    const std::string_view name = utf8.substr(at + 1, end - at - 1);
    for (const Predefined& predefined : k_predefined)
        if (predefined.name == name)
            return {ReferenceKind::Character, end + 1, predefined.codePoint, {}};
    return {ReferenceKind::Entity, end + 1, 0, name};
}

} // namespace zupackage::authoring
