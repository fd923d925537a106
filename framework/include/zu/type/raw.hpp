#pragma once

#include <zu/type/type_interface.hpp>

#include <string_view>

namespace zu {

/// Buffers of bytes that are no text.
class ZU_EXPORT RawTypeInterface : public TypeInterface
{
public:
    ~RawTypeInterface() override;

    /// Address and number of the bytes; valid until the value is changed. The address of an empty buffer may be null.
    virtual std::string_view get(const void* value) const = 0;

    /// Replaces the bytes, which may be a part of the old ones. When it throws, the value is as it was.
    virtual void set(void* value, std::string_view bytes) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit RawTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Raw, wordSize)
    {
    }
};

} // namespace zu
