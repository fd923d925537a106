#pragma once

#include <zu/type/type_interface.hpp>

#include <cstddef>

namespace zu {

/// Elements of one type in some order: sequences, arrays, sets.
class ZU_EXPORT ListTypeInterface : public TypeInterface
{
public:
    /// Given each element in turn; false ends the walk.
    using Visit = bool (*)(void* context, const AnyReference& element);

    ~ListTypeInterface() override;

    /// Never null; of kind Unknown for elements that nothing more is known of.
    virtual const TypeInterface* elementType() const = 0;

    /// The number of the elements; 0 for an empty list.
    virtual std::size_t size(const void* list) const = 0;

    /// Iterators hold what the container's own ones hold, and are invalidated with those.
    virtual AnyIterator begin(void* list) const = 0;

    /// The position behind the last element; equal to begin() when the list is empty.
    virtual AnyIterator end(void* list) const = 0;

    /// The element at `index`, which is less than size(). Takes time in proportion to it where the container does.
    virtual AnyReference element(void* list, std::size_t index) const = 0;

    /// Walks the elements without making iterators; they are for reading only.
    /// @return false when `visit` ended the walk.
    virtual bool forEach(const void* list, Visit visit, void* context) const = 0;

    /// Whether the number of elements never changes, as in an array.
    virtual bool hasFixedSize() const noexcept;

    /// Appends a copy of `element`, a value of elementType(); a set puts it at its place.
    /// @return false, and nothing is done, when the list takes no more or is a set that has the element.
    virtual bool append(void* list, const void* element) const = 0;

    /// Like append(), and may leave `element` moved from.
    virtual bool appendMoved(void* list, void* element) const;

    /// Puts `element`, which may be left moved from, before the one at `index`, at most size().
    /// @return false, and nothing is done, when the list has no such operation, as arrays and sets.
    virtual bool insertMoved(void* list, std::size_t index, void* element) const;

    /// Removes the element at `index`, which is less than size().
    /// @return false, and nothing is done, when the list has no such operation, as arrays.
    virtual bool erase(void* list, std::size_t index) const;

    /// Removes all elements.
    /// @return false, and nothing is done, when the list has no such operation, as arrays.
    virtual bool clear(void* list) const;

protected:
    /// For implementations, which say their wordSize().
    explicit ListTypeInterface(const TypeInfo& info, std::size_t wordSize = 0, TypeKind kind = TypeKind::List)
        : TypeInterface(info, kind, wordSize)
    {
    }
};

/// The arguments of a call that takes any number of them: a list of another kind.
class ZU_EXPORT VarArgsTypeInterface : public ListTypeInterface
{
public:
    ~VarArgsTypeInterface() override;

protected:
    /// For implementations, which say their wordSize().
    explicit VarArgsTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : ListTypeInterface(info, wordSize, TypeKind::VarArgs)
    {
    }
};

} // namespace zu
