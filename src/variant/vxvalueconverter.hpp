#pragma once

#include <zupackage/vxvalue.hpp>

#include <zu/any_reference.hpp>

namespace VX {

/// The variant that a value of the host framework becomes; see VXValueType::set() for the table.
VXValue convertedFrom(const zu::AnyReferenceBase& source);

} // namespace VX
