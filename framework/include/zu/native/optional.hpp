#pragma once

#include <zu/native/native.hpp>
#include <zu/type/optional.hpp>
#include <zu/value/any_reference.hpp>

#include <memory>
#include <optional>
#include <utility>

namespace zu {

namespace detail {

template <class T>
class NativeOptional final : public Native<std::optional<T>, OptionalTypeInterface>
{
public:
    const TypeInterface* valueType() const override { return typeOf<T>(); }
    AnyReference value(void* optional) const override
    {
        auto& typed = this->object(optional);
        return typed ? AnyReference::from(*typed) : AnyReference();
    }
    void setMoved(void* optional, void* value) const override
    {
        auto& typed = this->object(optional);
        if constexpr (!std::is_const_v<T>) {
            if (typed && valueType()->assignMoved(std::addressof(*typed), value)) // keeps the old value when it throws
                return;
        }
        if constexpr (std::is_move_constructible_v<T>)
            typed.emplace(std::move(*static_cast<std::remove_const_t<T>*>(value)));
        else
            throwNotCopyable(*valueType());
    }
    void reset(void* optional) const override { this->object(optional).reset(); }
};

} // namespace detail

template <class T>
struct NativeType<std::optional<T>> : detail::MadeAs<detail::NativeOptional<T>>
{
};

} // namespace zu
