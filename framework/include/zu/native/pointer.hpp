#pragma once

#include <zu/native/native.hpp>
#include <zu/type/pointer.hpp>
#include <zu/value/any_reference.hpp>

#include <memory>

namespace boost {
template <class T>
class shared_ptr;
}

namespace zu {

namespace detail {

template <class T, class = void>
inline constexpr bool isComplete = false;
template <class T>
inline constexpr bool isComplete<T, std::void_t<decltype(sizeof(T))>> = true;

/// What is known of what a pointer to T points to: nothing, as of void, where T is incomplete, an array or volatile.
template <class T>
using Pointee = std::conditional_t<isComplete<T> && !std::is_array_v<T> && !std::is_volatile_v<T>, T, void>;

template <class Pointer, class Pointee, PointerKind kind>
class NativePointer final : public Native<Pointer, PointerTypeInterface>
{
public:
    PointerKind pointerKind() const noexcept override { return kind; }
    const TypeInterface* pointedType() const override { return typeOf<Pointee>(); }
    const void* addressIn(const void* pointer) const override
    {
        const Pointer& typed = this->object(pointer);
        if constexpr (kind == PointerKind::Raw)
            return const_cast<const void*>(static_cast<const volatile void*>(typed));
        else
            return const_cast<const void*>(static_cast<const volatile void*>(typed.get()));
    }
    AnyReference dereference(const void* pointer) const override
    {
        const Pointer& typed = this->object(pointer);
        if (!typed)
            return AnyReference();
        if constexpr (std::is_void_v<Pointee>)
            return AnyReference(typeOf<void>(), nullptr); // nothing is known of what is there
        else
            return AnyReference::from(*typed);
    }
};

} // namespace detail

template <class T>
struct NativeType<T*, std::enable_if_t<!std::is_function_v<T>>>
    : detail::MadeAs<detail::NativePointer<T*, detail::Pointee<T>, PointerKind::Raw>>
{
};
template <class T>
struct NativeType<std::shared_ptr<T>>
    : detail::MadeAs<detail::NativePointer<std::shared_ptr<T>, detail::Pointee<T>, PointerKind::Shared>>
{
};
template <class T>
struct NativeType<boost::shared_ptr<T>>
    : detail::MadeAs<detail::NativePointer<boost::shared_ptr<T>, detail::Pointee<T>, PointerKind::Shared>>
{
};

} // namespace zu
