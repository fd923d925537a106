#pragma once

#include <zu/type/type_interface.hpp>

#include <functional>
#include <set>
#include <string>

namespace zu::detail {

/// Names of types as compilers have them.
using RawNames = std::set<std::string, std::less<>>;

/// Settles what a library that has made an interface for a type uses: the interface that was registered meanwhile, else
/// `made`; none can be registered then. `rawName` is that of the type alone: made before the interface is, it leaves
/// nothing to be done here that could fail, and so the interface is not lost.
const TypeInterface* settledType(const TypeInfo& info, const TypeInterface* made, RawNames& rawName);

} // namespace zu::detail
