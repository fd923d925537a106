#pragma once

#include <cstddef>

/// Where something stands in a document.
namespace zu::authoring {

/// The bytes of a document from `begin` up to, not including, `end`; counted from 0.
struct ByteRange
{
    std::size_t begin = 0; ///< the first byte
    std::size_t end = 0;   ///< the one after the last; not before `begin`

    /// How many bytes there are.
    std::size_t size() const { return end - begin; }
    /// Whether this is a mere place between two bytes, where something can be inserted.
    bool isEmpty() const { return begin == end; }

    /// Whether `other` lies within this range, its borders included.
    bool contains(ByteRange other) const { return begin <= other.begin && other.end <= end; }
};

/// Equal when both begin and end at the same bytes; empty ranges at two places are not equal.
/// @{
inline bool operator==(ByteRange left, ByteRange right) { return left.begin == right.begin && left.end == right.end; }
inline bool operator!=(ByteRange left, ByteRange right) { return !(left == right); }
/// @}

/// A place as editors show it: a line and a column in characters (Unicode code points), both counted from 1. A line
/// ends with a line feed, a carriage return, or the two together. A byte order mark is no character.
struct Place
{
    std::size_t line = 1;   ///< from 1
    std::size_t column = 1; ///< from 1; one after the last character is the end of the line
};

/// Equal when both the line and the column are.
/// @{
inline bool operator==(Place left, Place right) { return left.line == right.line && left.column == right.column; }
inline bool operator!=(Place left, Place right) { return !(left == right); }
/// @}

} // namespace zu::authoring
