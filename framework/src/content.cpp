#include "content.hpp"

#include <zu/type/map.hpp>
#include <zu/type/pointer.hpp>
#include <zu/type/struct.hpp>

namespace zu::detail {

Group groupOf(const AnyReferenceBase& value)
{
    if (value.isEmpty())
        return Group::Nothing;
    switch (value.kind()) {
    case TypeKind::Void:
        return Group::Void;
    case TypeKind::Int:
    case TypeKind::Float:
        return Group::Number;
    case TypeKind::String:
        return Group::Text;
    case TypeKind::Raw:
        return Group::Raw;
    case TypeKind::List:
    case TypeKind::VarArgs:
        return Group::List;
    case TypeKind::Map:
        return Group::Map;
    case TypeKind::Tuple:
        return Group::Tuple;
    case TypeKind::Pointer:
        return Group::Pointer;
    case TypeKind::Unknown:
    case TypeKind::Object:
    case TypeKind::Dynamic:
    case TypeKind::Iterator:
    case TypeKind::Function:
    case TypeKind::Signal:
    case TypeKind::Property:
    case TypeKind::Optional:
        break;
    }
    return Group::Unreadable;
}

const void* pointeeOf(const AnyReferenceBase& pointer)
{
    return as<PointerTypeInterface>(pointer).addressIn(pointer.address());
}

std::string_view bytesInPlace(const AnyReferenceBase& value)
{
    return {static_cast<const char*>(value.address()), value.type()->wordSize()};
}

AnyReference memberAt(const AnyReferenceBase& tuple, std::size_t index)
{
    return as<StructTypeInterface>(tuple).element(const_cast<void*>(tuple.address()), index);
}

Entries entriesOf(const AnyReferenceBase& map)
{
    Entries entries;
    entries.reserve(map.size());
    const auto add = [](void* context, const AnyReference& key, const AnyReference& value) {
        static_cast<Entries*>(context)->emplace_back(key, value);
        return true;
    };
    as<MapTypeInterface>(map).forEach(map.address(), add, &entries);
    return entries;
}

} // namespace zu::detail
