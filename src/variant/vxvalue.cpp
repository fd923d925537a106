#include "variant/vxfailure.hpp"

#include <zupackage/vxvalue.hpp>

#include <cstdio>
#include <memory>
#include <utility>

namespace VX {

namespace {

constexpr char k_file[] = "src/vxvalue.cpp";
constexpr char k_assertType[] = "xAssertType: type error";

// Room that a value gets when it becomes one of these types: callers fill it piece by piece.
constexpr std::size_t k_arrayRoom = 32;
constexpr std::size_t k_stringRoom = 64;
constexpr std::size_t k_binaryRoom = 1024;

/// From here on a Binary is too large to be read as a string.
constexpr std::size_t k_stringViewLimit = 100'000;

constexpr SourcePlace here(int line) { return {k_file, line}; }

template <class Container>
std::unique_ptr<Container> withRoom(std::size_t room)
{
    auto container = std::make_unique<Container>();
    container->reserve(room);
    return container;
}

} // namespace

VXValue::VXValue(int value) noexcept : m_type(Type::Int) { m_value.integer = value; }

VXValue::VXValue(float value) noexcept : m_type(Type::Float) { m_value.real = value; }

VXValue::VXValue(const TVXValueString& value) : m_type(Type::String) { m_value.string = new TVXValueString(value); }

VXValue::VXValue(const char* value)
{
    assertThat(value != nullptr, here(__LINE__));
    m_value.string = new TVXValueString(value);
    m_type = Type::String;
}

VXValue::VXValue(const void* data, std::size_t size)
{
    assertThat(data != nullptr || size == 0, here(__LINE__));
    const auto* first = static_cast<const unsigned char*>(data);
    m_value.bytes = new TVXValueBytes(first, first + size);
    m_type = Type::Binary;
}

VXValue VXValue::fromElements(std::vector<VXValue> elements)
{
    VXValue value;
    value.m_value.array = new Array(std::move(elements));
    value.m_type = Type::Array;
    return value;
}

VXValue VXValue::fromBytes(TVXValueBytes bytes)
{
    VXValue value;
    value.m_value.bytes = new TVXValueBytes(std::move(bytes));
    value.m_type = Type::Binary;
    return value;
}

// Delegating, so that what was copied goes when the rest cannot be.
VXValue::VXValue(const VXValue& other) : VXValue() { copyTree(other); }

VXValue& VXValue::operator=(const VXValue& other)
{
    if (this != &other)
        *this = VXValue(other);
    return *this;
}

VXValue& VXValue::operator=(const char* value) { return *this = VXValue(value); }

std::string VXValue::TypeToString(Type type)
{
    switch (type) {
    case Type::Invalid:
        return "Invalid";
    case Type::Array:
        return "Array";
    case Type::Bool:
        return "Bool";
    case Type::Int:
        return "Int";
    case Type::Float:
        return "Float";
    case Type::String:
        return "String";
    case Type::Object:
        return "Object";
    case Type::Binary:
        return "Binary";
    }
    fail("TypeToString", "Unknown type: " + std::to_string(static_cast<std::uint32_t>(type)), here(__LINE__));
}

void VXValue::resizeArray(int size)
{
    if (size < 0 && (m_type == Type::Invalid || m_type == Type::Array))
        throw std::length_error("a VXValue cannot have " + std::to_string(size) + " elements");
    xAssertCompatibleType(Type::Array);
    m_value.array->resize(static_cast<std::size_t>(size));
}

int VXValue::size() const { return static_cast<int>(count()); }

std::size_t VXValue::count() const
{
    switch (m_type) {
    case Type::Invalid:
    case Type::Bool:
    case Type::Int:
    case Type::Float:
        return 0;
    case Type::Array:
        assertThat(m_value.array != nullptr, here(__LINE__));
        return m_value.array->size();
    case Type::String:
        assertThat(m_value.string != nullptr, here(__LINE__));
        return m_value.string->size();
    case Type::Object:
    case Type::Binary:
        assertThat(m_value.bytes != nullptr, here(__LINE__));
        return m_value.bytes->size();
    }
    return 0;
}

void VXValue::failWithoutElement(int index)
{
    xAssertCompatibleType(Type::Array);
    failOutside(index);
}

void VXValue::failWithoutElement(int index) const
{
    xAssertType(Type::Array);
    failOutside(index);
}

void VXValue::failOutside(int index) const
{
    assertSize(std::int64_t(index) + 1);
    throw std::out_of_range("invalid vector<T> subscript"); // a negative index needs no size
}

VXValue::operator bool() const
{
    switch (m_type) {
    case Type::Invalid:
        break;
    case Type::Bool:
        return m_value.boolean;
    case Type::Int:
        return m_value.integer != 0;
    case Type::Float:
        return m_value.real != 0.0F;
    case Type::Array:
    case Type::String:
    case Type::Object:
    case Type::Binary:
        return count() != 0;
    }
    fail("const bool() const", "Cannot cast to bool an VXValue of invalid type.", here(__LINE__));
}

int VXValue::toInt() const
{
    requireExactly(Type::Int);
    return m_value.integer;
}

float VXValue::toFloat() const
{
    requireExactly(Type::Float);
    return m_value.real;
}

bool VXValue::toBool() const
{
    requireExactly(Type::Bool);
    return m_value.boolean;
}

const TVXValueBytes& VXValue::toBinary() const
{
    requireExactly(Type::Binary);
    return *m_value.bytes;
}

void VXValue::requireExactly(Type type) const
{
    if (m_type != type)
        failForType(k_assertType, *this, type);
}

VXValue::operator const TVXValueString&() const
{
    if (m_type == Type::Binary && m_value.bytes->size() < k_stringViewLimit)
        becomeString();
    xAssertType(Type::String);
    // A Float has passed, and has no text to show.
    assertThat(m_type == Type::String, here(__LINE__));
    return *m_value.string;
}

void VXValue::becomeString() const
{
    const int count = size();
    std::printf("WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
                "encoding problem (size of binary: %d)\n",
                count);
    auto string = std::make_unique<TVXValueString>();
    string->reserve(static_cast<std::size_t>(count) + 1);
    string->append(m_value.bytes->begin(), m_value.bytes->end());
    // One more than there are bytes, for the zero: callers of the old layer know it.
    string->push_back('\0');
    delete m_value.bytes;
    m_value.string = string.release();
    m_type = Type::String;
}

void VXValue::xAssertType(Type type) const
{
    if (m_type == type)
        return;
    TypeToString(type); // refuses a number that is no type, whatever the value is
    if (type != Type::Int && m_type != Type::Float)
        failForType(k_assertType, *this, type);
}

void VXValue::xAssertCompatibleType(Type type)
{
    if (m_type == type)
        return;
    TypeToString(type); // refuses a number that is no type
    if (m_type != Type::Invalid)
        failForType("xAssertCompatibleType: type error", *this, type);
    Payload fresh;
    if (type == Type::Array)
        fresh.array = withRoom<Array>(k_arrayRoom).release();
    else if (type == Type::String)
        fresh.string = withRoom<TVXValueString>(k_stringRoom).release();
    else if (type == Type::Binary)
        fresh.bytes = withRoom<TVXValueBytes>(k_binaryRoom).release();
    m_value = fresh;
    m_type = type;
}

void VXValue::xAssertArraySize(int size) const { assertSize(size); }

void VXValue::assertSize(std::int64_t size) const
{
    if (m_type != Type::Array)
        fail("xAssertArraySize", "try to use a " + TypeToString(m_type) + " like an array", here(__LINE__));
    if (this->size() < size)
        fail("xAssertArraySize",
             "The array has a size of " + std::to_string(this->size()) + " and you want it to be of size " +
                 std::to_string(size),
             here(__LINE__));
}

} // namespace VX
