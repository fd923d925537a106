// Changing containers through references to them.
#include "support/samples.hpp"

#include <zu/conversion.hpp>

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <list>
#include <memory>
#include <set>
#include <unordered_map>

namespace zu {

namespace {

template <class Error, class Call>
std::string errorOf(Call call)
{
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "not thrown";
}

} // namespace

TEST(ContainerChanges, ListsTakeConvertedElementsAtAnyPlace)
{
    std::list<double> list;
    const AnyReference reference = AnyReference::from(list);
    EXPECT_TRUE(reference.append(2));
    EXPECT_TRUE(reference.insert(0, 1.5f));
    EXPECT_TRUE(reference.insert(2u, AnyValue::from(3)));
    EXPECT_EQ(list, (std::list<double>{1.5, 2, 3}));
    std::vector<std::string> texts;
    AnyReference::from(texts).append("text");
    EXPECT_EQ(texts, std::vector<std::string>{"text"});
    std::deque<AnyValue> values;
    AnyReference::from(values).append(1);
    EXPECT_EQ(values.front().toInt(), 1);
    std::vector<bool> flags;
    AnyReference::from(flags).append(true);
    EXPECT_EQ(flags, std::vector<bool>{true});
}

TEST(ContainerChanges, ListsLoseElements)
{
    std::vector<int> list{1, 2, 3};
    const AnyReference reference = AnyReference::from(list);
    EXPECT_TRUE(reference.erase(1));
    EXPECT_EQ(list, (std::vector<int>{1, 3}));
    reference.clear();
    EXPECT_TRUE(list.empty());
}

TEST(ContainerChanges, AnElementMayBeAPartOfTheList)
{
    std::vector<std::string> list{"a"};
    const AnyReference reference = AnyReference::from(list);
    for (int i = 0; i != 5; ++i)
        reference.append(reference._element(0));
    reference.insert(0, reference._element(5));
    EXPECT_EQ(list, std::vector<std::string>(7, "a"));
}

TEST(ContainerChanges, MapsTakeAKeyOnceAndLoseIt)
{
    std::map<std::string, long> map;
    const AnyReference reference = AnyReference::from(map);
    EXPECT_TRUE(reference.insert("a", 1));
    EXPECT_FALSE(reference.insert("a", 2));
    EXPECT_EQ(map.at("a"), 1);
    reference.find("a").set(3.0);
    EXPECT_EQ(map.at("a"), 3);
    EXPECT_TRUE(reference.erase("a"));
    EXPECT_FALSE(reference.erase("a"));
    std::unordered_map<int, int> numbers{{1, 1}};
    AnyReference::from(numbers).clear();
    EXPECT_TRUE(numbers.empty());
}

TEST(ContainerChanges, AKeyThatTheMapCannotHaveIsNotThere)
{
    const std::map<signed char, int> map{{1, 5}};
    const AnyReference reference = AnyReference::from(map);
    EXPECT_EQ(reference.find(1.0).toInt(), 5);
    EXPECT_TRUE(reference.find(1.0).isReadOnly());
    EXPECT_TRUE(reference.find(300).isEmpty());
    EXPECT_TRUE(reference.find("1").isEmpty());
    std::map<signed char, int> other{{1, 5}};
    EXPECT_FALSE(AnyReference::from(other).erase("1"));
}

TEST(ContainerChanges, SetsTakeAnElementOnce)
{
    std::set<int> set{2};
    const AnyReference reference = AnyReference::from(set);
    EXPECT_TRUE(reference.append(1L));
    EXPECT_FALSE(reference.append(2));
    EXPECT_EQ(set, (std::set<int>{1, 2}));
    EXPECT_TRUE(reference.erase(0));
    EXPECT_EQ(set, std::set<int>{2});
}

TEST(ContainerChanges, WhatDoesNotConvertChangesNothing)
{
    std::vector<int> list{1};
    std::map<int, int> map{{1, 1}};
    EXPECT_THROW(AnyReference::from(list).append("text"), ConversionError);
    EXPECT_THROW(AnyReference::from(list).insert("first", 1), ConversionError);
    EXPECT_THROW(AnyReference::from(map).insert("a", 1), ConversionError);
    EXPECT_THROW(AnyReference::from(map).insert(2, "a"), ConversionError);
    const char* const null = nullptr;
    EXPECT_THROW(AnyReference::from(list).append(null), std::invalid_argument);
    EXPECT_EQ(list.size() + map.size(), 2u);
}

TEST(ContainerChanges, PlacesBeyondTheEndAreErrors)
{
    std::vector<int> list{1};
    const AnyReference reference = AnyReference::from(list);
    EXPECT_EQ(errorOf<std::out_of_range>([&] { reference.erase(1); }),
              "erase() of std::vector<int> at 1: there are only 1");
    EXPECT_EQ(errorOf<std::out_of_range>([&] { reference.insert(2, 5); }),
              "insert() of std::vector<int> at 2: there are only 1");
    EXPECT_THROW(reference.insert(-1, 5), ConversionError);
}

TEST(ContainerChanges, WhatAContainerCannotDoIsAnError)
{
    std::array<int, 1> array{1};
    std::set<int> set{1};
    int number = 1;
    const AnyReference reference = AnyReference::from(array);
    EXPECT_EQ(errorOf<std::runtime_error>([&] { reference.append(2); }),
              "append() of std::array<int, 1>: it has no such operation");
    EXPECT_THROW(reference.insert(0, 2), std::runtime_error);
    EXPECT_THROW(reference.erase(0), std::runtime_error);
    EXPECT_THROW(reference.clear(), std::runtime_error);
    EXPECT_THROW(AnyReference::from(set).insert(0, 2), std::runtime_error);
    EXPECT_THROW(AnyReference::from(number).append(2), std::runtime_error);
    EXPECT_THROW(AnyReference().clear(), std::runtime_error);
    EXPECT_THROW(AnyReference::from(number).find(1), std::runtime_error);
}

TEST(ContainerChanges, WhatIsForReadingOnlyIsNotChanged)
{
    const std::vector<int> list{1};
    const std::map<int, int> map{{1, 1}};
    for (const AnyReference& reference : {AnyReference::from(list), AnyReference::from(map)}) {
        EXPECT_THROW(reference.clear(), std::runtime_error);
        EXPECT_THROW(reference.erase(0), std::runtime_error);
        EXPECT_THROW(reference.insert(0, 0), std::runtime_error);
    }
    EXPECT_THROW(AnyReference::from(list).append(1), std::runtime_error);
}

TEST(ContainerChanges, ElementsThatCannotBeCopiedAreErased)
{
    std::vector<std::unique_ptr<int>> list(2);
    list[1] = std::make_unique<int>(5);
    AnyReference::from(list).erase(0);
    EXPECT_EQ(*list.at(0), 5);
    EXPECT_THROW(AnyReference::from(list).append(std::make_unique<int>(1)), std::logic_error);
}

TEST(AnyValueSet, ConvertsIntoTheTypeThatIsHeld)
{
    AnyValue value = AnyValue::from(1.5);
    value.set(7);
    EXPECT_EQ(*value.getIf<double>(), 7.0);
    EXPECT_THROW(value.set("text"), ConversionError);
    EXPECT_EQ(*value.getIf<double>(), 7.0);
    AnyValue text = AnyValue::from("a");
    text.set("b");
    EXPECT_EQ(text.text(), "b");
    AnyValue empty;
    EXPECT_THROW(empty.set(1), ConversionError);
}

} // namespace zu
