#pragma once

#include <zu/native/native.hpp>
#include <zu/type/optional.hpp>
#include <zu/value/any_reference.hpp>

#include <optional>

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
    void reset(void* optional) const override { this->object(optional).reset(); }
};

} // namespace detail

template <class T>
struct NativeType<std::optional<T>> : detail::MadeAs<detail::NativeOptional<T>>
{
};

} // namespace zu
