#include <zu/conversion.hpp>

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <tuple>
#include <vector>

namespace zu {

namespace {

/// Holds every number of these tests.
__extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): only a typedef takes the extension mark

using Integers = std::tuple<bool, char, std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t,
                            std::uint32_t, std::int64_t, std::uint64_t>;

/// Calls `visit` with a value of each integer type.
template <class Visit>
void forEachInteger(Visit visit)
{
    std::apply([&visit](auto... types) { (visit(types), ...); }, Integers());
}

/// The first and last number of each integer type, with both neighbours.
std::vector<Wide> edges()
{
    std::vector<Wide> numbers;
    forEachInteger([&numbers](auto type) {
        using Limits = std::numeric_limits<decltype(type)>;
        for (const int beyond : {-1, 0, 1}) {
            numbers.push_back(static_cast<Wide>(Limits::min()) + beyond);
            numbers.push_back(static_cast<Wide>(Limits::max()) + beyond);
        }
    });
    return numbers;
}

/// Whether Target has the number.
template <class Target>
bool inRange(Wide number)
{
    return number >= std::numeric_limits<Target>::min() && number <= std::numeric_limits<Target>::max();
}

/// What `source` converts to; nothing, with the target as it was, when it does not.
template <class Target, class Source>
std::optional<Target> converted(Source source, Target before = Target(1))
{
    Target target = before;
    if (tryConvert(AnyReference::from(source), AnyReference::from(target)))
        return target;
    EXPECT_EQ(target, before);
    return std::nullopt;
}

template <class Source, class Target>
void expectByRange(Wide number)
{
    if (!inRange<Source>(number))
        return;
    const std::optional<Target> result = converted<Target>(static_cast<Source>(number));
    EXPECT_EQ(result.has_value(), inRange<Target>(number)) << static_cast<double>(number);
    if (result) {
        EXPECT_EQ(static_cast<Wide>(*result), number);
    }
}

} // namespace

TEST(NumberConversion, EveryIntegerWidthKeepsItsEdgesAndRefusesOneBeyond)
{
    forEachInteger([](auto source) {
        forEachInteger([](auto target) {
            using Source = decltype(source);
            using Target = decltype(target);
            SCOPED_TRACE(TypeInfo::of<Source>().name() + " to " + TypeInfo::of<Target>().name());
            for (const Wide number : edges())
                expectByRange<Source, Target>(number);
        });
    });
}

TEST(NumberConversion, NegativeNumbersAreInNoUnsignedType)
{
    EXPECT_FALSE(converted<std::uint8_t>(-1));
    EXPECT_FALSE(converted<std::uint64_t>(std::int8_t(-1)));
    EXPECT_FALSE(converted<std::uint64_t>(-1.0));
    EXPECT_FALSE(converted<bool>(-1));
}

TEST(NumberConversion, OnlyZeroAndOneAreBools)
{
    EXPECT_EQ(converted<bool>(1), true);
    EXPECT_EQ(converted<bool>(0, true), false);
    EXPECT_FALSE(converted<bool>(2));
    EXPECT_EQ(converted<bool>(1.0), true);
    EXPECT_FALSE(converted<bool>(2.0));
    EXPECT_EQ(converted<int>(true), 1);
    EXPECT_EQ(converted<double>(true), 1.0);
}

TEST(NumberConversion, IntegersNeverGoThroughDouble)
{
    const std::int64_t odd = (std::int64_t(1) << 53) + 1;
    EXPECT_EQ(converted<std::uint64_t>(odd), static_cast<std::uint64_t>(odd));
    EXPECT_EQ(converted<std::uint64_t>(std::int64_t(INT64_MAX)), static_cast<std::uint64_t>(INT64_MAX));
    EXPECT_FALSE(converted<std::int64_t>(std::uint64_t(1) << 63));
}

TEST(NumberConversion, IntegersBecomeTheNearestFloat)
{
    const std::int64_t odd = (std::int64_t(1) << 53) + 1;
    EXPECT_EQ(converted<double>(odd), 9007199254740992.0);
    EXPECT_EQ(converted<double>(UINT64_MAX), 18446744073709551616.0);
    EXPECT_EQ(converted<double>(INT64_MIN), -9223372036854775808.0);
    EXPECT_EQ(converted<float>((1 << 24) + 1), 16777216.0f);
    // To double and then to float would give the neighbour below.
    const std::int64_t roundedOnce = (std::int64_t(1) << 54) + (std::int64_t(1) << 30) + 1;
    EXPECT_EQ(converted<float>(roundedOnce), static_cast<float>(roundedOnce));
    EXPECT_NE(converted<float>(roundedOnce), static_cast<float>(static_cast<double>(roundedOnce)));
}

TEST(NumberConversion, FloatsBecomeIntegersWithoutTheirFraction)
{
    EXPECT_EQ(converted<int>(2.9), 2);
    EXPECT_EQ(converted<int>(-2.9f), -2);
    EXPECT_EQ(converted<unsigned>(-0.9), 0u);
    EXPECT_EQ(converted<std::int8_t>(127.9), std::int8_t(127));
    EXPECT_FALSE(converted<std::int8_t>(128.0));
    EXPECT_EQ(converted<std::int8_t>(-128.9), std::int8_t(-128));
    EXPECT_FALSE(converted<std::int8_t>(-129.0));
}

TEST(NumberConversion, FloatsAtTheEdgesOfIntegersAreExact)
{
    const double two63 = 9223372036854775808.0;
    const double two64 = 18446744073709551616.0;
    EXPECT_FALSE(converted<std::int64_t>(two63));
    EXPECT_EQ(converted<std::int64_t>(std::nextafter(two63, 0)), INT64_MAX - 1023);
    EXPECT_EQ(converted<std::int64_t>(-two63), INT64_MIN);
    EXPECT_FALSE(converted<std::int64_t>(std::nextafter(-two63, -DBL_MAX)));
    EXPECT_EQ(converted<std::uint64_t>(two63), std::uint64_t(1) << 63);
    EXPECT_EQ(converted<std::uint64_t>(std::nextafter(two64, 0)), UINT64_MAX - 2047);
    EXPECT_FALSE(converted<std::uint64_t>(two64));
    EXPECT_FALSE(converted<std::int32_t>(2147483648.0f));
    EXPECT_EQ(converted<std::int32_t>(-2147483648.0f), INT32_MIN);
}

TEST(NumberConversion, NanAndInfinitiesAreInNoInteger)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double number : {infinity, -infinity, std::nan("")}) {
        EXPECT_FALSE(converted<std::int64_t>(number)) << number;
        EXPECT_FALSE(converted<std::uint8_t>(number)) << number;
        EXPECT_FALSE(converted<bool>(number)) << number;
    }
}

TEST(NumberConversion, NanAndInfinitiesStayAmongFloats)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(converted<float>(infinity), std::numeric_limits<float>::infinity());
    EXPECT_EQ(converted<double>(-std::numeric_limits<float>::infinity()), -infinity);
    EXPECT_TRUE(std::isnan(converted<float>(std::nan("")).value_or(0.f)));
}

TEST(NumberConversion, DoublesBeyondFloatAreRefusedAndSmallOnesRounded)
{
    const double maximum = static_cast<double>(FLT_MAX);
    EXPECT_EQ(converted<float>(maximum), FLT_MAX);
    EXPECT_FALSE(converted<float>(std::nextafter(maximum, DBL_MAX)));
    EXPECT_FALSE(converted<float>(-DBL_MAX));
    EXPECT_EQ(converted<float>(1e-300), 0.0f);
    EXPECT_EQ(converted<float>(0.1), 0.1f);
}

TEST(NumberConversion, RefusalsNameTheNumberAndTheType)
{
    const auto errorOf = [](auto number, auto target) {
        ConversionFailure failure;
        EXPECT_FALSE(tryConvert(AnyReference::from(number), AnyReference::from(target), &failure));
        return failure.message();
    };
    EXPECT_EQ(errorOf(300, static_cast<unsigned char>(0)),
              "Cannot convert int to unsigned char: 300 is not in the range of unsigned char");
    EXPECT_EQ(errorOf(-1, 0u), "Cannot convert int to unsigned int: -1 is not in the range of unsigned int");
    EXPECT_EQ(errorOf(UINT64_MAX, 0),
              "Cannot convert unsigned long to int: 18446744073709551615 is not in the range of int");
    EXPECT_EQ(errorOf(1e300, 0.f),
              "Cannot convert double to float: 1.0000000000000001e+300 is not in the range of float");
    EXPECT_EQ(errorOf(std::nan(""), 0), "Cannot convert double to int: nan is not in the range of int");
}

} // namespace zu
