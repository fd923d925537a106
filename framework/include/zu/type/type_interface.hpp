#pragma once

#include <zu/forward.hpp>
#include <zu/type_info.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace zu {

/// What can be done with a value, whatever its C++ type. The numbers are part of the interface.
enum class TypeKind : int
{
    Unknown = 0,   ///< can be copied and destroyed, nothing else
    Void = 1,      ///< no value at all
    Int = 2,       ///< IntTypeInterface: whole numbers, bool, enumerations
    Float = 3,     ///< FloatTypeInterface
    String = 4,    ///< StringTypeInterface
    List = 5,      ///< ListTypeInterface
    Map = 6,       ///< MapTypeInterface
    Object = 7,    ///< ObjectTypeInterface
    Pointer = 8,   ///< PointerTypeInterface
    Tuple = 9,     ///< StructTypeInterface: structs, pairs, tuples
    Dynamic = 10,  ///< DynamicTypeInterface: holds a value of some other type
    Raw = 11,      ///< RawTypeInterface: bytes; the number 12 is not used
    Iterator = 13, ///< IteratorTypeInterface
    Function = 14, ///< FunctionTypeInterface
    Signal = 15,   ///< SignalTypeInterface
    Property = 16, ///< PropertyTypeInterface
    VarArgs = 17,  ///< VarArgsTypeInterface: read like a list
    Optional = 18  ///< OptionalTypeInterface: a value or none
};

/// The name of a kind ("Int"); empty for a number that is no kind.
ZU_EXPORT std::string_view kindName(TypeKind kind) noexcept;

/// How values of one C++ type are handled through `void*`; the base of the interface of every kind.
///
/// An interface lives as long as the process once it was handed to the registry or out of typeOf(): nobody deletes it,
/// and the library whose code it is must stay loaded. It has no state that changes, so that it is used from any thread.
/// Who implements one claims a kind by deriving from the interface of that kind (Unknown and Void have none).
/// The pointers given to the operations are never null, unless the kind is Void, and point to values of the type.
class ZU_EXPORT TypeInterface
{
public:
    TypeInterface(const TypeInterface&) = delete;
    TypeInterface& operator=(const TypeInterface&) = delete;
    virtual ~TypeInterface();

    /// What types are to be compared by: there may be several interfaces of one type.
    const TypeInfo& info() const noexcept { return m_info; }

    /// Tells which interface of a kind this one can be cast to.
    TypeKind kind() const noexcept { return m_kind; }

    /// The size of a value that AnyValue may hold in place, copied as bytes; 0 when values are held by pointer.
    std::size_t wordSize() const noexcept { return m_wordSize; }

    /// What people call the type: the class name of a registered struct, else the demangled name.
    virtual std::string name() const;

    /// A new default value on the heap, to be given to destroy(); null when there can be none. Throws std::bad_alloc.
    /// Either failure is logged as an error "initializeStorage error on " + name() to the category "zutype.bypointer".
    virtual void* initializeStorage() const = 0;

    /// A new copy on the heap, to be given to destroy(). Throws what the copying throws, std::logic_error when the type
    /// cannot be copied.
    virtual void* clone(const void* value) const = 0;

    /// Like clone(), and may leave `value` moved from.
    virtual void* take(void* value) const;

    /// Destroys and frees what initializeStorage(), clone() or take() gave.
    virtual void destroy(void* value) const = 0;

    /// Copies `source` over `target`, which may be the same object.
    /// @return false, and nothing is done, when the type cannot be assigned.
    virtual bool assign(void* target, const void* source) const;

    /// Like assign(), and may leave `source` moved from.
    virtual bool assignMoved(void* target, void* source) const;

protected:
    /// For implementations. A `wordSize` other than 0 promises that values are of so many bytes, at most 8, that these
    /// may be copied to any place aligned to 8, and that nothing is to be done when such a copy goes.
    TypeInterface(const TypeInfo& info, TypeKind kind, std::size_t wordSize = 0)
        : m_info(info), m_kind(kind), m_wordSize(wordSize)
    {
    }

private:
    const TypeInfo m_info;
    const TypeKind m_kind;
    const std::size_t m_wordSize;
};

namespace detail {

/// Writes the record that initializeStorage() promises.
ZU_EXPORT void reportStorageFailure(const TypeInterface& type);

[[noreturn]] ZU_EXPORT void throwNotCopyable(const TypeInterface& type);

} // namespace detail
} // namespace zu
