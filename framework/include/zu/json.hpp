#pragma once

#include <zu/any_reference.hpp>
#include <zu/conversion.hpp>

#include <string>

namespace zu {

/// A value as JSON text in UTF-8, on one line, by nothing but its type.
///
/// | value                            | JSON                                                                         |
/// |----------------------------------|------------------------------------------------------------------------------|
/// | nothing, Void                    | null                                                                         |
/// | Int: bool                        | true or false                                                                |
/// | Int: a named enumerator          | the name (see EnumSchema), as a string                                       |
/// | Int: any other                   | a number; beyond 9007199254740991 on either side, where readers with doubles |
/// |                                  | would take it for another, a string of its digits                            |
/// | Float                            | a number, with as many digits as tell it from all others of its type;        |
/// |                                  | "NaN", "Infinity" and "-Infinity" are strings                                |
/// | String                           | a string; what is no UTF-8 in it is U+FFFD                                   |
/// | Raw                              | a string of the bytes in base64, with padding                                |
/// | List, VarArgs                    | a list                                                                       |
/// | Map with keys of the kind String | an object, in the order of the map                                           |
/// | Map with other keys              | a list of lists of a key and a value, in the order of the map                |
/// | Tuple: a struct                  | an object of its members, in their order                                     |
/// | Tuple: a pair or tuple           | a list                                                                       |
/// | Dynamic, Optional                | what it holds                                                                |
/// | Pointer                          | what it points to, which must be there; null for a null pointer              |
/// | Unknown, Object, Iterator,       | none                                                                         |
/// | Function, Signal, Property       |                                                                              |
///
/// Throws ConversionError, whose failure() has the target type "JSON" and the path, for a part that has no JSON form,
/// for a key of an object that is no UTF-8, and for a value that is nested deeper than k_maxNesting levels or refers to
/// its parts too often (see Walk). What the interface of a foreign type throws comes out as it was thrown.
///
/// The same value gives the same bytes, whatever the locale; only unordered containers have an order of their own.
///
/// Takes time and memory in proportion to the text, and little stack.
ZU_EXPORT std::string toJson(const AnyReferenceBase& value);

} // namespace zu
