#pragma once

#include <zu/type/type_interface.hpp>

#include <string_view>

namespace zu {

/// Byte strings; UTF-8 by convention, zero bytes allowed.
class ZU_EXPORT StringTypeInterface : public TypeInterface
{
public:
    ~StringTypeInterface() override;

    /// The text; valid until the value is changed.
    virtual std::string_view get(const void* value) const = 0;

    /// Whether values only refer to a text that is kept elsewhere. Such a value is read; it is not set to another text,
    /// and AnyValue holds a std::string in its place.
    virtual bool isView() const noexcept;

    /// Replaces the text, which may be a part of the old one. When it throws, the value is as it was.
    virtual void set(void* value, std::string_view text) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit StringTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::String, wordSize)
    {
    }
};

} // namespace zu
