#pragma once

#include "kinds.hpp"

#include <zu/walk.hpp>

#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

/// What comparing and hashing values by their content have in common.
namespace zu::detail {

/// What can be told apart at all, in the order in which values of different groups stand.
enum class Group
{
    Nothing,
    Void,
    Number,
    Text,
    Raw,
    List,
    Map,
    Tuple,
    Pointer,
    Unreadable
};

/// Of what is no wrapper.
Group groupOf(const AnyReferenceBase& value);

/// Where a pointer points to.
const void* pointeeOf(const AnyReferenceBase& pointer);

/// The bytes of a value of a type that AnyValue may hold in place; empty for any other.
std::string_view bytesInPlace(const AnyReferenceBase& value);

AnyReference memberAt(const AnyReferenceBase& tuple, std::size_t index);

/// The entries of a map, in its order.
using Entries = std::vector<std::pair<AnyReference, AnyReference>>;
Entries entriesOf(const AnyReferenceBase& map);

/// A step that may be taken.
class CheckedStep : public Walk::Step
{
public:
    CheckedStep(Walk& walk, const AnyReferenceBase& value) : Step(walk, value)
    {
        if (!*this)
            throw std::length_error(refusal());
    }
};

} // namespace zu::detail
