#include "conversion_rules.hpp"

#include <zu/type/float.hpp>
#include <zu/type/int.hpp>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace zu::detail {

namespace {

/// A whole number as an interface gives it.
struct Whole
{
    std::int64_t bits;
    bool isSigned;

    bool isNegative() const { return isSigned && bits < 0; }
    std::uint64_t magnitudeIfPositive() const { return static_cast<std::uint64_t>(bits); }
};

/// The numbers that an integer type has: -2^negativeBits (0: none below zero) to 2^positiveBits - 1.
struct Range
{
    int negativeBits;
    int positiveBits;
};

const IntTypeInterface& intType(const AnyReferenceBase& reference)
{
    return static_cast<const IntTypeInterface&>(*reference.type());
}

const FloatTypeInterface& floatType(const AnyReferenceBase& reference)
{
    return static_cast<const FloatTypeInterface&>(*reference.type());
}

Range rangeOf(const IntTypeInterface& type)
{
    if (type.byteSize() == 0)
        return {0, 1};
    const int bits = type.byteSize() >= sizeof(std::int64_t) ? 64 : static_cast<int>(type.byteSize()) * 8;
    return type.isSigned() ? Range{bits - 1, bits - 1} : Range{0, bits};
}

bool contains(Range range, Whole number)
{
    if (number.isNegative())
        return range.negativeBits != 0 &&
               number.bits >= std::numeric_limits<std::int64_t>::min() >> (63 - range.negativeBits);
    return number.magnitudeIfPositive() <= std::numeric_limits<std::uint64_t>::max() >> (64 - range.positiveBits);
}

/// `number` has no fraction. Powers of two are exact, so the comparison is.
bool contains(Range range, double number)
{
    const double lowest = range.negativeBits == 0 ? 0.0 : -std::ldexp(1.0, range.negativeBits);
    return number >= lowest && number < std::ldexp(1.0, range.positiveBits);
}

std::string textOf(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

std::string textOf(Whole number)
{
    return number.isNegative() ? std::to_string(number.bits) : std::to_string(number.magnitudeIfPositive());
}

template <class Number>
bool failForRange(Conversion& conversion, Number number, const TypeInterface& type)
{
    return conversion.fail([&] { return textOf(number) + " is not in the range of " + type.name(); });
}

} // namespace

bool intToInt(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const Whole number{intType(source).get(source.address()), intType(source).isSigned()};
    const IntTypeInterface& type = intType(target);
    if (!contains(rangeOf(type), number) || !type.accepts(number.bits))
        return failForRange(conversion, number, type);
    type.set(target.writableAddress(), number.bits);
    return true;
}

bool intToFloat(Conversion&, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto rounded = [&target](auto number) {
        // Straight to the target's precision: rounding to double first could round a second time to another neighbour.
        return floatType(target).byteSize() == sizeof(float) ? static_cast<double>(static_cast<float>(number))
                                                             : static_cast<double>(number);
    };
    const std::int64_t bits = intType(source).get(source.address());
    const double number = intType(source).isSigned() ? rounded(bits) : rounded(static_cast<std::uint64_t>(bits));
    floatType(target).set(target.writableAddress(), number);
    return true;
}

bool floatToInt(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const double number = floatType(source).get(source.address());
    const double whole = std::trunc(number);
    const IntTypeInterface& type = intType(target);
    if (!contains(rangeOf(type), whole)) // NaN and infinities are in none
        return failForRange(conversion, number, type);
    const std::int64_t bits =
        whole < 0 ? static_cast<std::int64_t>(whole) : static_cast<std::int64_t>(static_cast<std::uint64_t>(whole));
    if (!type.accepts(bits))
        return failForRange(conversion, number, type);
    type.set(target.writableAddress(), bits);
    return true;
}

bool floatToFloat(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const double number = floatType(source).get(source.address());
    const FloatTypeInterface& type = floatType(target);
    if (type.byteSize() == sizeof(float) && std::isfinite(number) && std::fabs(number) > static_cast<double>(FLT_MAX))
        return failForRange(conversion, number, type);
    type.set(target.writableAddress(), number);
    return true;
}

} // namespace zu::detail
