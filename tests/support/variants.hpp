#pragma once

#include <zupackage/vxvalue.hpp>

#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace VX {

// How a variant shows in the message of a failed expectation.
void PrintTo(const VXValue& value, std::ostream* out); // NOLINT(readability-identifier-naming): GoogleTest calls it

} // namespace VX

namespace zu::test {

/// An Array of the elements.
VX::VXValue array(std::vector<VX::VXValue> elements);

/// An Array of a String for each text.
VX::VXValue textArray(std::initializer_list<const char*> texts);

/// An Array of a key and a value.
VX::VXValue pair(const std::string& key, VX::VXValue value);

/// A Binary of the bytes.
VX::VXValue binary(std::string_view bytes);

/// An Object as a caller can make one: without storage.
VX::VXValue objectWithoutStorage();

/// Copies of the elements of an Array.
std::vector<VX::VXValue> elementsOf(const VX::VXValue& array);

/// A value and what it holds, a line each, with types and positions; unlike a dump, two different values never look the
/// same. Not for deep values.
std::string layout(const VX::VXValue& value);

/// @name Generated variants, to be called in a property
///
/// No generators of values, because those copy what they make and an Object without storage cannot be copied.
/// @{
/// A variant of any type, nested up to five levels, with the keys and the numbers of elements that records have; its
/// shape is rarely that of a record throughout.
VX::VXValue anyVariant();
/// A copy of `value` in which one to four nodes are replaced by others, removed or doubled.
VX::VXValue mutated(const VX::VXValue& value);
/// @}

/// The text of the VXError that `action` throws; "nothing thrown" otherwise.
template <class Action>
std::string errorOf(Action action)
{
    try {
        action();
    } catch (const VX::VXError& error) {
        return error.what();
    }
    return "nothing thrown";
}

/// The text of an error that the variant raises in `method`.
std::string errorText(const std::string& method, const std::string& message);

/// The text of the error of a typed access; `contents` is the short dump of the value.
std::string typeError(const std::string& expected, const std::string& received, const std::string& contents);

struct Leaf
{
    VX::VXValue value;
    std::string type;
    std::string compact;  ///< at verbosity 1
    std::string labelled; ///< the body at verbosity 2
    std::string framed;   ///< the body at verbosity 3, and what follows it
};

/// One value of each type that holds no others.
std::vector<Leaf> leaves();

} // namespace zu::test
