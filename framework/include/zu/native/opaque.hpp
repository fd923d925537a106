#pragma once

#include <zu/any_iterator.hpp>
#include <zu/native/native.hpp>

namespace zu {

/// The base of interfaces of types that nothing more is known of.
class ZU_EXPORT UnknownTypeInterface : public TypeInterface
{
public:
    ~UnknownTypeInterface() override;

protected:
    explicit UnknownTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Unknown, wordSize)
    {
    }
};

namespace detail {

ZU_EXPORT const TypeInterface* makeVoidType();

template <class T>
class OpaqueType : public Native<T, UnknownTypeInterface>
{
};

} // namespace detail

template <class T, class>
struct NativeType : detail::MadeAs<detail::OpaqueType<T>>
{
};

template <>
struct NativeType<void>
{
    static const TypeInterface* make() { return detail::makeVoidType(); }
};

} // namespace zu
