#pragma once

#include <zu/native/native.hpp>
#include <zu/type/unknown.hpp>

namespace zu {

namespace detail {

ZU_EXPORT const TypeInterface* makeVoidType();

template <class T>
class OpaqueType : public Native<T, UnknownTypeInterface>
{
};

} // namespace detail

/// The type of no values.
template <>
struct NativeType<void>
{
    /// An interface of kind Void: there is no value, and no address of one.
    static const TypeInterface* make() { return detail::makeVoidType(); }
};

} // namespace zu
