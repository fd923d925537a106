#pragma once

/// The C++ types that have an interface out of the box: void, bool, integers of every width, enumerations, float,
/// double, std::string, std::vector (of bool too), std::list, std::map, std::pair, std::tuple, std::optional, pointers,
/// std::shared_ptr, boost::shared_ptr, Buffer, VarArguments, AnyValue, AnyReference, AnyIterator, Object,
/// std::function, boost::function, Signal, Property, and structs with a StructSchema.
///
/// All or none: a library that knew some of them would take the others for types that nothing is known of. So the
/// primary template stands here, below everything that is more special, and the headers beside this one do not suffice
/// for typeOf().
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
#include <zu/native/struct.hpp>
#include <zu/native/text.hpp>
#include <zu/native/tuple.hpp>

namespace zu {

template <class T, class>
struct NativeType : detail::MadeAs<detail::OpaqueType<T>>
{
};

} // namespace zu
