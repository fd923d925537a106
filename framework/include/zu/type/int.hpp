#pragma once

#include <zu/type/type_interface.hpp>

#include <cstdint>

namespace zu {

/// Whole numbers up to 64 bits, bool and enumerations.
class ZU_EXPORT IntTypeInterface : public TypeInterface
{
public:
    ~IntTypeInterface() override;

    /// Bytes of a value; 0 for bool.
    virtual unsigned byteSize() const noexcept = 0;
    virtual bool isSigned() const noexcept = 0;

    /// The value; of an unsigned type of 8 bytes its bits, to be cast to std::uint64_t.
    virtual std::int64_t get(const void* value) const = 0;

    /// Stores a number that the caller knows to be within the range of the type (in the form that get() gives).
    virtual void set(void* value, std::int64_t number) const = 0;

protected:
    explicit IntTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Int, wordSize)
    {
    }
};

} // namespace zu
