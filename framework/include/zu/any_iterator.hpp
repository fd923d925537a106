#pragma once

/// AnyIterator, with the interfaces of the C++ types that it can give out of the box; the class itself stands in
/// value/any_iterator.hpp.
#include <zu/native/native_types.hpp>
#include <zu/value/any_iterator.hpp>
