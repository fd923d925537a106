#pragma once

#include <zu/value/any_reference.hpp>

#include <cstddef>
#include <cstdint>
#include <variant>

namespace zu::detail {

/// A number as a value of kind Int or Float holds it, without loss: negative, or zero and positive, or real.
using Number = std::variant<std::int64_t, std::uint64_t, double>;

Number numberOf(const AnyReferenceBase& value);

/// Negative, 0 or positive; NaN is equal to NaN and greater than all others.
int compareNumbers(const Number& a, const Number& b);

/// Equal for equal numbers.
std::size_t hashOfNumber(const Number& number);

} // namespace zu::detail
