#pragma once

#include <zu/export.hpp>
#include <zu/forward.hpp>

#include <iosfwd>

namespace zu {

/// How `a` and `b` compare by their content, whatever their types: negative, 0 or positive. A total order; values that
/// are equal have equal hashes.
///
/// - A dynamic or an optional is what it holds, and nothing when it holds nothing.
/// - Numbers compare as numbers, true as 1, without loss; NaN equals NaN and is greater than any other number.
/// - Texts and raw bytes compare by their bytes; lists and variable arguments by their elements in order; maps by their
///   entries, in the order of the keys; tuples by the name of their class, then by their members in order.
/// - Pointers compare by where they point to.
/// - Of whatever else nothing can be read. Such values compare by their bytes where the type is one that AnyValue holds
///   in place (a duration, a pointer to a function), and any other is equal to itself alone.
///
/// Values of different kinds are in this order: nothing, void, numbers, texts, raw bytes, lists, maps, tuples,
/// pointers, the rest; so a struct is never equal to a map. Throws std::length_error for values beyond the limits of a
/// Walk. Like what follows it only reads, so that threads may compare values that none of them writes.
ZU_EXPORT int compare(const AnyReferenceBase& a, const AnyReferenceBase& b);

/// Whether compare() gives 0; finds containers of different sizes unequal without looking into them.
ZU_EXPORT bool operator==(const AnyReferenceBase& a, const AnyReferenceBase& b);

/// Whether operator==() says no.
inline bool operator!=(const AnyReferenceBase& a, const AnyReferenceBase& b) { return !(a == b); }

/// Whether compare() gives less than 0.
inline bool operator<(const AnyReferenceBase& a, const AnyReferenceBase& b) { return compare(a, b) < 0; }

/// Whether compare() gives more than 0.
inline bool operator>(const AnyReferenceBase& a, const AnyReferenceBase& b) { return compare(a, b) > 0; }

/// Whether compare() gives at most 0.
inline bool operator<=(const AnyReferenceBase& a, const AnyReferenceBase& b) { return compare(a, b) <= 0; }

/// Whether compare() gives at least 0.
inline bool operator>=(const AnyReferenceBase& a, const AnyReferenceBase& b) { return compare(a, b) >= 0; }

/// Writes a value for people, whatever the format of the stream:
///
///     ::sample::Line{name: "a \"text\"", points: [::sample::Point{x: 1, y: 2}], notes: {"colour": Red}}
///
/// Pairs and tuples stand in parentheses, enumerations show the names of their values, bytes are hexadecimal; of a
/// dynamic or an optional its content is shown, "nothing" when there is none; of what cannot be read the type, in angle
/// brackets. Texts are quoted and cannot steer a terminal. What lies beyond the limits of a Walk is shown as "...".
ZU_EXPORT std::ostream& operator<<(std::ostream& stream, const AnyReferenceBase& value);

} // namespace zu
