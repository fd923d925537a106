#pragma once

#include <zu/type/type_interface.hpp>
#include <zu/value/any_reference.hpp>

namespace zu::detail {

/// The interface of a reference whose kind has been looked at.
template <class Interface>
const Interface& as(const AnyReferenceBase& reference)
{
    return static_cast<const Interface&>(*reference.type());
}

inline bool isListLike(TypeKind kind) { return kind == TypeKind::List || kind == TypeKind::VarArgs; }

inline bool isContainer(TypeKind kind) { return isListLike(kind) || kind == TypeKind::Map || kind == TypeKind::Tuple; }

/// Whether a value counts as what it holds.
inline bool isWrapper(TypeKind kind) { return kind == TypeKind::Dynamic || kind == TypeKind::Optional; }

} // namespace zu::detail
