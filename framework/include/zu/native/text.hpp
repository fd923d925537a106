#pragma once

#include <zu/native/native.hpp>
#include <zu/type/raw.hpp>
#include <zu/type/string.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zu {

/// Bytes that are no text: what is of kind Raw out of the box.
using Buffer = std::vector<std::byte>;

namespace detail {

class NativeString final : public Native<std::string, StringTypeInterface>
{
public:
    std::string_view get(const void* value) const override { return object(value); }
    void set(void* value, std::string_view text) const override { object(value).assign(text.data(), text.size()); }
};

class ZU_EXPORT NativeStringView final : public Native<std::string_view, StringTypeInterface>
{
public:
    std::string_view get(const void* value) const override;
    bool isView() const noexcept override;

    /// Throws std::logic_error: there is nowhere to keep the text.
    void set(void* value, std::string_view text) const override;
};

class NativeBuffer final : public Native<Buffer, RawTypeInterface>
{
public:
    std::string_view get(const void* value) const override
    {
        const Buffer& buffer = object(value);
        return {reinterpret_cast<const char*>(buffer.data()), buffer.size()};
    }
    void set(void* value, std::string_view bytes) const override
    {
        const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
        object(value) = Buffer(first, first + bytes.size());
    }
};

} // namespace detail

template <>
struct NativeType<std::string> : detail::MadeAs<detail::NativeString>
{
};
template <>
struct NativeType<std::string_view> : detail::MadeAs<detail::NativeStringView>
{
};
template <>
struct NativeType<Buffer> : detail::MadeAs<detail::NativeBuffer>
{
};

} // namespace zu
