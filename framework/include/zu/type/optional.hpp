#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Values that may be absent.
class ZU_EXPORT OptionalTypeInterface : public TypeInterface
{
public:
    ~OptionalTypeInterface() override;

    virtual const TypeInterface* valueType() const = 0;

    /// The value, an empty reference when it is absent.
    virtual AnyReference value(void* optional) const = 0;

    /// Makes `value`, one of valueType(), the value; it may be left moved from.
    virtual void setMoved(void* optional, void* value) const = 0;

    virtual void reset(void* optional) const = 0;

protected:
    explicit OptionalTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Optional, wordSize)
    {
    }
};

} // namespace zu
