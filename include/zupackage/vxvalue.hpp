#pragma once

#include <zupackage/export.hpp>

#include <zu/any_reference.hpp>
#include <zu/native/native.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/type/raw.hpp>

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// The dynamic variant of the middleware's older remote-call layer.
namespace VX {

/// A byte string; usually UTF-8.
using TVXValueString = std::string;

/// The bytes of a Binary or an Object.
using TVXValueBytes = std::vector<unsigned char>;

/// What the variant throws. what() is "\tMODULE::METHOD\n\tMESSAGE"; an empty module or method is left out, with its
/// mark. Source file and line are for debuggers and are not part of the text.
class ZUPACKAGE_EXPORT VXError : public std::runtime_error
{
public:
    /// `file` may be null: it and `line` are not kept.
    VXError(const std::string& module, const std::string& method, const std::string& message, const char* file,
            int line);
    /// Copies say the same, and making them throws nothing.
    /// @{
    VXError(const VXError&) noexcept = default;
    VXError& operator=(const VXError&) noexcept = default;
    /// @}
    ~VXError() override;

private:
    friend class VXFailure;
    explicit VXError(const std::string& text);
};

/// Holds one of eight kinds of value; an Array holds further values. It owns what it holds: a copy copies the whole
/// tree, a moved-from value is Invalid. Copying, destroying and dumping take any depth.
///
/// Typed access is guarded by assertions, which throw VXError and leave the value as it was. Two of their rules are
/// lenient, and callers of the old layer rely on that: xAssertType() fails for nobody who asks for an Int and for no
/// Float. Whatever then wants to use a Float as something else throws all the same.
///
/// An Object that xAssertCompatibleType() makes has no bytes at all: size(), the conversion to bool, and copying it or
/// what it is in throw VXError.
///
/// Of the types that values convert to by themselves, there are the flag and the text. Another arithmetic type would be
/// made of the flag (an Int of 42 would be 1), so that those conversions do not compile; numbers are read by name.
///
/// Not synchronised. Reading a Binary as a string changes the value even through a const reference, so that even
/// readers of one value must take turns.
class ZUPACKAGE_EXPORT VXValue
{
public:
    /// @cond
    // For the templates below alone. Public because Clang 14 denies a friend's template arguments what the friend may
    // use.
    template <class T>
    static constexpr bool isFlag = std::is_same_v<T, bool> || std::is_same_v<T, std::vector<bool>::reference>;
    template <class T>
    static constexpr bool becomesVariant = !std::is_same_v<T, VXValue> && std::is_convertible_v<const T&, VXValue>;
    /// @endcond

    /// The kind of a value. The numbers are part of the interface.
    enum class Type : std::uint32_t
    {
        Invalid = 0, ///< no value
        Array = 1,   ///< values of any kind
        Bool = 2,    ///< a flag
        Int = 3,     ///< a signed 32-bit integer
        Float = 4,   ///< a single-precision number
        String = 5,  ///< a TVXValueString
        Object = 6,  ///< bytes; nothing in this library makes one
        Binary = 7   ///< bytes
    };

    /// Invalid.
    VXValue() noexcept {} // not defaulted: a const one needs no initialiser
    /// A Bool, made of a flag or an element of std::vector<bool> alone.
    // Not explicit, as callers are used to.
    // A template, so that nothing that merely converts to bool, as any pointer does, becomes a Bool.
    template <class Flag, class = std::enable_if_t<isFlag<Flag>>>
    VXValue(Flag value) noexcept : m_type(Type::Bool) // NOLINT(google-explicit-constructor)
    {
        m_value.boolean = value;
    }
    /// An Int, a Float, or a String of all bytes, zero ones included.
    /// @{
    VXValue(int value) noexcept;          // NOLINT(google-explicit-constructor)
    VXValue(float value) noexcept;        // NOLINT(google-explicit-constructor)
    VXValue(const TVXValueString& value); // NOLINT(google-explicit-constructor)
    /// @}
    /// A String of the characters up to the terminating zero. A null pointer throws.
    VXValue(const char* value); // NOLINT(google-explicit-constructor)
    /// A Binary of a copy of the `size` bytes at `data`. A null pointer to more than no bytes throws.
    VXValue(const void* data, std::size_t size);

    /// An Array of the elements.
    static VXValue fromElements(std::vector<VXValue> elements);

    /// A Binary that takes over the bytes, with the room that they have.
    static VXValue fromBytes(TVXValueBytes bytes);

    /// A copy of the whole tree. Throws VXError when an Object in it has no bytes.
    VXValue(const VXValue& other);
    /// Takes over what `other` holds, which is Invalid then.
    VXValue(VXValue&& other) noexcept
        : m_type(std::exchange(other.m_type, Type::Invalid)), m_value(std::exchange(other.m_value, Payload()))
    {
    }
    /// Makes this a copy, as the constructor does; `other` may be a part of it. When that throws, this is as it was.
    VXValue& operator=(const VXValue& other);
    /// A part of this may be moved into it, but not this into a part of itself.
    VXValue& operator=(VXValue&& other) noexcept
    {
        // By way of a third, because `other` may be a part of this.
        VXValue taken(std::move(other));
        std::swap(m_type, taken.m_type);
        std::swap(m_value, taken.m_value);
        return *this;
    }
    /// Makes this a String of the characters up to the terminating zero. A null pointer throws.
    VXValue& operator=(const char* value);
    /// Makes this a Bool, an Int or a Float, whatever it was.
    /// @{
    // So that a literal 0 is the number, not a null pointer.
    template <class Flag, class = std::enable_if_t<isFlag<Flag>>>
    VXValue& operator=(Flag value) noexcept
    {
        return *this = VXValue(value);
    }
    VXValue& operator=(int value) noexcept { return *this = VXValue(value); }
    VXValue& operator=(float value) noexcept { return *this = VXValue(value); }
    /// @}
    ~VXValue()
    {
        if (m_type != Type::Invalid)
            clear();
    }

    /// The kind of what it holds. Of a Binary that was read as a text it is String.
    Type type() const noexcept { return m_type; }

    /// The name of a type: "Invalid", "Array", "Bool", "Int", "Float", "String", "Object", "Binary". Throws for a
    /// number that is none.
    static std::string TypeToString(Type type);

    /// Makes an Invalid value an empty Array with room for 32 elements; then gives the Array `size` elements, new ones
    /// Invalid. Throws for values of other types, and std::length_error for a negative size.
    void resizeArray(int size);

    /// The elements of an Array, the characters of a String, the bytes of a Binary or Object; 0 for the other types.
    int size() const;

    /// An element. The array never grows here: give it its size first. Throws VXError for a value of another type and
    /// when the array is too short, std::out_of_range for a negative index. Unless it is const, an Invalid value first
    /// becomes an empty Array, which is too short, and stays one.
    /// @{
    VXValue& operator[](int index)
    {
        if (!hasElement(index))
            failWithoutElement(index);
        return (*m_value.array)[static_cast<std::size_t>(index)];
    }
    const VXValue& operator[](int index) const
    {
        if (!hasElement(index))
            failWithoutElement(index);
        return (*m_value.array)[static_cast<std::size_t>(index)];
    }
    /// @}

    /// Whether an Array, String, Binary or Object is not empty, an Int or Float not zero, a Bool set. Throws for
    /// Invalid.
    operator bool() const; // NOLINT(google-explicit-constructor)

    /// Does not compile: the number would be made of the flag. There are toInt() and toFloat().
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number> && !std::is_same_v<Number, bool>>>
    operator Number() const = delete; // NOLINT(google-explicit-constructor)

    /// What a value of exactly that type holds. For a value of another type, whatever it is, they throw as
    /// xAssertType() does where it is not lenient. The bytes are those in the value.
    /// @{
    int toInt() const;
    float toFloat() const;
    bool toBool() const;
    const TVXValueBytes& toBinary() const;
    /// @}

    /// Equal when both are of the same type and hold the same: by the number, byte by byte, element by element. A Float
    /// that is no number equals nothing. Of any depth, like copying.
    /// @{
    friend bool operator==(const VXValue& left, const VXValue& right) { return left.equals(right); }
    friend bool operator!=(const VXValue& left, const VXValue& right) { return !left.equals(right); }
    /// @}

    /// The same with what a value is made from: value == 42, value == "text".
    /// @{
    template <class Other, class = std::enable_if_t<becomesVariant<Other>>>
    friend bool operator==(const VXValue& left, const Other& right)
    {
        return left.equals(right);
    }
    template <class Other, class = std::enable_if_t<becomesVariant<Other>>>
    friend bool operator==(const Other& left, const VXValue& right)
    {
        return right.equals(left);
    }
    template <class Other, class = std::enable_if_t<becomesVariant<Other>>>
    friend bool operator!=(const VXValue& left, const Other& right)
    {
        return !left.equals(right);
    }
    template <class Other, class = std::enable_if_t<becomesVariant<Other>>>
    friend bool operator!=(const Other& left, const VXValue& right)
    {
        return !right.equals(left);
    }
    /// @}

    /// The text of a String; throws for other types.
    ///
    /// A Binary of less than 100,000 bytes *becomes* a String first, with a warning on standard output: of its bytes
    /// and a zero behind them that counts as a character. Peers that send texts as Binary are read so, and the callers
    /// of the old layer know the zero.
    operator const TVXValueString&() const; // NOLINT(google-explicit-constructor)

    /// Throws when the value is of another type, unless Int is asked for or the value is a Float; and for a number that
    /// is no type.
    void xAssertType(Type type) const;

    /// Makes an Invalid value an empty one of that type, with room for 32 elements, 64 characters or 1,024 bytes.
    /// Throws when it is of another type, and for a number that is no type.
    void xAssertCompatibleType(Type type);

    /// Throws when the value is no Array or has less than `size` elements.
    void xAssertArraySize(int size) const;

    /// The value as text for people. Verbosity 0 and below gives nothing, 1 the values ("[1, "a"]"), 2 their types and
    /// addresses too, 3 and above a frame of tags around each. The asymmetries of the format (two prefixes before an
    /// address, a closing Binary tag without an opening one at verbosity 2) are part of it. Numbers are written as in
    /// the C locale, whatever the process has.
    std::string dump(int verbosity) const;

private:
    friend class VXValueDump;
    friend class VXValueType;

    using Array = std::vector<VXValue>;

    union Payload {
        std::uint64_t bits = 0;
        bool boolean;
        std::int32_t integer;
        float real;
        TVXValueString* string;
        Array* array;
        TVXValueBytes* bytes; ///< of a Binary or an Object
    };

    static void destroy(Array* array) noexcept;
    void clear() noexcept;
    void copyLeaf(const VXValue& other);
    void copyTree(const VXValue& other);
    void becomeString() const;
    void assertSize(std::int64_t size) const;
    void requireExactly(Type type) const;
    bool equals(const VXValue& other) const;
    bool equalsButForElements(const VXValue& other) const;
    std::size_t count() const;
    bool hasElement(int index) const noexcept
    {
        // A negative index becomes one that no array has.
        return m_type == Type::Array && static_cast<std::size_t>(index) < m_value.array->size();
    }
    [[noreturn]] void failWithoutElement(int index);
    [[noreturn]] void failWithoutElement(int index) const;
    [[noreturn]] void failOutside(int index) const;

    // Mutable, because a Binary that is read as a string becomes one.
    mutable Type m_type = Type::Invalid;
    mutable Payload m_value;
};

static_assert(sizeof(VXValue) == 16, "the type and the payload, nothing else");

/// Prints dump(1).
ZUPACKAGE_EXPORT std::ostream& operator<<(std::ostream& out, const VXValue& value);

/// How the host framework's type system sees a VXValue: as a dynamic, whose content is what the value holds. Registered
/// when the library is loaded, so that values of the framework convert to a VXValue as told at set(), and a VXValue to
/// whatever its content converts to.
class ZUPACKAGE_EXPORT VXValueType : public zu::Native<VXValue, zu::DynamicTypeInterface>
{
public:
    ~VXValueType() override;

    /// The payload, inside `value`: a reference of type void for Invalid, to the vector of VXValue of an Array, the
    /// flag, the 32-bit integer, the float, the string, the bytes of a Binary (as Raw); an empty one for an Object.
    zu::AnyReference get(void* value) const override;

    /// Replaces `value` by the conversion of what `source` refers to:
    ///
    /// | kind                              | becomes                                                                  |
    /// |-----------------------------------|--------------------------------------------------------------------------|
    /// | Void                              | Invalid                                                                  |
    /// | Int                               | Bool for a bool; else Int, of the low 32 bits                            |
    /// | Float                             | Float, narrowed                                                          |
    /// | String                            | String, zero bytes included                                              |
    /// | List, VarArgs                     | Array of the elements                                                    |
    /// | Map                               | Array of pairs (Arrays of key and value)                                 |
    /// | Tuple                             | Array of the members; with member names, of pairs of name and member     |
    /// | Dynamic                           | what its content becomes; the generic object handle is refused           |
    /// | Raw                               | Binary                                                                   |
    /// | Function, Signal, Property        | Invalid, with a warning to "zutype.typedispatcher"                       |
    /// | Unknown, Object, Pointer, Iterator, Optional | refused                                                       |
    ///
    /// An empty reference becomes Invalid, with a warning to the same category; what is of a kind that is not in the
    /// table becomes Invalid silently. A shared pointer to an object is refused as that object; a null one as a
    /// pointer, for there is no object to take. Refused are also a tuple with another number of names than of members,
    /// and containers nested deeper than zu::k_maxNesting levels. What is refused throws VXError; `value` is then as
    /// it was.
    void set(void* value, const zu::AnyReference& source) const override;
};

/// Shows a vector of bytes as a raw buffer.
class ZUPACKAGE_EXPORT TypeBinaryAdapter : public zu::Native<TVXValueBytes, zu::RawTypeInterface>
{
public:
    ~TypeBinaryAdapter() override;

    /// The one adapter, made on the first call, for the life of the process.
    static const TypeBinaryAdapter& instance();

    std::string_view get(const void* value) const override;
    void set(void* value, std::string_view bytes) const override;
};

} // namespace VX
