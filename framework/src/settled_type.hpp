#pragma once

#include <zu/type/type_interface.hpp>

namespace zu::detail {

/// Settles what a library that has made an interface for a type uses: the interface that was registered meanwhile, else
/// `made`; none can be registered then. When this throws, nothing is settled.
const TypeInterface* settledType(const TypeInfo& info, const TypeInterface* made);

} // namespace zu::detail
