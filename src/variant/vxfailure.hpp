#pragma once

#include <string>

namespace VX {

/// A place in the variant's sources, under the name of the file that callers know from the messages.
struct SourcePlace
{
    const char* file;
    int line;
};

/// Throws the VXError of a method of the variant.
[[noreturn]] void fail(const std::string& method, const std::string& message, const SourcePlace& place);

/// Throws VXError, with the place as its message, unless the condition holds.
void assertThat(bool condition, const SourcePlace& place);

} // namespace VX
