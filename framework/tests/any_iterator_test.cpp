#include "support/samples.hpp"

#include <zu/any_iterator.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <stdexcept>

namespace zu {

namespace {

std::vector<std::int64_t> numbersOf(const AnyReferenceBase& list)
{
    std::vector<std::int64_t> numbers;
    for (const AnyReference element : list)
        numbers.push_back(element.toInt());
    return numbers;
}

} // namespace

TEST(AnyIterator, WalksEveryKindOfList)
{
    EXPECT_THAT(numbersOf(AnyValue::from(std::vector<int>{1, 2, 3})), testing::ElementsAre(1, 2, 3));
    EXPECT_THAT(numbersOf(AnyValue::from(std::list<short>{1, 2})), testing::ElementsAre(1, 2));
    EXPECT_THAT(numbersOf(AnyValue::from(VarArguments<long>({4, 5}))), testing::ElementsAre(4, 5));
    EXPECT_THAT(numbersOf(AnyValue::from(std::vector<bool>{true, false, true})), testing::ElementsAre(1, 0, 1));
    EXPECT_THAT(numbersOf(AnyValue::from(std::vector<int>())), testing::IsEmpty());
}

TEST(AnyIterator, WalksMapsInTheirOrderByEntry)
{
    std::map<std::string, int> map{{"b", 2}, {"a", 1}};
    std::string seen;
    for (const AnyReference entry : AnyReference::from(map)) {
        EXPECT_EQ(entry.kind(), TypeKind::Tuple);
        seen += std::string(entry._element(0).text()) + std::to_string(entry._element(1).toInt());
    }
    EXPECT_EQ(seen, "a1b2");
}

TEST(AnyIterator, HandsOutTheElementsThemselves)
{
    std::vector<int> list{1, 2};
    for (const AnyReference element : AnyReference::from(list))
        element.set(element.toInt() * 10);
    EXPECT_THAT(list, testing::ElementsAre(10, 20));
}

TEST(AnyIterator, ElementsOfAPackedListAreForReadingOnly)
{
    std::vector<bool> list{true};
    EXPECT_TRUE((*AnyReference::from(list).begin()).isReadOnly());
    EXPECT_TRUE(AnyReference::from(list)._element(0).isReadOnly());
    EXPECT_EQ(AnyReference::from(list)._element(0).kind(), TypeKind::Int);
}

TEST(AnyIterator, GoingBeyondTheEndIsAnError)
{
    std::vector<int> list{1};
    std::map<int, int> map;
    AnyIterator end = AnyReference::from(list).end();
    EXPECT_THROW(*end, std::out_of_range);
    EXPECT_THROW(++end, std::out_of_range);
    EXPECT_THROW(*AnyReference::from(map).begin(), std::out_of_range);
    AnyIterator last = AnyReference::from(list).begin();
    EXPECT_EQ(++last, end);
    EXPECT_THROW(++last, std::out_of_range);
}

TEST(AnyIterator, ADefaultMadeOneHasNoElement)
{
    AnyIterator none;
    std::vector<int> list;
    EXPECT_EQ(none, AnyIterator());
    EXPECT_NE(none, AnyReference::from(list).end());
    EXPECT_NE(AnyReference::from(list).end(), none);
    EXPECT_THROW(*none, std::out_of_range);
    EXPECT_THROW(++none, std::out_of_range);
    EXPECT_TRUE(none.position().isEmpty());
}

TEST(AnyIterator, PositionsCompareWithinOneRangeAndDifferAcrossTypes)
{
    std::vector<int> list{1, 2};
    std::list<int> other{1, 2};
    AnyIterator it = AnyReference::from(list).begin();
    EXPECT_EQ(it, AnyReference::from(list).begin());
    EXPECT_NE(it, AnyReference::from(other).begin());
    const AnyIterator before = it++;
    EXPECT_EQ(before, AnyReference::from(list).begin());
    EXPECT_NE(before, it);
    EXPECT_EQ((*it).toInt(), 2);
}

TEST(AnyIterator, PositionsInVectorsOfDifferentElementsAreDifferent)
{
    std::vector<int> list;
    std::vector<long> other;
    EXPECT_NE(AnyReference::from(list).begin(), AnyReference::from(other).begin());
    EXPECT_EQ(AnyReference::from(list).begin(), AnyReference::from(list).end());
}

TEST(AnyIterator, IsMadeOfAPositionOnly)
{
    EXPECT_THROW(AnyIterator(AnyValue::from(1)), std::runtime_error);
    EXPECT_THROW(AnyIterator{AnyValue()}, std::runtime_error);
}

TEST(AnyIterator, IsAValueOfKindIterator)
{
    std::vector<int> list{1, 2};
    const AnyValue value = AnyValue::from(AnyReference::from(list).begin());
    EXPECT_EQ(value.kind(), TypeKind::Iterator);
    EXPECT_EQ(AnyReference::from(list).begin().position().kind(), TypeKind::Iterator);
    AnyIterator walker(value);
    EXPECT_EQ((*walker).toInt(), 1);
    ++walker;
    EXPECT_EQ((*walker).toInt(), 2);
    EXPECT_EQ(AnyIterator(value), AnyIterator(AnyValue::from(AnyReference::from(list).begin())));
}

} // namespace zu
