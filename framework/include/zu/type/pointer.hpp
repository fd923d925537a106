#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Whether a pointer shares the ownership of what it points to.
enum class PointerKind : int
{
    Raw,   ///< a T*
    Shared ///< a std::shared_ptr or boost::shared_ptr
};

/// Raw and shared pointers.
class ZU_EXPORT PointerTypeInterface : public TypeInterface
{
public:
    ~PointerTypeInterface() override;

    /// The same for all values of the type.
    virtual PointerKind pointerKind() const noexcept = 0;

    /// The declared type of what is pointed to; never null, of kind Void where nothing is known of that, as behind a
    /// `void*`.
    virtual const TypeInterface* pointedType() const = 0;

    /// Where it points to; null for a null pointer.
    virtual const void* addressIn(const void* pointer) const = 0;

    /// What the pointer points to, by its declared type; an empty reference for a null pointer. For reading only when
    /// the pointer is one to const.
    virtual AnyReference dereference(const void* pointer) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit PointerTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Pointer, wordSize)
    {
    }
};

} // namespace zu
