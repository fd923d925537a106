#pragma once

#include <zupackage/vxvalue.hpp>

#include <zu/any_value.hpp>

#include <string>

namespace VX::test {

template <class T>
VXValue converted(const T& value)
{
    return zu::AnyReference::from(value).template to<VXValue>();
}

/// The short dump of what a value becomes.
template <class T>
std::string shown(const T& value)
{
    return converted(value).dump(1);
}

/// The message with which a value is refused.
template <class T>
std::string refusal(const T& value)
{
    try {
        converted(value);
    } catch (const VXError& error) {
        return error.what();
    }
    return "not refused";
}

inline std::string conversionError(const std::string& message) { return "\tVXValue::conversion\n\t" + message; }

} // namespace VX::test
