#pragma once

#include <string>
#include <string_view>

namespace zu::detail {

/// The name of a type as a person writes it, of the one that the compilers' run-time library gives:
/// "std::map<std::string, const int*>", with neither default arguments nor inline namespaces. What it cannot make out
/// is left as it is.
std::string readableName(std::string_view demangled);

} // namespace zu::detail
