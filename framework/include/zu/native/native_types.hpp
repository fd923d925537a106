#pragma once

/// The C++ types that have an interface out of the box: void, bool, integers of every width, enumerations, float,
/// double, std::string, std::string_view, std::vector (of bool too), std::list, std::deque, std::array, std::set,
/// std::map, std::unordered_map, std::pair, std::tuple, std::optional, pointers, std::shared_ptr, boost::shared_ptr,
/// Buffer, VarArguments, AnyValue, AnyReference, AnyIterator, Object, std::function, boost::function, Signal, Property,
/// and structs with a StructSchema.
///
/// Where it ends: of std::variant, durations and points in time of std::chrono and whatever else is not named above
/// nothing is known but how to copy it (kind Unknown). A NativeType of one's own, or registerType(), makes such a type
/// what it is to be: a variant a Dynamic, a duration an Int.
///
/// All or none: a library that knew some of them would take the others for types that nothing is known of. So the
/// primary template stands here, below everything that is more special, and the headers beside this one do not suffice
/// for typeOf().
#include <zu/native/array.hpp>
#include <zu/native/dynamic.hpp>
#include <zu/native/enumeration.hpp>
#include <zu/native/function.hpp>
#include <zu/native/list.hpp>
#include <zu/native/map.hpp>
#include <zu/native/numbers.hpp>
#include <zu/native/object.hpp>
#include <zu/native/opaque.hpp>
#include <zu/native/optional.hpp>
#include <zu/native/pointer.hpp>
#include <zu/native/position.hpp>
#include <zu/native/set.hpp>
#include <zu/native/struct.hpp>
#include <zu/native/text.hpp>
#include <zu/native/tuple.hpp>

namespace zu {

template <class T, class>
struct NativeType : detail::MadeAs<detail::OpaqueType<T>>
{
};

} // namespace zu
