#include "support/variants.hpp"

#include <zupackage/vxvalue.hpp>

#include <gtest/gtest.h>

#include <limits>

namespace VX {

using zu::test::array;
using zu::test::binary;
using zu::test::errorOf;
using zu::test::errorText;
using zu::test::layout;
using zu::test::Leaf;
using zu::test::leaves;
using zu::test::objectWithoutStorage;
using zu::test::typeError;
using Type = VXValue::Type;

TEST(VXValueAssertion, PassesForTheTypeOfTheValue)
{
    for (const Leaf& leaf : leaves())
        EXPECT_EQ(errorOf([&] { leaf.value.xAssertType(leaf.value.type()); }), "nothing thrown") << leaf.type;
}

TEST(VXValueAssertion, OfANumberThatIsNoTypeIsRefusedEvenForAFloat)
{
    EXPECT_EQ(errorOf([] { VXValue(0.5F).xAssertType(static_cast<Type>(8)); }),
              errorText("TypeToString", "Unknown type: 8"));
}

TEST(VXValueAssertion, AskingForAnIntNeverThrows)
{
    for (const Leaf& leaf : leaves())
        EXPECT_EQ(errorOf([&] { leaf.value.xAssertType(Type::Int); }), "nothing thrown") << leaf.type;
}

TEST(VXValueAssertion, AFloatPassesForEveryType)
{
    for (int number = 0; number < 8; ++number)
        EXPECT_EQ(errorOf([&] { VXValue(1.5F).xAssertType(Type(number)); }), "nothing thrown") << number;
}

TEST(VXValueAssertion, NamesBothTypesAndShowsTheValue)
{
    EXPECT_EQ(errorOf([] { VXValue(42).xAssertType(Type::String); }),
              "\tVXValue::xAssertType: type error\n"
              "\tExpected a String but received a Int (vxvalue contents: 42 )");
    for (const Leaf& leaf : leaves()) {
        if (leaf.type == "Float")
            continue;
        for (const Type type : {Type::Array, Type::Object})
            EXPECT_EQ(errorOf([&] { leaf.value.xAssertType(type); }),
                      typeError(VXValue::TypeToString(type), leaf.type, leaf.compact));
    }
}

TEST(VXValueAssertion, OfACompatibleTypeMakesAnInvalidValueAnEmptyOneOfThatType)
{
    const char* const expected[] = {"Invalid\n", "Array of 0\n",  "Bool false\n", "Int 0\n",
                                    "Float 0\n", "String \"\"\n", "Object \n",    "Binary \n"};
    for (int number = 0; number < 8; ++number) {
        VXValue value;
        value.xAssertCompatibleType(Type(number));
        EXPECT_EQ(layout(value), expected[number]);
    }
}

TEST(VXValueAssertion, OfACompatibleTypeLeavesAValueOfThatType)
{
    for (const Leaf& leaf : leaves()) {
        VXValue value = leaf.value;
        value.xAssertCompatibleType(value.type());
        EXPECT_EQ(layout(value), layout(leaf.value));
    }
}

TEST(VXValueAssertion, OfACompatibleTypeKnowsNoLeniencyAndChangesNothing)
{
    for (const Leaf& leaf : leaves()) {
        VXValue value = leaf.value;
        const Type type = leaf.type == "Int" ? Type::Float : Type::Int;
        if (leaf.type == "Invalid")
            continue;
        EXPECT_EQ(errorOf([&] { value.xAssertCompatibleType(type); }),
                  errorText("xAssertCompatibleType: type error", "Expected a " + VXValue::TypeToString(type) +
                                                                     " but received a " + leaf.type +
                                                                     " (vxvalue contents: " + leaf.compact + " )"));
        EXPECT_EQ(layout(value), layout(leaf.value));
    }
}

TEST(VXValueAssertion, OfACompatibleTypeMakesRoom)
{
    VXValue list;
    list.xAssertCompatibleType(Type::Array);
    list.resizeArray(1);
    const VXValue* first = &list[0];
    list.resizeArray(32);
    EXPECT_EQ(&list[0], first);
    VXValue text;
    text.xAssertCompatibleType(Type::String);
    EXPECT_GE(static_cast<const std::string&>(text).capacity(), 64U);
    VXValue binary;
    binary.xAssertCompatibleType(Type::Binary);
    const zu::AnyReference bytes = zu::AnyReference::from(binary).content();
    EXPECT_GE(static_cast<const TVXValueBytes*>(bytes.address())->capacity(), 1024U);
}

TEST(VXValueAssertion, ResizingAnInvalidValueMakesTheRoomToo)
{
    VXValue list;
    list.resizeArray(1);
    const VXValue* first = &list[0];
    list.resizeArray(32);
    EXPECT_EQ(&list[0], first);
}

TEST(VXValueAssertion, OfANumberThatIsNoTypeNamesIt)
{
    const std::string expected = errorText("TypeToString", "Unknown type: 8");
    VXValue value;
    EXPECT_EQ(errorOf([&] { value.xAssertCompatibleType(Type(8)); }), expected);
    EXPECT_EQ(value.type(), Type::Invalid);
    EXPECT_EQ(errorOf([] { VXValue(42).xAssertType(Type(8)); }), expected);
}

TEST(VXValueAssertion, OfASizeAsksForAtLeastThatMany)
{
    const VXValue value = array({1, 2});
    for (const int size : {std::numeric_limits<int>::min(), -1, 0, 1, 2})
        EXPECT_EQ(errorOf([&] { value.xAssertArraySize(size); }), "nothing thrown") << size;
    EXPECT_EQ(errorOf([&] { value.xAssertArraySize(3); }),
              errorText("xAssertArraySize", "The array has a size of 2 and you want it to be of size 3"));
}

TEST(VXValueAssertion, OfASizeRefusesWhatIsNoArray)
{
    for (const Leaf& leaf : leaves())
        EXPECT_EQ(errorOf([&] { leaf.value.xAssertArraySize(0); }),
                  errorText("xAssertArraySize", "try to use a " + leaf.type + " like an array"));
}

} // namespace VX
