#pragma once

#include <zu/value/operators.hpp>
#include <zu/value/type_of.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace zu {

/// What AnyReference and AnyValue have in common: a type and the address of a value of it, and everything that only
/// reads the value. Made by those two alone.
///
/// Empty means: no type at all. What is asked of an empty reference, or of one whose kind does not fit the question,
/// throws std::runtime_error with a message that names the operation and the type.
class ZU_EXPORT AnyReferenceBase
{
public:
    bool isEmpty() const noexcept { return m_tagged == 0; } ///< whether there is no type

    /// The interface of the value, null when empty.
    const TypeInterface* type() const noexcept
    {
        return reinterpret_cast<const TypeInterface*>(m_tagged & ~k_readOnly); // NOLINT(performance-no-int-to-ptr)
    }

    /// The kind of the value; Unknown when empty.
    TypeKind kind() const noexcept { return isEmpty() ? TypeKind::Unknown : type()->kind(); }

    /// Null for the kind Void and when empty.
    const void* address() const noexcept { return m_address; }

    /// Whether references to parts of the value can be written through.
    bool isReadOnly() const noexcept { return (m_tagged & k_readOnly) != 0; }

    /// Whether the value is exactly of type T, as told by TypeInfo. No value is of a type of an anonymous namespace.
    template <class T>
    bool holds() const
    {
        using Native = std::remove_cv_t<std::remove_reference_t<T>>;
        return !isEmpty() && (type() == detail::typeSlot<Native>.ready() || isOf(TypeInfo::of<Native>()));
    }

    /// The address of the value when it is exactly of type T; else null.
    template <class T>
    const T* getIf() const
    {
        return holds<T>() ? static_cast<const T*>(m_address) : nullptr;
    }

    /// The value as a T: a copy when it is one, else converted (see conversion.hpp). Throws ConversionError when it
    /// does not convert.
    template <class T>
    T to() const;

    /// Like to(), but gives nothing instead of throwing for a value that does not convert.
    template <class T>
    std::optional<T> tryTo() const;

    std::int64_t toInt() const;   ///< to<std::int64_t>()
    double toDouble() const;      ///< to<double>()
    std::string toString() const; ///< to<std::string>(), which does not print numbers

    std::string_view text() const;      ///< the bytes of a value of kind String, in place
    std::string_view rawBuffer() const; ///< the bytes of a value of kind Raw, in place

    /// The number of elements of a list, a map or variable arguments, or of the members of a tuple.
    std::size_t size() const;

    /// The elements of a list or variable arguments, the entries of a map; as a pair these can be ranged over.
    AnyIterator begin() const;
    AnyIterator end() const; ///< behind the last one; equal to begin() where there are none

    /// The member of a struct that has a name. Throws std::out_of_range, with the names that there are, for any other.
    AnyReference member(std::string_view name) const;

    /// The value under a key of a map; empty when there is none, as for a key that does not convert to the map's.
    AnyReference find(const AnyArgument& key) const;

    /// The name of the value of an enumeration; empty when it has none (see EnumSchema).
    std::string_view enumName() const;

    /// By the content: see compare().
    std::size_t hash() const;

    /// Member `index` of a tuple (of a map's entry: 0 the key, 1 the value), element `index` of a list or variable
    /// arguments. Throws std::out_of_range when there are not as many.
    AnyReference _element(std::size_t index) const;

    /// What is held by a dynamic, a pointer or an optional; empty when it holds nothing. Takes one step: the content
    /// may be such a value itself.
    AnyReference content() const;

protected:
    /// @cond
    static constexpr std::uintptr_t k_readOnly = 1;

    AnyReferenceBase() noexcept = default;
    AnyReferenceBase(const TypeInterface* type, void* address, bool readOnly) noexcept
        : m_tagged(type ? reinterpret_cast<std::uintptr_t>(type) | (readOnly ? k_readOnly : 0) : 0), m_address(address)
    {
    }
    AnyReferenceBase(const AnyReferenceBase&) noexcept = default;
    AnyReferenceBase& operator=(const AnyReferenceBase&) noexcept = default;
    ~AnyReferenceBase() = default;

    /// A type's address with k_readOnly in its lowest bit, which is free: interfaces are aligned to words.
    std::uintptr_t m_tagged = 0;
    void* m_address = nullptr;
    /// @endcond

private:
    bool isOf(const TypeInfo& info) const { return type()->info() == info && !info.isAnonymous(); }
};

/// A type and the address of a value that somebody else owns and that must outlive the reference: two words, copied
/// freely. Copying and assigning rebind the reference; set() writes to the value. Writing through a reference that is
/// for reading only throws std::runtime_error. Threads may share the value as the value itself allows.
class ZU_EXPORT AnyReference : public AnyReferenceBase
{
public:
    /// Empty.
    AnyReference() noexcept = default;

    /// Throws std::invalid_argument for a null address, unless `type` is of kind Void, and for a null type.
    AnyReference(const TypeInterface* type, void* address) : AnyReferenceBase(type, address, false)
    {
        if (!type || (!address && type->kind() != TypeKind::Void))
            refuse(type);
    }

    /// The same, for reading only.
    AnyReference(const TypeInterface* type, const void* address) : AnyReference(type, const_cast<void*>(address))
    {
        m_tagged |= k_readOnly;
    }

    /// A value of kind Void. Throws std::invalid_argument for any other kind.
    AnyReference(const TypeInterface* type, std::nullptr_t) : AnyReference(type, static_cast<void*>(nullptr)) {}

    /// A reference to what an AnyValue holds is for reading only; AnyValue::reference() gives one to write through.
    explicit AnyReference(const AnyReferenceBase& other) noexcept : AnyReferenceBase(other) {}

    /// A reference to `object`, for reading only when that is const. The type is the declared one: of an AnyValue it is
    /// AnyValue, not what that holds.
    template <class T>
    static AnyReference from(T& object)
    {
        static_assert(!std::is_volatile_v<T>, "volatile objects cannot be referred to");
        static_assert(!std::is_array_v<T>, "an array has no type interface; refer to a std::string or a std::vector");
        return AnyReference(typeOf<T>(), std::addressof(object));
    }
    template <class T>
    static AnyReference from(const T&& temporary) = delete;

    /// The same reference, for reading only.
    AnyReference readOnly() const noexcept
    {
        AnyReference reference = *this;
        if (!isEmpty())
            reference.m_tagged |= k_readOnly;
        return reference;
    }

    /// The address to write to. Throws std::runtime_error when the reference is empty or for reading only.
    void* writableAddress() const;

    /// The address of the value when it is exactly of type T and may be written to; else null.
    template <class T>
    T* getMutableIf() const
    {
        return !isReadOnly() && this->template holds<T>() ? static_cast<T*>(m_address) : nullptr;
    }

    /// Sets the value to `source` converted to its type. Throws ConversionError when it does not convert; the value is
    /// then as it was.
    void set(const AnyReferenceBase& source) const;
    void set(const AnyArgument& source) const; ///< the same for an object

    /// @name Changing containers
    ///
    /// Elements, keys and values are converted to the container's types; what does not convert throws ConversionError.
    /// A container that has no such operation, as an array whose size is fixed, throws std::runtime_error, an index
    /// that is not there std::out_of_range. The container is then as it was. The container's own rules tell which
    /// references into it become invalid.
    /// @{

    /// Adds an element at the end of a list, or at its place in a set.
    /// @return false, and nothing is done, when it is a set that has the element.
    bool append(const AnyArgument& element) const;

    /// Puts a value before element `at` of a list, at most size(); files it under the key `at` of a map.
    /// @return false, and nothing is done, when the map has the key.
    bool insert(const AnyArgument& at, const AnyArgument& value) const;

    /// Removes element `at` of a list, the entry of the key `at` of a map.
    /// @return false when the map has no such key.
    bool erase(const AnyArgument& at) const;

    /// Removes everything.
    void clear() const;
    /// @}

private:
    [[noreturn]] static void refuse(const TypeInterface* type);
};

static_assert(sizeof(AnyReference) == 2 * sizeof(void*));

namespace detail {

template <class T>
inline constexpr bool isCString =
    std::is_same_v<std::decay_t<T>, const char*> || std::is_same_v<std::decay_t<T>, char*>;

/// Throws std::invalid_argument for a null pointer.
ZU_EXPORT std::string textOf(const char* text);

ZU_EXPORT void convertOrThrow(const AnyReferenceBase& source, const AnyReference& target);
ZU_EXPORT bool convertIfPossible(const AnyReferenceBase& source, const AnyReference& target);

} // namespace detail

/// What operations take a value as: an object of any type, what a reference or an AnyValue refers to, or a C string,
/// which counts as a std::string (a null pointer throws std::invalid_argument). For the time of the call.
class AnyArgument
{
public:
    /// What `value` refers to, which may be nothing.
    AnyArgument(const AnyReferenceBase& value) noexcept : m_value(value) {} // NOLINT(google-explicit-constructor)

    /// The object itself; it is not copied, but for a C string.
    template <class T, class = std::enable_if_t<!std::is_base_of_v<AnyReferenceBase, T>>>
    AnyArgument(const T& object) // NOLINT(google-explicit-constructor)
    {
        if constexpr (detail::isCString<T>)
            m_value = AnyReference::from(std::as_const(m_text.emplace(detail::textOf(object))));
        else
            m_value = AnyReference::from(object);
    }

    AnyArgument(const AnyArgument&) = delete;
    AnyArgument& operator=(const AnyArgument&) = delete;

    const AnyReference& value() const noexcept { return m_value; } ///< empty for an empty reference

private:
    std::optional<std::string> m_text;
    AnyReference m_value;
};

inline void AnyReference::set(const AnyArgument& source) const { set(source.value()); }

template <class T>
T AnyReferenceBase::to() const
{
    static_assert(std::is_same_v<T, std::remove_cv_t<std::remove_reference_t<T>>>, "values are given, not references");
    if (const T* held = getIf<T>())
        return *held;
    static_assert(std::is_default_constructible_v<T>, "the target of a conversion is default-constructed first");
    T target{};
    detail::convertOrThrow(*this, AnyReference::from(target));
    return target;
}

template <class T>
std::optional<T> AnyReferenceBase::tryTo() const
{
    static_assert(std::is_same_v<T, std::remove_cv_t<std::remove_reference_t<T>>>, "values are given, not references");
    static_assert(std::is_default_constructible_v<T>, "the target of a conversion is default-constructed first");
    if (const T* held = getIf<T>())
        return *held;
    std::optional<T> target(std::in_place);
    if (!detail::convertIfPossible(*this, AnyReference::from(*target)))
        target.reset();
    return target;
}

} // namespace zu

/// Values that compare equal have equal hashes, whatever their types.
template <>
struct std::hash<zu::AnyReference>
{
    std::size_t operator()(const zu::AnyReference& value) const { return value.hash(); } ///< see hash()
};
