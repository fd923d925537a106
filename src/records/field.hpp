#pragma once

#include <string>
#include <tuple>

/// What the records consist of, told once: their private structures and the small records have a table each.
namespace zupackage {

/// A field of a record, as other programs know it.
template <class Record, class Value>
struct Field
{
    const char* member;     ///< its name in the type system
    const char* key;        ///< that of its pair on the wire
    Value Record::*pointer; ///< where it stands
    bool isReserved;        ///< on the wire, its pair holds nothing
};

template <class Record, class Value>
constexpr Field<Record, Value> field(const char* name, Value Record::*pointer)
{
    return {name, name, pointer, false};
}

template <class Record, class Value>
constexpr Field<Record, Value> field(const char* member, Value Record::*pointer, const char* key)
{
    return {member, key, pointer, false};
}

template <class Record, class Value>
constexpr Field<Record, Value> reserved(const char* name, Value Record::*pointer)
{
    return {name, name, pointer, true};
}

/// The fields with which a record travels, in the order in which they are registered and stand on the wire. Other
/// programs go by both, so that no row may move, go or be inserted.
template <class Record>
inline constexpr std::tuple<> k_fields{};

/// The fields that stay behind when a record travels.
template <class Record>
inline constexpr std::tuple<> k_localFields{};

} // namespace zupackage
