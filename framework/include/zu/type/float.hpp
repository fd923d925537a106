#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Floating-point numbers of single (4 bytes) or double precision (8 bytes).
class ZU_EXPORT FloatTypeInterface : public TypeInterface
{
public:
    ~FloatTypeInterface() override;

    /// Bytes of a value: 4 or 8.
    virtual unsigned byteSize() const noexcept = 0;

    /// The number, which a double holds without loss.
    virtual double get(const void* value) const = 0;

    /// Stores the nearest number of the type; the caller knows that `number` is within its range or not finite.
    virtual void set(void* value, double number) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit FloatTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Float, wordSize)
    {
    }
};

} // namespace zu
