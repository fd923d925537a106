// How interfaces are made that are not registered: descriptions that ask for types themselves.
#include <zu/any_value.hpp>
#include <zu/registry.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace zu {

namespace makingtest {

/// A struct that holds structs of its own class.
struct Node
{
    int value = 0;
    std::vector<Node> children;
};

/// Its description asks for its own type.
struct Narcissus
{
    int value = 0;
};

struct Hen
{
    int value = 0;
};

struct Egg
{
    int value = 0;
};

/// How many threads have begun to describe a hen or an egg; they wait for each other while it is below zero.
std::atomic<int> g_begun{0};

void meet()
{
    if (g_begun >= 0)
        return;
    ++g_begun;
    while (g_begun < 0)
        std::this_thread::yield();
}

} // namespace makingtest

using makingtest::Egg;
using makingtest::Hen;
using makingtest::Narcissus;
using makingtest::Node;

template <>
struct StructSchema<Node>
{
    static Schema<Node> describe() { return {"::Node", {{"value", &Node::value}, {"children", &Node::children}}}; }
};

template <>
struct StructSchema<Narcissus>
{
    static Schema<Narcissus> describe() { return {typeOf<Narcissus>()->name(), {{"value", &Narcissus::value}}}; }
};

template <>
struct StructSchema<Hen>
{
    static Schema<Hen> describe();
};

template <>
struct StructSchema<Egg>
{
    static Schema<Egg> describe()
    {
        makingtest::meet();
        return {"egg of " + typeOf<Hen>()->name(), {{"value", &Egg::value}}};
    }
};

Schema<Hen> StructSchema<Hen>::describe()
{
    makingtest::meet();
    return {"hen of " + typeOf<Egg>()->name(), {{"value", &Hen::value}}};
}

namespace {

template <class T>
std::string errorOfMaking()
{
    try {
        typeOf<T>();
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return "nothing was thrown";
}

const char* const k_fromHen = "the descriptions of types ask for each other: zu::makingtest::Hen -> "
                              "zu::makingtest::Egg -> zu::makingtest::Hen";
const char* const k_fromEgg = "the descriptions of types ask for each other: zu::makingtest::Egg -> "
                              "zu::makingtest::Hen -> zu::makingtest::Egg";

} // namespace

TEST(TypeMaking, AStructMayHoldAListOfItself)
{
    const Node tree{1, {Node{2, {Node{3, {}}}}}};
    const AnyValue value = AnyValue::from(tree);
    EXPECT_EQ(value._element(1)._element(0)._element(1)._element(0)._element(0).toInt(), 3);
    using Named = std::map<std::string, AnyValue>;
    const Named given{
        {"value", AnyValue::from(5)},
        {"children", AnyValue::from(std::vector<Named>{
                         {{"value", AnyValue::from(6)}, {"children", AnyValue::from(std::vector<int>())}}})}};
    EXPECT_EQ(AnyReference::from(given).to<Node>().children.at(0).value, 6);
}

TEST(TypeMaking, ADescriptionThatAsksForItsOwnTypeIsAnError)
{
    for (int attempt = 0; attempt != 2; ++attempt) {
        EXPECT_EQ(errorOfMaking<Narcissus>(), "the descriptions of types ask for each other: "
                                              "zu::makingtest::Narcissus -> zu::makingtest::Narcissus");
    }
}

TEST(TypeMaking, DescriptionsThatAskForEachOtherAreAnError)
{
    EXPECT_EQ(errorOfMaking<Hen>(), k_fromHen);
    EXPECT_EQ(errorOfMaking<Egg>(), k_fromEgg);
}

TEST(TypeMaking, DescriptionsThatAskForEachOtherOnTwoThreadsAreErrorsOnBoth)
{
    makingtest::g_begun = -2;
    auto hen = std::async(std::launch::async, &errorOfMaking<Hen>);
    const std::string egg = errorOfMaking<Egg>();
    EXPECT_TRUE(egg == k_fromEgg || egg == k_fromHen) << egg;
    const std::string henError = hen.get();
    EXPECT_TRUE(henError == k_fromEgg || henError == k_fromHen) << henError;
}

} // namespace zu
