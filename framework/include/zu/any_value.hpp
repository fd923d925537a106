#pragma once

/// AnyValue, with the interfaces of the C++ types that it can hold out of the box; the class itself stands in
/// value/any_value.hpp.
#include <zu/native/native_types.hpp>
#include <zu/value/any_value.hpp>
