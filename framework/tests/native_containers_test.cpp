// The containers of the standard library beside vectors and maps.
#include "support/conversions.hpp"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <list>
#include <set>
#include <unordered_map>

namespace zu {

using conversiontest::failureOf;

namespace {

template <class List>
std::vector<int> numbersOf(const List& list)
{
    std::vector<int> numbers;
    for (const AnyReference element : AnyReference::from(list))
        numbers.push_back(static_cast<int>(element.toInt()));
    return numbers;
}

} // namespace

TEST(NativeContainers, ArraysDequesAndSetsAreLists)
{
    EXPECT_EQ(AnyValue::from(std::array<int, 2>{1, 2}).kind(), TypeKind::List);
    EXPECT_EQ(numbersOf(std::array<int, 2>{1, 2}), (std::vector<int>{1, 2}));
    EXPECT_EQ(numbersOf(std::array<const int, 2>{1, 2}), (std::vector<int>{1, 2}));
    EXPECT_EQ(numbersOf(std::array<int, 0>()), std::vector<int>());
    EXPECT_EQ(numbersOf(std::deque<int>{1, 2}), (std::vector<int>{1, 2}));
    EXPECT_EQ(numbersOf(std::set<int>{2, 1}), (std::vector<int>{1, 2}));
    EXPECT_EQ(AnyValue::from(std::deque<int>{1, 2})._element(1).toInt(), 2);
    EXPECT_EQ(AnyValue::from(std::set<int>{2, 1})._element(1).toInt(), 2);
}

TEST(NativeContainers, UnorderedMapsAreMaps)
{
    std::unordered_map<std::string, int> map{{"a", 1}, {"b", 2}};
    const AnyReference reference = AnyReference::from(map);
    EXPECT_EQ(reference.kind(), TypeKind::Map);
    EXPECT_EQ(reference.find("b").toInt(), 2);
    EXPECT_EQ((reference.to<std::map<std::string, long>>()), (std::map<std::string, long>{{"a", 1}, {"b", 2}}));
    EXPECT_EQ((AnyValue::from(std::map<std::string, int>{{"c", 3}}).to<std::unordered_map<std::string, int>>()),
              (std::unordered_map<std::string, int>{{"c", 3}}));
}

TEST(NativeContainers, ElementsOfSetsAndOfArraysOfConstantsAreForReadingOnly)
{
    std::set<int> set{1};
    std::array<const int, 1> constants{1};
    std::array<int, 1> array{1};
    EXPECT_TRUE((*AnyReference::from(set).begin()).isReadOnly());
    EXPECT_TRUE(AnyReference::from(set)._element(0).isReadOnly());
    EXPECT_TRUE((*AnyReference::from(constants).begin()).isReadOnly());
    (*AnyReference::from(array).begin()).set(5);
    EXPECT_EQ(array[0], 5);
}

TEST(NativeContainers, ListsConvertIntoThemByElement)
{
    const auto numbers = AnyValue::from(std::vector<long>{2, 1});
    EXPECT_EQ((numbers.to<std::array<int, 2>>()), (std::array<int, 2>{2, 1}));
    EXPECT_EQ(numbers.to<std::deque<int>>(), (std::deque<int>{2, 1}));
    EXPECT_EQ(numbers.to<std::set<int>>(), (std::set<int>{1, 2}));
    EXPECT_EQ((AnyValue::from(std::array<int, 2>{1, 2}).to<std::vector<double>>()), (std::vector<double>{1, 2}));
    EXPECT_EQ((AnyValue::from(std::array<int, 2>{1, 2}).to<std::array<double, 2>>()), (std::array<double, 2>{1, 2}));
}

TEST(NativeContainers, AnArrayTakesAsManyElementsAsItHas)
{
    EXPECT_EQ(
        (failureOf<std::array<int, 2>>(std::vector<int>{1, 2, 3}, {7, 8})),
        "Cannot convert std::vector<int> to std::array<int, 2>: 3 elements do not make the 2 of std::array<int, 2>");
    EXPECT_EQ((failureOf<std::array<signed char, 2>>(std::vector<int>{1, 300}, {7, 8})),
              "Cannot convert std::vector<int> to std::array<signed char, 2> at [1]: 300 is not in the range of "
              "signed char");
}

TEST(NativeContainers, ASetDoesNotTakeTheSameElementTwice)
{
    EXPECT_EQ(failureOf<std::set<int>>(std::vector<int>{1, 2, 1}, {7}),
              "Cannot convert std::vector<int> to std::set<int>: two elements become one, the second being [2]");
    EXPECT_EQ(failureOf<std::set<int>>(std::vector<double>{1.25, 1.5}, {7}),
              "Cannot convert std::vector<double> to std::set<int>: two elements become one, the second being [1]");
}

} // namespace zu
