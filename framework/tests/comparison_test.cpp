#include "support/samples.hpp"

#include <zu/any_value.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <list>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace zu {

namespace {

using Values = std::vector<AnyValue>;

constexpr auto k_max = std::numeric_limits<std::uint64_t>::max();
constexpr auto k_min = std::numeric_limits<std::int64_t>::min();

template <class... T>
Values valuesOf(const T&... objects)
{
    return {AnyValue::from(objects)...};
}

/// Each value is equal to itself, with the same hash, and to the others as `expected`.
void expectOrder(const Values& values, int expected)
{
    for (std::size_t i = 0; i != values.size(); ++i) {
        for (std::size_t j = 0; j != values.size(); ++j) {
            SCOPED_TRACE(testing::Message() << values[i] << " and " << values[j]);
            const int order = i == j ? 0 : i < j ? expected : -expected;
            EXPECT_EQ(compare(values[i], values[j]), order);
            EXPECT_EQ(values[i] == values[j], order == 0);
            EXPECT_EQ(values[i] != values[j], order != 0);
            EXPECT_EQ(values[i] < values[j], order < 0);
            EXPECT_EQ(values[i] >= values[j], order >= 0);
            EXPECT_TRUE(order != 0 || values[i].hash() == values[j].hash());
        }
    }
}

void expectAscending(const Values& values) { expectOrder(values, -1); }
void expectEqual(const Values& values) { expectOrder(values, 0); }

} // namespace

TEST(Comparison, NumbersAreEqualWhateverTheirTypes)
{
    expectEqual(valuesOf(1, 1L, 1u, short{1}, 1.0, 1.0f, true, sample::Colour::Red));
    expectEqual(valuesOf(0, 0.0, -0.0, false));
    expectEqual(valuesOf(k_min, -9223372036854775808.0));
    expectEqual(valuesOf(std::uint64_t{1} << 63, 9223372036854775808.0));
    expectEqual(valuesOf(std::nan(""), std::nanf("1")));
}

TEST(Comparison, NumbersAreOrderedWithoutLoss)
{
    const double infinity = std::numeric_limits<double>::infinity();
    expectAscending(valuesOf(-infinity, -1e300, k_min, k_min + 1, -1.5, -1, -0.5, 0, 0.5, true, 1.5, 2,
                             std::int64_t{1} << 53, (std::int64_t{1} << 53) + 1, k_max, 18446744073709551616.0, 1e300,
                             infinity, std::nan("")));
}

TEST(Comparison, TextsAreOrderedByTheirBytes)
{
    expectEqual(valuesOf("a", std::string("a")));
    expectAscending(valuesOf("", std::string("\0", 1), "a", "a b", "aa", "b", "\xc3\xa9"));
    const std::string_view view = "a";
    EXPECT_EQ(AnyReference::from(view), AnyValue::from("a"));
}

TEST(Comparison, ListsAreEqualByTheirElements)
{
    expectEqual(valuesOf(std::vector<int>{1, 2}, std::list<double>{1, 2}, std::array<short, 2>{1, 2},
                         std::set<long>{2, 1}, VarArguments<int>({1, 2}), valuesOf(1, 2.0)));
    expectAscending(valuesOf(std::vector<int>(), std::vector<int>{1}, std::vector<int>{1, 0}, std::vector<int>{1, 2},
                             std::vector<int>{2}));
}

TEST(Comparison, MapsAreEqualByTheirEntriesInAnyOrder)
{
    expectEqual(valuesOf(std::map<std::string, int>{{"a", 1}, {"b", 2}},
                         std::unordered_map<std::string, double>{{"b", 2}, {"a", 1}},
                         std::map<std::string, AnyValue, std::greater<std::string>>{{"a", AnyValue::from(1L)},
                                                                                    {"b", AnyValue::from(2)}}));
    using Map = std::map<int, int>;
    expectAscending(valuesOf(Map{}, Map{{1, 1}}, Map{{1, 1}, {2, 2}}, Map{{1, 2}}, Map{{2, 0}}));
}

TEST(Comparison, StructsAreEqualByClassAndMembers)
{
    using sample::Point;
    expectEqual(valuesOf(Point{1, 2}, Point{1, 2}));
    expectAscending(
        valuesOf(std::pair<int, int>(1, 2), Point{0, 9}, Point{1, 0}, Point{1, 2}, sample::WidePoint{2, 1}));
    expectEqual(valuesOf(std::pair<int, std::string>(1, "a"), std::tuple<long, std::string>(1, "a")));
}

TEST(Comparison, WhatIsHeldCountsAndNotItsHolder)
{
    const AnyValue one = AnyValue::from(1);
    expectEqual({one, AnyValue(AnyReference::from(one)), AnyValue::from(std::optional<int>(1))});
    expectEqual({AnyValue(), AnyValue(typeOf<AnyValue>()), AnyValue::from(std::optional<int>())});
}

TEST(Comparison, DifferentKindsStandInAFixedOrder)
{
    int number = 1;
    Values values = valuesOf(AnyValue(), 5, "a", Buffer(1), std::vector<int>{1}, std::map<int, int>(), sample::Point(),
                             &number, sample::Opaque("x"));
    values.insert(values.begin() + 1, AnyValue(typeOf<void>()));
    expectAscending(values);
}

TEST(Comparison, PointersAreEqualWhereTheyPointToTheSame)
{
    const auto shared = std::make_shared<int>(1);
    expectEqual(valuesOf(shared, shared.get(), static_cast<void*>(shared.get())));
    EXPECT_NE(AnyValue::from(shared), AnyValue::from(std::make_shared<int>(1)));
    expectEqual(valuesOf(static_cast<int*>(nullptr), std::shared_ptr<double>()));
}

TEST(Comparison, WhatCannotBeReadIsEqualToItselfAlone)
{
    const sample::Opaque opaque("x");
    const AnyValue copy = AnyValue::from(opaque);
    EXPECT_EQ(AnyReference::from(opaque), AnyReference::from(opaque));
    EXPECT_NE(AnyReference::from(opaque), copy);
    EXPECT_EQ(copy.hash(), copy.hash());
}

TEST(Comparison, WhatCannotBeReadAndIsHeldInPlaceIsEqualByItsBytes)
{
    using std::chrono::seconds;
    expectEqual(valuesOf(seconds(5), seconds(5)));
    EXPECT_NE(AnyValue::from(seconds(5)), AnyValue::from(seconds(6)));
    EXPECT_NE(AnyValue::from(seconds(5)), AnyValue::from(std::chrono::nanoseconds(5)));
    Values values;
    for (int i = 0; i != 100; ++i)
        values.push_back(AnyValue::from(seconds(i * 37 % 100)));
    std::sort(values.begin(), values.end(), std::greater<AnyValue>()); // moves them from place to place
    EXPECT_TRUE(std::is_sorted(values.rbegin(), values.rend()));
}

TEST(Comparison, KeysThatAreEqualByContentAreOrderedByTheirValues)
{
    const int one = 1;
    const int same = 1;
    using Map = std::map<AnyReference, int, bool (*)(const AnyReference&, const AnyReference&)>;
    const auto byPlace = [](const AnyReference& a, const AnyReference& b) {
        return std::less<const void*>()(a.address(), b.address());
    };
    const Map map({{AnyReference::from(one), 1}, {AnyReference::from(same), 2}}, byPlace);
    const Map other({{AnyReference::from(one), 2}, {AnyReference::from(same), 1}}, byPlace);
    expectEqual(valuesOf(map, other));
}

TEST(Comparison, ValuesWithoutEndAreErrorsUnlessTheyAreTheSame)
{
    std::vector<AnyReference> list(1);
    std::vector<AnyReference> other(1);
    list[0] = AnyReference::from(list);
    other[0] = AnyReference::from(other);
    EXPECT_EQ(AnyReference::from(list), AnyReference::from(list));
    EXPECT_THROW(compare(AnyReference::from(list), AnyReference::from(other)), std::length_error);
    EXPECT_THROW(AnyReference::from(list).hash(), std::length_error);
}

TEST(Comparison, ValuesAreKeysOfContainers)
{
    std::map<AnyValue, int> map;
    map[AnyValue::from("a")] = 1;
    map[AnyValue::from(2)] = 2;
    EXPECT_EQ(map.at(AnyValue::from(2.0)), 2);
    const std::unordered_set<AnyValue> set{AnyValue::from(1), AnyValue::from(1.0), AnyValue::from("1")};
    EXPECT_EQ(set.size(), 2u);
    EXPECT_EQ(AnyReference::from(map).find(AnyValue::from("a")).toInt(), 1);
}

} // namespace zu
