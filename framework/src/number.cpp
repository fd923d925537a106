#include "number.hpp"

#include <zu/type/float.hpp>
#include <zu/type/int.hpp>

#include <cmath>
#include <functional>

namespace zu::detail {

namespace {

constexpr double k_beyondUnsigned = 18446744073709551616.0; // 2^64
constexpr double k_lowestSigned = -9223372036854775808.0;   // -2^63

Number numberOf(std::int64_t bits, bool isSigned)
{
    if (isSigned && bits < 0)
        return bits;
    return static_cast<std::uint64_t>(bits);
}

/// The whole number that a real one is; the real one again when it is none, or beyond all that integers have.
Number wholeOf(double real)
{
    if (!(real >= k_lowestSigned && real < k_beyondUnsigned) || std::trunc(real) != real)
        return real;
    return real < 0 ? Number(static_cast<std::int64_t>(real)) : Number(static_cast<std::uint64_t>(real));
}

template <class T>
int order(T a, T b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

struct Compare
{
    int operator()(std::int64_t a, std::int64_t b) const { return order(a, b); }
    int operator()(std::uint64_t a, std::uint64_t b) const { return order(a, b); }
    int operator()(std::int64_t, std::uint64_t) const { return -1; }
    int operator()(std::uint64_t, std::int64_t) const { return 1; }
    int operator()(double a, double b) const
    {
        const int order = detail::order(std::isnan(a), std::isnan(b));
        return order != 0 ? order : detail::order(a, b);
    }

    /// A real number that is none of the whole ones: it lies between two of them, or beyond them all.
    template <class Whole>
    int operator()(Whole a, double b) const
    {
        if (std::isnan(b) || b >= k_beyondUnsigned)
            return -1;
        if (b < k_lowestSigned)
            return 1;
        const int floors = compareNumbers(a, wholeOf(std::floor(b)));
        return floors > 0 ? 1 : -1;
    }
    template <class Whole>
    int operator()(double a, Whole b) const
    {
        return -(*this)(b, a);
    }
};

Number canonical(const Number& number)
{
    const double* real = std::get_if<double>(&number);
    return real ? wholeOf(*real) : number;
}

} // namespace

Number numberOf(const AnyReferenceBase& value)
{
    if (value.kind() == TypeKind::Float)
        return static_cast<const FloatTypeInterface&>(*value.type()).get(value.address());
    const auto& type = static_cast<const IntTypeInterface&>(*value.type());
    return numberOf(type.get(value.address()), type.isSigned());
}

int compareNumbers(const Number& a, const Number& b) { return std::visit(Compare(), canonical(a), canonical(b)); }

std::size_t hashOfNumber(const Number& number)
{
    const Number canonicalNumber = canonical(number);
    const double* real = std::get_if<double>(&canonicalNumber);
    return real && std::isnan(*real) ? 0 : std::hash<Number>()(canonicalNumber);
}

} // namespace zu::detail
