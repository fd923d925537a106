#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Values that may be absent.
class ZU_EXPORT OptionalTypeInterface : public TypeInterface
{
public:
    ~OptionalTypeInterface() override;

    /// The type of the value, whether that is there or not; never null.
    virtual const TypeInterface* valueType() const = 0;

    /// The value, an empty reference when it is absent.
    virtual AnyReference value(void* optional) const = 0;

    /// Makes `value`, one of valueType(), the value; it may be left moved from.
    virtual void setMoved(void* optional, void* value) const = 0;

    /// Destroys the value; does nothing when it is absent.
    virtual void reset(void* optional) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit OptionalTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Optional, wordSize)
    {
    }
};

} // namespace zu
