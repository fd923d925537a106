#pragma once

#include <zupackage/vxvalue.hpp>

#include <iterator>
#include <utility>

namespace VX {

/// An Array of the values.
template <std::size_t count>
VXValue arrayOf(VXValue (&&values)[count])
{
    return VXValue::fromElements({std::make_move_iterator(values), std::make_move_iterator(values + count)});
}

/// A pair: an Array of the key and the value.
inline VXValue pairOf(VXValue key, VXValue value) { return arrayOf({std::move(key), std::move(value)}); }

} // namespace VX
