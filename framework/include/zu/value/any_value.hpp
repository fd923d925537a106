#pragma once

#include <zu/value/any_reference.hpp>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace zu {

/// Owns a value of any type: a deep copy of exactly what it was given. Copies are deep, a moved-from one is empty.
/// Values that fit into a word are held in place, others on the heap.
///
/// What is inherited reads the value; reference() and getIf() give it to write. Different AnyValues may be used from
/// different threads; one that is written needs the caller's lock.
///
/// Nesting is limited where work grows with it: copying a value nested deeper than 1,000 AnyValues throws
/// std::length_error; destruction takes any depth.
class ZU_EXPORT AnyValue : public AnyReferenceBase
{
public:
    /// Empty: no type.
    AnyValue() noexcept = default;

    /// A default value of `type`; empty when that is null. Throws std::runtime_error when the type has no default
    /// value.
    explicit AnyValue(const TypeInterface* type);

    /// A copy of what `source` refers to; empty when that is empty.
    explicit AnyValue(const AnyReferenceBase& source);

    /// A deep copy. Throws std::logic_error when the type cannot be copied, and what the copying throws.
    AnyValue(const AnyValue& other) : AnyReferenceBase(other) { copyFrom(other); }

    /// Takes over the value; `other` is empty then.
    AnyValue(AnyValue&& other) noexcept : AnyReferenceBase() { takeFrom(other); }

    /// Replaces value and type by a deep copy; when the copying throws, both are as they were.
    AnyValue& operator=(const AnyValue& other)
    {
        AnyValue(other).swap(*this);
        return *this;
    }

    /// Takes over value and type; `other` is empty then, but for one that is assigned to itself.
    AnyValue& operator=(AnyValue&& other) noexcept
    {
        AnyValue(std::move(other)).swap(*this);
        return *this;
    }
    ~AnyValue() { clear(); }

    /// Holds a copy of `object` (what it was moved into, for a temporary), of exactly its declared type, but for those
    /// that would refer to something else: of an AnyReference it is the value referred to that is copied; a C string, a
    /// literal and a std::string_view are held as std::string; a null C string throws std::invalid_argument. Of an
    /// AnyValue it is a copy, and not one that holds an AnyValue. (One that does is made of a reference to the
    /// AnyValue.)
    template <class T>
    static AnyValue from(T&& object);

    /// A reference to the value, to write through; empty when this is. Valid until the AnyValue is assigned, moved or
    /// destroyed.
    AnyReference reference() noexcept { return isEmpty() ? AnyReference() : writable(); }

    /// The same for reading only.
    AnyReference reference() const noexcept { return AnyReference(static_cast<const AnyReferenceBase&>(*this)); }

    /// The address of the value when it is exactly of type T, as told by TypeInfo; else null. Nothing is converted.
    template <class T>
    T* getIf()
    {
        return this->template holds<T>() ? static_cast<T*>(m_address) : nullptr;
    }

    /// The same for reading only.
    template <class T>
    const T* getIf() const
    {
        return AnyReferenceBase::getIf<T>();
    }

    /// Sets the value to `source` converted to the type that is held. Throws ConversionError when it does not convert,
    /// as nothing does to an empty one; the value is then as it was.
    void set(const AnyArgument& source) { reference().set(source); }

    /// Empties it.
    void reset() noexcept { clear(); }

    /// Exchanges values and types; references to either become invalid.
    void swap(AnyValue& other) noexcept;

private:
    bool isInPlace() const noexcept { return m_address == m_word; }
    AnyReference writable() const noexcept;

    void copyFrom(const AnyReferenceBase& source);
    void takeFrom(AnyValue& other) noexcept;
    void hold(const TypeInterface* type, const void* source);
    void holdMoved(const TypeInterface* type, void* source);
    void clear() noexcept
    {
        if (m_address && !isInPlace())
            destroyHeld();
        m_tagged = 0;
        m_address = nullptr;
    }
    void destroyHeld() noexcept;
    void placeAt(const TypeInterface* type, void* address) noexcept
    {
        m_tagged = reinterpret_cast<std::uintptr_t>(type) | k_readOnly;
        m_address = address;
    }

    /// Bytes, for callers write to the value in it as what it is, and compilers know that bytes may change so.
    alignas(std::uint64_t) unsigned char m_word[sizeof(std::uint64_t)] = {};
};

/// Like AnyValue::swap().
inline void swap(AnyValue& a, AnyValue& b) noexcept { a.swap(b); }

inline void AnyValue::takeFrom(AnyValue& other) noexcept
{
    m_tagged = other.m_tagged;
    std::memcpy(m_word, other.m_word, sizeof m_word);
    m_address = other.isInPlace() ? m_word : other.m_address;
    other.m_tagged = 0;
    other.m_address = nullptr;
}

inline void AnyValue::swap(AnyValue& other) noexcept
{
    AnyValue kept;
    kept.takeFrom(other);
    other.takeFrom(*this);
    takeFrom(kept);
}

template <class T>
AnyValue AnyValue::from(T&& object)
{
    using Held = std::remove_cv_t<std::remove_reference_t<T>>;
    if constexpr (std::is_same_v<Held, AnyValue>) {
        return AnyValue(std::forward<T>(object));
    } else if constexpr (std::is_base_of_v<AnyReferenceBase, Held>) {
        return AnyValue(static_cast<const AnyReferenceBase&>(object));
    } else if constexpr (detail::isCString<Held>) {
        return from(detail::textOf(object));
    } else if constexpr (std::is_same_v<Held, std::string_view>) {
        return from(std::string(object));
    } else {
        static_assert(!std::is_array_v<Held>, "an array has no type interface; give a std::vector");
        AnyValue value;
        if constexpr (std::is_lvalue_reference_v<T> || std::is_const_v<std::remove_reference_t<T>>)
            value.hold(typeOf<Held>(), std::addressof(object));
        else
            value.holdMoved(typeOf<Held>(), std::addressof(object));
        return value;
    }
}

} // namespace zu

/// Values that compare equal have equal hashes, whatever their types.
template <>
struct std::hash<zu::AnyValue>
{
    /// That of AnyReferenceBase::hash().
    std::size_t operator()(const zu::AnyValue& value) const { return value.hash(); }
};
