#pragma once

#include <zupackage/vxvalue.hpp>

#include <string>

namespace VX {

/// A place in the variant's sources, under the name of the file that callers know from the messages.
struct SourcePlace
{
    const char* file;
    int line;
};

/// Throws the VXError of a method of the variant.
[[noreturn]] void fail(const char* method, const std::string& message, const SourcePlace& place);

/// Throws the VXError of a method that wanted a value of another type.
[[noreturn]] void failForType(const char* method, const VXValue& value, VXValue::Type expected);

/// Throws VXError, with the place as its message, unless the condition holds.
inline void assertThat(bool condition, const SourcePlace& place)
{
    if (!condition)
        fail("Assert failed", std::string(place.file) + ":" + std::to_string(place.line), place);
}

} // namespace VX
