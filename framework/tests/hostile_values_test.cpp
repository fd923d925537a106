#include "support/samples.hpp"

#include <zu/conversion.hpp>
#include <zu/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <pthread.h>

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

/// Runs `function` on a thread with a stack of 512 KiB.
void onSmallStack(void (*function)())
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 512 * 1024), 0);
    pthread_t thread{};
    const auto run = [](void* argument) -> void* {
        (*static_cast<void (**)()>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &function), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
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

TEST(HostileValues, DeepNestingIsNeitherComparedNorHashedAndPrintedInPart)
{
    for (const auto& nest : {&nestedDirectly, &nestedInLists, &nestedInMaps}) {
        const AnyValue value = nest(k_deep);
        const AnyValue other = nest(k_deep);
        EXPECT_THROW(compare(value, other), std::length_error);
        EXPECT_THROW(static_cast<void>(value == other), std::length_error);
        EXPECT_THROW(value.hash(), std::length_error);
        EXPECT_THAT(testing::PrintToString(value), testing::HasSubstr("..."));
    }
}

TEST(HostileValues, ASmallStackSufficesForWhatIsNotRefused)
{
    onSmallStack([] {
        for (const auto& nest : {&nestedInLists, &nestedInMaps}) {
            const AnyValue value = nest(k_maxNesting);
            const AnyValue other = nest(k_maxNesting);
            EXPECT_EQ(value, other);
            EXPECT_EQ(value.hash(), other.hash());
            EXPECT_EQ(testing::PrintToString(value).find("..."), std::string::npos);
            EXPECT_GT(toJson(value).size(), std::size_t(2 * k_maxNesting));
        }
        const AnyValue deep = nestedInMaps(k_deep);
        EXPECT_THROW(deep.hash(), std::length_error);
        EXPECT_THROW(toJson(deep), ConversionError);
    });
}

TEST(HostileValues, MapsThatAreTheirOwnKeysAreNotCompared)
{
    int numbers[] = {1, 2};
    std::vector<AnyReference> a{AnyReference::from(numbers[0])};
    std::vector<AnyReference> b{AnyReference::from(numbers[1])};
    const std::map<AnyReference, int> map{{AnyReference::from(a), 1}, {AnyReference::from(b), 2}};
    const std::map<AnyReference, int> other{{AnyReference::from(a), 1}, {AnyReference::from(b), 2}};
    a[0] = AnyReference::from(map);
    b[0] = AnyReference::from(other);
    EXPECT_THROW(compare(AnyReference::from(map), AnyReference::from(other)), std::length_error);
    EXPECT_THROW(AnyReference::from(map).hash(), std::length_error);
}

TEST(HostileValues, WhatIsReferredToAgainAndAgainIsNotComparedToTheEnd)
{
    std::vector<std::vector<AnyReference>> levels(40, std::vector<AnyReference>(2));
    std::vector<std::vector<AnyReference>> others = levels;
    for (auto* all : {&levels, &others}) {
        for (std::size_t i = 1; i != all->size(); ++i)
            (*all)[i - 1][0] = (*all)[i - 1][1] = AnyReference::from((*all)[i]);
    }
    const AnyReference value = AnyReference::from(levels[0]);
    EXPECT_THROW(compare(value, AnyReference::from(others[0])), std::length_error);
    EXPECT_THROW(value.hash(), std::length_error);
    EXPECT_LT(testing::PrintToString(value).size(), 10'000'000u);
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
