#pragma once

/// AnyReference, with the interfaces of the C++ types that it can refer to out of the box; the class itself stands in
/// value/any_reference.hpp.
#include <zu/native/native_types.hpp>
#include <zu/value/any_reference.hpp>
