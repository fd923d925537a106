#include "conversion_rules.hpp"

#include <zu/type/struct.hpp>

namespace zu {

void StructTypeInterface::setValues(void* object, const std::vector<AnyReference>& values) const
{
    ConversionFailure failure;
    detail::Conversion conversion(&failure);
    if (detail::setMembers(conversion, values, AnyReference(this, object)))
        return;
    if (failure.cause)
        std::rethrow_exception(failure.cause);
    failure.sourceType = "a list of values";
    failure.targetType = name();
    throw ConversionError(failure);
}

std::map<std::string, AnyValue> StructTypeInterface::toMap(const void* object) const
{
    std::map<std::string, AnyValue> values;
    convert(AnyReference(this, object), AnyReference::from(values));
    return values;
}

void StructTypeInterface::fromMap(void* object, const std::map<std::string, AnyValue>& values) const
{
    convert(AnyReference::from(values), AnyReference(this, object));
}

std::string StructTypeInterface::name() const { return className().empty() ? info().name() : className(); }

} // namespace zu
