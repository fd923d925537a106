#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zupackage::authoring {

enum class ReferenceKind : std::uint8_t
{
    Broken,    ///< an ampersand that begins none
    Character, ///< by number, or one of the five predefined entities
    Forbidden, ///< by the number of a character that XML cannot carry
    Entity
};

struct Reference
{
    ReferenceKind kind = ReferenceKind::Broken;
    std::size_t end = 0; ///< behind it; behind the ampersand of a broken one
    char32_t codePoint = 0;
    std::string_view name; ///< of an entity
};

/// What the ampersand begins that stands there.
Reference referenceAt(std::size_t at, std::string_view utf8);

} // namespace zupackage::authoring
