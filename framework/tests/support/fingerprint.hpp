#pragma once

#include <zu/any_value.hpp>

#include <string>

namespace zu {

/// A text that tells values apart, to see whether one was changed.
inline std::string fingerprint(const AnyReferenceBase& value)
{
    switch (value.kind()) {
    case TypeKind::Int:
        return value.holds<std::uint64_t>() ? std::to_string(*value.getIf<std::uint64_t>())
                                            : std::to_string(value.toInt());
    case TypeKind::Float:
        return std::to_string(value.toDouble());
    case TypeKind::String:
        return '"' + std::string(value.text()) + '"';
    case TypeKind::Raw:
        return 'r' + std::string(value.rawBuffer());
    case TypeKind::List:
    case TypeKind::VarArgs:
    case TypeKind::Map: {
        std::string text = "[";
        for (const AnyReference element : value)
            text += fingerprint(element) + ",";
        return text + "]";
    }
    case TypeKind::Tuple: {
        std::string text = "(";
        for (std::size_t i = 0; i != value.size(); ++i)
            text += fingerprint(value._element(i)) + ",";
        return text + ")";
    }
    case TypeKind::Dynamic:
    case TypeKind::Optional:
        return value.content().isEmpty() ? "<>" : "<" + fingerprint(value.content()) + ">";
    case TypeKind::Unknown:
    case TypeKind::Void:
    case TypeKind::Object:
    case TypeKind::Pointer:
    case TypeKind::Iterator:
    case TypeKind::Function:
    case TypeKind::Signal:
    case TypeKind::Property:
        break;
    }
    return value.isEmpty() ? "nothing" : value.type()->name();
}

} // namespace zu
