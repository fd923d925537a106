#pragma once

#include <zupackage/vxvalue.hpp>

#include <zu/any_reference.hpp>

namespace VX {

/// The variant that a value of the host framework becomes; see VXValueType::set() for the table.
/// @param depth  how many containers, and dynamics that hold dynamics, the value lies in
VXValue convertedFrom(const zu::AnyReferenceBase& source, int depth = 0);

} // namespace VX
