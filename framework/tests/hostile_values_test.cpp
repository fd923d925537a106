#include "support/samples.hpp"

#include <zu/conversion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <memory>

namespace zu {

namespace {

constexpr int k_deep = 100'000;

AnyValue nestedDirectly(int depth)
{
    AnyValue value = AnyValue::from(1);
    for (int i = 0; i != depth; ++i) {
        AnyValue outer(typeOf<AnyValue>());
        outer.getIf<AnyValue>()->swap(value);
        value = std::move(outer);
    }
    return value;
}

AnyValue nestedInLists(int depth)
{
    AnyValue value = AnyValue::from(1);
    for (int i = 0; i != depth; ++i) {
        std::vector<AnyValue> list;
        list.push_back(std::move(value));
        value = AnyValue::from(std::move(list));
    }
    return value;
}

AnyValue nestedInMaps(int depth)
{
    AnyValue value = AnyValue::from(1);
    for (int i = 0; i != depth; ++i) {
        std::map<std::string, AnyValue> map;
        map.emplace("a", std::move(value));
        value = AnyValue::from(std::move(map));
    }
    return value;
}

} // namespace

TEST(HostileValues, DeepNestingIsDestroyedWithoutOverflowingTheStack)
{
    for (const auto& nest : {&nestedDirectly, &nestedInLists, &nestedInMaps}) {
        AnyValue value = nest(k_deep);
        EXPECT_FALSE(value.isEmpty());
        value.reset();
        EXPECT_TRUE(value.isEmpty());
    }
}

TEST(HostileValues, DeepNestingIsNotCopied)
{
    for (const auto& nest : {&nestedDirectly, &nestedInLists, &nestedInMaps}) {
        const AnyValue value = nest(k_deep);
        EXPECT_THROW(AnyValue{value}, std::length_error);
        AnyValue target = AnyValue::from(7);
        EXPECT_THROW(target = value, std::length_error);
        EXPECT_EQ(target.toInt(), 7);
    }
    const AnyValue allowed = nestedInLists(999);
    EXPECT_FALSE(AnyValue(allowed).isEmpty());
}

TEST(HostileValues, DeepNestingIsNotConverted)
{
    const AnyValue direct = nestedDirectly(k_deep);
    const AnyValue lists = nestedInLists(k_deep);
    ConversionFailure failure;
    int number = 7;
    EXPECT_FALSE(tryConvert(direct, AnyReference::from(number), &failure));
    EXPECT_EQ(failure.reason, "the value is nested deeper than 64 levels");
    EXPECT_EQ(number, 7);
    EXPECT_FALSE(lists.tryTo<std::list<AnyValue>>());
    AnyValue target = AnyValue::from(7);
    EXPECT_FALSE(tryConvert(direct, AnyReference::from(target), &failure));
    EXPECT_EQ(failure.reason, "a value nested deeper than 1000 levels is not copied");
    EXPECT_EQ(target.toInt(), 7);
    EXPECT_EQ(nestedDirectly(65).toInt(), 1);
    EXPECT_THROW(nestedDirectly(66).toInt(), ConversionError);
}

TEST(HostileValues, DeepNestingIsReadStepByStep)
{
    const AnyValue value = nestedDirectly(k_deep);
    AnyReference inner = value.reference();
    for (int i = 0; i != k_deep; ++i)
        inner = inner.content();
    EXPECT_EQ(inner.toInt(), 1);
}

TEST(HostileValues, AListThatContainsItselfIsRefusedByConversion)
{
    std::vector<AnyReference> list;
    list.resize(2);
    list[0] = list[1] = AnyReference::from(list);
    const AnyReference self = AnyReference::from(list);
    EXPECT_FALSE(self.tryTo<std::vector<int>>());
    EXPECT_FALSE(self.tryTo<std::vector<std::vector<std::vector<int>>>>());
    const AnyValue copy(self);
    EXPECT_EQ(copy.size(), 2u);
    EXPECT_EQ(self.tryTo<std::list<AnyReference>>().value().size(), 2u);
}

TEST(HostileValues, AReferenceToItselfIsRefusedByConversion)
{
    AnyReference self;
    self = AnyReference::from(self);
    EXPECT_EQ(self.content().address(), &self);
    EXPECT_THROW(self.toInt(), ConversionError);
    EXPECT_FALSE(self.tryTo<std::string>());
    EXPECT_FALSE(
        (AnyValue::from(std::map<std::string, AnyReference>{{"x", self}}).tryTo<std::map<std::string, int>>()));
    const std::map<int, int> keyed{{1, 1}};
    EXPECT_FALSE(AnyReference::from(keyed).tryTo<sample::Point>());
}

TEST(HostileValues, EmptyValuesAreErrorsAndNotNumbers)
{
    EXPECT_THROW(AnyValue().toInt(), ConversionError);
    EXPECT_THROW(AnyValue(typeOf<AnyValue>()).toInt(), ConversionError);
    EXPECT_THROW(AnyValue().begin(), std::runtime_error);
    EXPECT_THROW(AnyValue()._element(0), std::runtime_error);
    EXPECT_THROW(AnyValue().content(), std::runtime_error);
    const auto list = AnyValue::from(std::vector<AnyValue>(2)).tryTo<std::vector<int>>();
    EXPECT_FALSE(list);
    int target = 1;
    EXPECT_FALSE(tryConvert(AnyValue(), AnyReference::from(target)));
    EXPECT_EQ(target, 1);
}

TEST(HostileValues, NullPointersAreNoTargets)
{
    const auto empty = AnyValue::from(std::shared_ptr<int>());
    EXPECT_FALSE(tryConvert(AnyValue::from(1), empty.content()));
    EXPECT_THROW(empty.content().set(1), ConversionError);
    EXPECT_FALSE(empty.tryTo<int>());
}

} // namespace zu
