#include "support/log_capture.hpp"
#include "support/samples.hpp"

#include <zu/any_value.hpp>
#include <zu/conversion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace zu {

namespace valuetest {

/// Counts how often it is copied and moved, and how many live.
struct Counted
{
    Counted() { ++alive; }
    Counted(const Counted&) { ++alive, ++copies; }
    Counted(Counted&&) noexcept { ++alive, ++moves; }
    Counted& operator=(const Counted&) = default;
    ~Counted() { --alive; }

    std::string tooLargeForAWord;
    static inline int alive = 0;
    static inline int copies = 0;
    static inline int moves = 0;
};

struct FailingDefault
{
    FailingDefault() { throw std::runtime_error("no default today"); }
};

} // namespace valuetest

using valuetest::Counted;

namespace {

struct Unnameable
{
};

} // namespace

static_assert(std::is_nothrow_move_constructible_v<AnyValue> && std::is_nothrow_move_assignable_v<AnyValue>);
static_assert(sizeof(AnyValue) == 24);

TEST(AnyValue, StartsEmpty)
{
    AnyValue value;
    EXPECT_TRUE(value.isEmpty());
    EXPECT_TRUE(value.reference().isEmpty());
    EXPECT_EQ(value.getIf<int>(), nullptr);
    EXPECT_TRUE(AnyValue(value).isEmpty());
    EXPECT_TRUE(AnyValue(static_cast<const TypeInterface*>(nullptr)).isEmpty());
}

TEST(AnyValue, HoldsACopyOfExactlyWhatItWasGiven)
{
    std::vector<std::string> names{"a"};
    AnyValue value = AnyValue::from(names);
    names.push_back("b");
    ASSERT_NE(value.getIf<std::vector<std::string>>(), nullptr);
    EXPECT_THAT(*value.getIf<std::vector<std::string>>(), testing::ElementsAre("a"));
    EXPECT_EQ(value.getIf<std::vector<const char*>>(), nullptr);
    value.getIf<std::vector<std::string>>()->push_back("c");
    EXPECT_THAT(value.to<std::vector<std::string>>(), testing::ElementsAre("a", "c"));
}

TEST(AnyValue, CopiesAreDeep)
{
    AnyValue original = AnyValue::from(std::map<std::string, AnyValue>{{"list", AnyValue::from(std::vector<int>{1})}});
    AnyValue copy = original;
    copy.getIf<std::map<std::string, AnyValue>>()->at("list").getIf<std::vector<int>>()->push_back(2);
    const auto& kept = original.getIf<std::map<std::string, AnyValue>>()->at("list");
    EXPECT_THAT(kept.to<std::vector<int>>(), testing::ElementsAre(1));
}

TEST(AnyValue, SmallValuesAreHeldInPlaceAndFollowCopiesAndMoves)
{
    AnyValue a = AnyValue::from(sample::Point{1, 2});
    AnyValue b = a;
    AnyValue c = std::move(a);
    a = b;
    b.getIf<sample::Point>()->x = 7;
    for (const AnyValue* value : {&a, &b, &c}) {
        const auto* point = reinterpret_cast<const char*>(value->getIf<sample::Point>());
        EXPECT_GE(point, reinterpret_cast<const char*>(value));
        EXPECT_LT(point, reinterpret_cast<const char*>(value + 1));
    }
    EXPECT_EQ(*a.getIf<sample::Point>(), (sample::Point{1, 2}));
    EXPECT_EQ(*b.getIf<sample::Point>(), (sample::Point{7, 2}));
    EXPECT_EQ(*c.getIf<sample::Point>(), (sample::Point{1, 2}));
}

TEST(AnyValue, AMovedFromOneIsEmpty)
{
    AnyValue small = AnyValue::from(1);
    AnyValue large = AnyValue::from(std::string("text"));
    const AnyValue smallTaken = std::move(small);
    const AnyValue largeTaken = std::move(large);
    EXPECT_TRUE(small.isEmpty()); // NOLINT(bugprone-use-after-move): what it is afterwards is under test
    EXPECT_TRUE(large.isEmpty()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(smallTaken.toInt(), 1);
    EXPECT_EQ(largeTaken.toString(), "text");
}

TEST(AnyValue, SwapsAndSelfAssignmentKeepsTheValue)
{
    AnyValue a = AnyValue::from(1);
    AnyValue b = AnyValue::from(std::string("text"));
    swap(a, b);
    EXPECT_EQ(a.toString(), "text");
    EXPECT_EQ(b.toInt(), 1);
    AnyValue& alias = a;
    a = alias;
    EXPECT_EQ(a.toString(), "text");
    swap(a, alias);
    EXPECT_EQ(a.toString(), "text");
    a.reset();
    EXPECT_TRUE(a.isEmpty());
}

TEST(AnyValue, CanBeAssignedAPartOfItself)
{
    const auto nested = [] { return AnyValue::from(std::vector<AnyValue>{AnyValue::from("a"), AnyValue::from("b")}); };
    AnyValue copied = nested();
    copied = copied.getIf<std::vector<AnyValue>>()->at(1);
    EXPECT_EQ(copied.toString(), "b");
    AnyValue moved = nested();
    moved = std::move(moved.getIf<std::vector<AnyValue>>()->at(1));
    EXPECT_EQ(moved.toString(), "b");
}

TEST(AnyValue, CopiesLvaluesMovesTemporariesAndLeaksNeither)
{
    Counted::copies = Counted::moves = 0;
    const int before = Counted::alive;
    {
        Counted counted;
        const AnyValue copied = AnyValue::from(counted);
        EXPECT_EQ(std::pair(Counted::copies, Counted::moves), std::pair(1, 0));
        AnyValue moved = AnyValue::from(Counted());
        EXPECT_EQ(std::pair(Counted::copies, Counted::moves), std::pair(1, 1));
        const AnyValue taken = std::move(moved);
        std::vector<AnyValue> copies(1);
        copies[0] = taken;
        EXPECT_EQ(std::pair(Counted::copies, Counted::moves), std::pair(2, 1));
    }
    EXPECT_EQ(Counted::alive, before);
}

TEST(AnyValue, CStringsAndLiteralsAreHeldAsStrings)
{
    char buffer[] = "buffer";
    EXPECT_EQ(*AnyValue::from("literal").getIf<std::string>(), "literal");
    EXPECT_EQ(*AnyValue::from(buffer).getIf<std::string>(), "buffer");
    const char* const null = nullptr;
    EXPECT_THROW(AnyValue::from(null), std::invalid_argument);
}

TEST(AnyValue, OfAReferenceIsACopyOfWhatItRefersTo)
{
    std::string text = "text";
    AnyValue value(AnyReference::from(text));
    text = "changed";
    EXPECT_EQ(value.toString(), "text");
    EXPECT_EQ(AnyValue::from(AnyReference::from(text)).toString(), "changed");
    EXPECT_TRUE(AnyValue::from(AnyReference()).isEmpty());
    EXPECT_TRUE(AnyValue(AnyReference()).isEmpty());
    EXPECT_EQ(AnyValue(AnyReference(typeOf<void>(), nullptr)).kind(), TypeKind::Void);
}

TEST(AnyValue, HoldsAnAnyValueAsAValueOfItsOwn)
{
    const AnyValue inner = AnyValue::from(1);
    const AnyValue outer(AnyReference::from(inner));
    ASSERT_NE(outer.getIf<AnyValue>(), nullptr);
    EXPECT_EQ(outer.kind(), TypeKind::Dynamic);
    EXPECT_EQ(outer.content().kind(), TypeKind::Int);
    EXPECT_EQ(outer.toInt(), 1);
}

TEST(AnyValue, OfAnAnyValueIsACopyAndOfATemporaryTheSame)
{
    AnyValue first = AnyValue::from(std::string("text"));
    const AnyValue copy = AnyValue::from(first);
    EXPECT_EQ(copy.kind(), TypeKind::String);
    const void* const address = first.address();
    EXPECT_EQ(AnyValue::from(std::move(first)).address(), address);
    EXPECT_TRUE(AnyValue::from(AnyValue()).isEmpty());
}

TEST(AnyValue, OfAnElementDoesNotFollowTheList)
{
    std::vector<int> list{1, 2};
    std::vector<AnyValue> copies;
    for (const AnyReference element : AnyReference::from(list))
        copies.push_back(AnyValue::from(element));
    list = {8, 9};
    EXPECT_EQ(copies[0].toInt(), 1);
    EXPECT_EQ(copies[1].toInt(), 2);
}

TEST(AnyValue, OfAViewOfATextHoldsTheText)
{
    std::string text = "text";
    const std::string_view view = text;
    const AnyValue given = AnyValue::from(view);
    const AnyValue referredTo(AnyReference::from(view));
    text = "gone";
    EXPECT_EQ(*given.getIf<std::string>(), "text");
    EXPECT_EQ(*referredTo.getIf<std::string>(), "text");
}

TEST(AnyValue, IsNeverOfATypeOfAnAnonymousNamespace)
{
    EXPECT_FALSE(AnyValue::from(1).holds<Unnameable>());
    EXPECT_EQ(AnyValue::from(1).getIf<Unnameable>(), nullptr);
    EXPECT_EQ(AnyValue::from(1).reference().getMutableIf<std::vector<Unnameable>>(), nullptr);
}

TEST(AnyValue, IsWrittenThroughItsReferenceAlone)
{
    AnyValue value = AnyValue::from(std::vector<int>{1});
    EXPECT_TRUE(value._element(0).isReadOnly());
    value.reference()._element(0).set(5);
    EXPECT_EQ(value._element(0).toInt(), 5);
    EXPECT_TRUE(std::as_const(value).reference().isReadOnly());
}

TEST(AnyValue, StartsAsTheDefaultOfAType)
{
    EXPECT_EQ(*AnyValue(typeOf<int>()).getIf<int>(), 0);
    EXPECT_EQ(*AnyValue(typeOf<sample::Point>()).getIf<sample::Point>(), sample::Point());
    EXPECT_EQ(*AnyValue(typeOf<std::string>()).getIf<std::string>(), "");
    EXPECT_EQ(AnyValue(typeOf<void>()).kind(), TypeKind::Void);
}

TEST(AnyValue, ATypeWithoutDefaultValueIsReported)
{
    const Capture capture;
    EXPECT_THROW(AnyValue(typeOf<sample::Opaque>()), std::runtime_error);
    EXPECT_THROW(AnyValue(typeOf<valuetest::FailingDefault>()), std::runtime_error);
    ASSERT_EQ(capture.records.size(), 2u);
    const auto& [level, category, message, file, function, line] = capture.records[0];
    EXPECT_EQ(level, log::Level::Error);
    EXPECT_EQ(category, "zutype.bypointer");
    EXPECT_EQ(message, "initializeStorage error on sample::Opaque");
    EXPECT_EQ(file, "src/type_interface");
    EXPECT_EQ(function, "zu::TypeInterface::initializeStorage");
    EXPECT_EQ(std::get<2>(capture.records[1]), "initializeStorage error on zu::valuetest::FailingDefault");
}

TEST(AnyValue, WhatCannotBeCopiedIsRefused)
{
    sample::NotCopyable object;
    try {
        const AnyValue value(AnyReference::from(object));
        FAIL();
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "sample::NotCopyable cannot be copied");
    }
}

} // namespace zu
