#pragma once

#include <zu/native/native.hpp>
#include <zu/type/float.hpp>
#include <zu/type/int.hpp>

namespace zu {

namespace detail {

template <class T>
class NativeInt final : public Native<T, IntTypeInterface>
{
public:
    unsigned byteSize() const noexcept override { return std::is_same_v<T, bool> ? 0 : sizeof(T); }
    bool isSigned() const noexcept override { return std::is_signed_v<T>; }
    std::int64_t get(const void* value) const override { return static_cast<std::int64_t>(this->object(value)); }
    void set(void* value, std::int64_t number) const override { this->object(value) = static_cast<T>(number); }
};

template <class T>
class NativeFloat final : public Native<T, FloatTypeInterface>
{
public:
    unsigned byteSize() const noexcept override { return sizeof(T); }
    double get(const void* value) const override { return static_cast<double>(this->object(value)); }
    void set(void* value, double number) const override { this->object(value) = static_cast<T>(number); }
};

} // namespace detail

template <class T>
struct NativeType<T, std::enable_if_t<std::is_integral_v<T>>> : detail::MadeAs<detail::NativeInt<T>>
{
    static_assert(sizeof(T) <= sizeof(std::int64_t), "integers have at most 64 bits");
};
template <>
struct NativeType<float> : detail::MadeAs<detail::NativeFloat<float>>
{
};
template <>
struct NativeType<double> : detail::MadeAs<detail::NativeFloat<double>>
{
};

} // namespace zu
