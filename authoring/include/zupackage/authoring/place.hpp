#pragma once

#include <cstddef>

/// Where something stands in a document.
namespace zu::authoring {

/// The bytes of a document from `begin` up to, not including, `end`; counted from 0.
struct ByteRange
{
    std::size_t begin = 0;
    std::size_t end = 0;

    std::size_t size() const { return end - begin; }
    bool isEmpty() const { return begin == end; }

    /// Whether `other` lies within this range, its borders included.
    bool contains(ByteRange other) const { return begin <= other.begin && other.end <= end; }
};

inline bool operator==(ByteRange left, ByteRange right) { return left.begin == right.begin && left.end == right.end; }
inline bool operator!=(ByteRange left, ByteRange right) { return !(left == right); }

/// A place as editors show it: a line and a column in characters (Unicode code points), both counted from 1. A line
/// ends with a line feed, a carriage return, or the two together. A byte order mark is no character.
struct Place
{
    std::size_t line = 1;
    std::size_t column = 1;
};

inline bool operator==(Place left, Place right) { return left.line == right.line && left.column == right.column; }
inline bool operator!=(Place left, Place right) { return !(left == right); }

} // namespace zu::authoring
