#pragma once

#include <zu/native/list.hpp>

#include <array>

namespace zu {

namespace detail {

template <class T>
class NativeArray final : public NativeList<T, ListTypeInterface>
{
public:
    bool hasFixedSize() const noexcept override { return true; }
    bool append(void*, const void*) const override { return false; }
};

} // namespace detail

template <class T, std::size_t size>
struct NativeType<std::array<T, size>> : detail::MadeAs<detail::NativeArray<std::array<T, size>>>
{
};

} // namespace zu
