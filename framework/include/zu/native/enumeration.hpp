#pragma once

#include <zu/native/native.hpp>
#include <zu/type/int.hpp>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zu {

/// Specialised beside an enumeration, wherever it is used with the type system, this tells the names of its values:
///
///     template <>
///     struct zu::EnumSchema<paint::Colour>
///     {
///         static std::vector<Enumerator> describe()
///         {
///             return {{"Red", paint::Colour::Red}, {"Green", paint::Colour::Green}};
///         }
///     };
template <class T>
struct EnumSchema;

namespace detail {

template <class T, class = void>
inline constexpr bool isDescribedEnum = false;
template <class T>
inline constexpr bool isDescribedEnum<T, std::void_t<decltype(EnumSchema<T>::describe())>> = true;

/// Only an enumeration with a fixed underlying type is initialised from a number by braces.
template <class T, class = void>
inline constexpr bool hasFixedType = false;
template <class T>
inline constexpr bool hasFixedType<T, std::void_t<decltype(T{std::declval<std::underlying_type_t<T>>()})>> = true;

/// Whether a number has no bits besides those of the numbers of an enumeration, and a sign only if one of these has.
ZU_EXPORT bool isAmong(const std::vector<Enumerator>& enumerators, bool isSigned, std::int64_t number) noexcept;

template <class T>
class NativeEnum final : public Native<T, IntTypeInterface>
{
    using Number = std::underlying_type_t<T>;

public:
    NativeEnum()
    {
        if constexpr (isDescribedEnum<T>)
            m_enumerators = EnumSchema<T>::describe();
    }

    unsigned byteSize() const noexcept override { return std::is_same_v<Number, bool> ? 0 : sizeof(T); }
    bool isSigned() const noexcept override { return std::is_signed_v<Number>; }
    std::int64_t get(const void* value) const override { return static_cast<std::int64_t>(this->object(value)); }
    void set(void* value, std::int64_t number) const override { this->object(value) = static_cast<T>(number); }
    const std::vector<Enumerator>& enumerators() const noexcept override { return m_enumerators; }

    bool accepts(std::int64_t number) const noexcept override
    {
        return hasFixedType<T> || isAmong(m_enumerators, isSigned(), number);
    }

private:
    std::vector<Enumerator> m_enumerators;
};

} // namespace detail

template <class T>
struct NativeType<T, std::enable_if_t<std::is_enum_v<T>>> : detail::MadeAs<detail::NativeEnum<T>>
{
};

} // namespace zu
