#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Floating-point numbers of single (4 bytes) or double precision (8 bytes).
class ZU_EXPORT FloatTypeInterface : public TypeInterface
{
public:
    ~FloatTypeInterface() override;

    virtual unsigned byteSize() const noexcept = 0;
    virtual double get(const void* value) const = 0;

    /// Stores the nearest number of the type; the caller knows that `number` is within its range or not finite.
    virtual void set(void* value, double number) const = 0;

protected:
    explicit FloatTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Float, wordSize)
    {
    }
};

} // namespace zu
