#pragma once

/// typeOf(), with the interfaces of the C++ types that it knows out of the box; the function itself stands in
/// value/type_of.hpp.
#include <zu/native/native_types.hpp>
#include <zu/value/type_of.hpp>
