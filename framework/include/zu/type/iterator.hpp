#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Positions in a container. A position knows the end of its range, so that going beyond it is an error and not a
/// crash.
class ZU_EXPORT IteratorTypeInterface : public TypeInterface
{
public:
    ~IteratorTypeInterface() override;

    /// The element at the position. Throws std::out_of_range at the end.
    virtual AnyReference dereference(void* iterator) const = 0;

    /// Goes to the next position. Throws std::out_of_range at the end.
    virtual void next(void* iterator) const = 0;

    /// Whether both stand at the same position of one range.
    virtual bool equals(const void* a, const void* b) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit IteratorTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Iterator, wordSize)
    {
    }
};

} // namespace zu
