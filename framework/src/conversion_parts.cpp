#include "conversion_parts.hpp"

namespace zu::detail {

bool failForDefault(Conversion& conversion, const TypeInterface& type)
{
    return conversion.fail([&type] { return type.name() + " has no default value"; });
}

AnyReference unwrapped(AnyReference key)
{
    for (int depth = 0; key.kind() == TypeKind::Dynamic && depth < k_maxNesting; ++depth)
        key = key.content();
    return key;
}

std::string stepTo(std::size_t index) { return '[' + std::to_string(index) + ']'; }

std::string stepTo(const AnyReference& key, std::size_t index)
{
    const AnyReference plain = unwrapped(key);
    if (plain.kind() == TypeKind::String)
        return "[\"" + std::string(plain.text()) + "\"]";
    if (plain.kind() == TypeKind::Int)
        return '[' + std::to_string(plain.toInt()) + ']';
    return '{' + std::to_string(index) + '}';
}

} // namespace zu::detail
