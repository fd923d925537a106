#pragma once

#include <zu/native/native.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/value/any_value.hpp>

namespace zu {

namespace detail {

/// An AnyValue as a value of its own: what it is set to is copied into it as it is, nothing is converted.
class ZU_EXPORT NativeAnyValue final : public Native<AnyValue, DynamicTypeInterface>
{
public:
    AnyReference get(void* value) const override;
    void set(void* value, const AnyReference& source) const override;
};

/// An AnyReference as a value of its own: setting it rebinds it, to what must then outlive it.
class ZU_EXPORT NativeAnyReference final : public Native<AnyReference, DynamicTypeInterface>
{
public:
    AnyReference get(void* value) const override;
    void set(void* value, const AnyReference& source) const override;
    bool ownsContent() const noexcept override;
};

} // namespace detail

template <>
struct NativeType<AnyValue> : detail::MadeAs<detail::NativeAnyValue>
{
};
template <>
struct NativeType<AnyReference> : detail::MadeAs<detail::NativeAnyReference>
{
};

} // namespace zu
