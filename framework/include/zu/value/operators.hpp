#pragma once

#include <zu/export.hpp>
#include <zu/forward.hpp>

#include <iosfwd>

namespace zu {

/// Writes a value for people, whatever the format of the stream:
///
///     ::sample::Line{name: "a \"text\"", points: [::sample::Point{x: 1, y: 2}], notes: {"colour": Red}}
///
/// Pairs and tuples stand in parentheses, enumerations show the names of their values, bytes are hexadecimal; of a
/// dynamic or an optional its content is shown, "nothing" when there is none; of what cannot be read the type, in angle
/// brackets. Texts are quoted and cannot steer a terminal. What lies beyond the limits of a Walk is shown as "...".
ZU_EXPORT std::ostream& operator<<(std::ostream& stream, const AnyReferenceBase& value);

} // namespace zu
