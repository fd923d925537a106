#include "variant/vxvalueconverter.hpp"

#include <zupackage/vxvalue.hpp>

#include <zu/any_reference.hpp>

#include <utility>

namespace VX {

VXValueType::~VXValueType() = default;

zu::AnyReference VXValueType::get(void* value) const
{
    VXValue& variant = object(value);
    switch (variant.m_type) {
    case VXValue::Type::Invalid:
        return {zu::typeOf<void>(), nullptr};
    case VXValue::Type::Array:
        return zu::AnyReference::from(*variant.m_value.array);
    case VXValue::Type::Bool:
        return zu::AnyReference::from(variant.m_value.boolean);
    case VXValue::Type::Int:
        return zu::AnyReference::from(variant.m_value.integer);
    case VXValue::Type::Float:
        return zu::AnyReference::from(variant.m_value.real);
    case VXValue::Type::String:
        return zu::AnyReference::from(*variant.m_value.string);
    case VXValue::Type::Object:
        return {};
    case VXValue::Type::Binary:
        return {&TypeBinaryAdapter::instance(), variant.m_value.bytes};
    }
    return {};
}

void VXValueType::set(void* value, const zu::AnyReference& source) const
{
    // Converted as a whole first: the source may be a part of the value, and the conversion may throw.
    object(value) = convertedFrom(source);
}

TypeBinaryAdapter::~TypeBinaryAdapter() = default;

const TypeBinaryAdapter& TypeBinaryAdapter::instance()
{
    static const auto& adapter = *new TypeBinaryAdapter;
    return adapter;
}

std::string_view TypeBinaryAdapter::get(const void* value) const
{
    const TVXValueBytes& bytes = object(value);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

void TypeBinaryAdapter::set(void* value, std::string_view bytes) const
{
    object(value) = TVXValueBytes(bytes.begin(), bytes.end());
}

} // namespace VX
