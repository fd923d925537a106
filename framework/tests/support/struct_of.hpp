#pragma once

#include <zu/type/struct.hpp>

namespace zu {

/// The interface of a type that is a struct.
inline const StructTypeInterface& structOf(const TypeInterface* type)
{
    return dynamic_cast<const StructTypeInterface&>(*type);
}

} // namespace zu
