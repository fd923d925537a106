#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Whether a pointer shares the ownership of what it points to.
enum class PointerKind : int
{
    Raw,
    Shared
};

/// Raw and shared pointers.
class ZU_EXPORT PointerTypeInterface : public TypeInterface
{
public:
    ~PointerTypeInterface() override;

    virtual PointerKind pointerKind() const noexcept = 0;
    virtual const TypeInterface* pointedType() const = 0;

    /// Where it points to; null for a null pointer.
    virtual const void* addressIn(const void* pointer) const = 0;

    /// What the pointer points to, by its declared type; an empty reference for a null pointer. For reading only when
    /// the pointer is one to const.
    virtual AnyReference dereference(const void* pointer) const = 0;

protected:
    explicit PointerTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Pointer, wordSize)
    {
    }
};

} // namespace zu
