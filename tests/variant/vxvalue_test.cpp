#include "support/variants.hpp"

#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace VX {

using testing::MatchesRegex;
using zu::test::array;
using zu::test::binary;
using zu::test::errorOf;
using zu::test::errorText;
using zu::test::layout;
using zu::test::objectWithoutStorage;
using zu::test::typeError;
using Type = VXValue::Type;

static_assert(sizeof(VXValue) == 16);
static_assert(std::is_same_v<std::underlying_type_t<Type>, std::uint32_t>);
static_assert(int(Type::Invalid) == 0 && int(Type::Array) == 1 && int(Type::Bool) == 2 && int(Type::Int) == 3);
static_assert(int(Type::Float) == 4 && int(Type::String) == 5 && int(Type::Object) == 6 && int(Type::Binary) == 7);
static_assert(std::is_same_v<TVXValueString, std::string>);
static_assert(std::is_nothrow_default_constructible_v<VXValue> && std::is_nothrow_move_constructible_v<VXValue>);
static_assert(std::is_nothrow_move_assignable_v<VXValue> && std::is_copy_assignable_v<VXValue>);
static_assert(!std::is_constructible_v<VXValue, double> && !std::is_constructible_v<VXValue, long>,
              "a number that no type holds is not narrowed in passing");
static_assert(!std::is_constructible_v<VXValue, int*> && !std::is_constructible_v<VXValue, void*>,
              "no Bool by accident");
static_assert(!std::is_constructible_v<VXValue, void (*)()> && !std::is_constructible_v<VXValue, int VXError::*>);
static_assert(!std::is_assignable_v<VXValue&, int*> && !std::is_assignable_v<VXValue&, void*> &&
              !std::is_assignable_v<VXValue&, void (*)()>);
static_assert(std::is_nothrow_constructible_v<VXValue, const bool&> && std::is_nothrow_assignable_v<VXValue&, bool>);
static_assert(std::is_base_of_v<std::runtime_error, VXError>);
static_assert(std::is_nothrow_copy_constructible_v<VXError> && std::is_nothrow_copy_assignable_v<VXError>);

namespace {

const char* const k_null = nullptr;
constexpr char k_assertionFailed[] = "\tVXValue::Assert failed\n\tsrc/vxvalue\\.cpp:[1-9][0-9]*";
constexpr char k_cannotCast[] = "\tVXValue::const bool() const\n\tCannot cast to bool an VXValue of invalid type.";

const std::string& textOf(const VXValue& value) { return value; }

bool flagOf(const VXValue& value) { return static_cast<bool>(value); }

} // namespace

TEST(VXValueFlag, OfAVectorOfFlagsIsABool)
{
    std::vector<bool> flags{true, false};
    const VXValue value(flags[0]);
    EXPECT_EQ(value.dump(1), "true");
    VXValue assigned = 42;
    assigned = flags[1];
    EXPECT_EQ(assigned.dump(1), "false");
}

TEST(VXError, NamesModuleMethodAndMessage)
{
    EXPECT_STREQ(VXError("module", "method", "message", "file", 7).what(), "\tmodule::method\n\tmessage");
}

TEST(VXError, LeavesOutAnEmptyModuleOrMethodWithItsMark)
{
    EXPECT_STREQ(VXError("", "method", "message", "", 0).what(), "::method\n\tmessage");
    EXPECT_STREQ(VXError("module", "", "message", "", 0).what(), "\tmodule\n\tmessage");
    EXPECT_STREQ(VXError("", "", "message", "", 0).what(), "\n\tmessage");
    EXPECT_STREQ(VXError("", "", "", "", 0).what(), "\n\t");
}

TEST(VXValue, IsOfTheTypeThatItIsMadeFrom)
{
    const std::string text = "text";
    EXPECT_EQ(VXValue().type(), Type::Invalid);
    EXPECT_EQ(VXValue(true).type(), Type::Bool);
    EXPECT_EQ(VXValue(7).type(), Type::Int);
    EXPECT_EQ(VXValue(0).type(), Type::Int);
    EXPECT_EQ(VXValue(1.5F).type(), Type::Float);
    EXPECT_EQ(VXValue(text).type(), Type::String);
    EXPECT_EQ(VXValue("a literal is no flag").type(), Type::String);
    EXPECT_EQ(VXValue("bytes", 5).type(), Type::Binary);
}

TEST(VXValue, KeepsWhatItIsMadeFrom)
{
    EXPECT_EQ(layout(VXValue(false)), "Bool false\n");
    EXPECT_EQ(layout(VXValue(std::numeric_limits<int>::min())), "Int -2147483648\n");
    EXPECT_EQ(layout(VXValue(-1.5F)), "Float -1.5\n");
    EXPECT_EQ(textOf(VXValue(std::string("a\0b", 3))), std::string("a\0b", 3));
    EXPECT_EQ(textOf(VXValue("a\0b")), "a");
    EXPECT_EQ(layout(VXValue("a\0b", 3)), "Binary \\97\\0\\98\n");
    EXPECT_EQ(layout(VXValue(nullptr, 0)), "Binary \n");
}

TEST(VXValue, IsNotMadeFromANullCharacterPointer)
{
    EXPECT_THAT(errorOf([] { VXValue{k_null}; }), MatchesRegex(k_assertionFailed));
}

TEST(VXValue, AssigningANullCharacterPointerThrowsAndChangesNothing)
{
    VXValue value(7);
    EXPECT_THAT(errorOf([&] { value = k_null; }), MatchesRegex(k_assertionFailed));
    EXPECT_EQ(layout(value), "Int 7\n");
}

TEST(VXValue, AssigningCharactersMakesAString)
{
    for (VXValue value : {VXValue(), VXValue(7), VXValue("old"), binary("old"), array({1, 2})}) {
        value = "new";
        EXPECT_EQ(layout(value), "String \"new\"\n");
    }
}

TEST(VXValue, EveryTypeHasItsName)
{
    const char* const names[] = {"Invalid", "Array", "Bool", "Int", "Float", "String", "Object", "Binary"};
    for (int number = 0; number < 8; ++number)
        EXPECT_EQ(VXValue::TypeToString(Type(number)), names[number]);
}

TEST(VXValue, ANumberThatIsNoTypeHasNoName)
{
    EXPECT_EQ(errorOf([] { VXValue::TypeToString(Type(8)); }), errorText("TypeToString", "Unknown type: 8"));
    EXPECT_EQ(errorOf([] { VXValue::TypeToString(Type(0xFFFFFFFF)); }),
              errorText("TypeToString", "Unknown type: 4294967295"));
}

TEST(VXValue, ResizingAnInvalidValueMakesItAnArrayOfInvalidElements)
{
    VXValue value;
    value.resizeArray(2);
    EXPECT_EQ(layout(value), "Array of 2\n  0: Invalid\n  1: Invalid\n");
    value = VXValue();
    value.resizeArray(0);
    EXPECT_EQ(layout(value), "Array of 0\n");
}

TEST(VXValue, ResizingAnArrayKeepsWhatStays)
{
    VXValue value = array({1, "x", array({2})});
    value.resizeArray(4);
    EXPECT_EQ(layout(value), layout(array({1, "x", array({2}), {}})));
    value.resizeArray(1);
    EXPECT_EQ(layout(value), layout(array({1})));
}

TEST(VXValue, ResizingWhatIsNoArrayThrowsAndChangesNothing)
{
    VXValue value("text");
    EXPECT_EQ(errorOf([&] { value.resizeArray(0); }),
              errorText("xAssertCompatibleType: type error",
                        "Expected a Array but received a String (vxvalue contents: \"text\" )"));
    EXPECT_EQ(layout(value), "String \"text\"\n");
}

TEST(VXValue, ANegativeNumberOfElementsIsRefused)
{
    VXValue value;
    EXPECT_THROW(value.resizeArray(-1), std::length_error);
    EXPECT_EQ(value.type(), Type::Invalid);
    VXValue text = "x";
    EXPECT_EQ(errorOf([&] { text.resizeArray(-1); }),
              errorText("xAssertCompatibleType: type error",
                        "Expected a Array but received a String (vxvalue contents: \"x\" )"));
    EXPECT_EQ(value.type(), Type::Invalid);
}

TEST(VXValue, HasASizeWhenItConsistsOfSomething)
{
    for (const VXValue& value :
         {VXValue(), VXValue(true), VXValue(7), VXValue(1.5F), VXValue(""), binary(""), array({})})
        EXPECT_EQ(value.size(), 0) << layout(value);
    for (const VXValue& value : {VXValue(std::string("a\0b", 3)), binary("\n\xff\t"), array({array({1, 2}), {}, 3})})
        EXPECT_EQ(value.size(), 3) << layout(value);
}

TEST(VXValue, AnObjectWithoutStorageHasNoSize)
{
    EXPECT_THAT(errorOf([] { objectWithoutStorage().size(); }), MatchesRegex(k_assertionFailed));
    EXPECT_THAT(errorOf([] { flagOf(objectWithoutStorage()); }), MatchesRegex(k_assertionFailed));
}

TEST(VXValue, ElementsCanBeReadAndWritten)
{
    VXValue value = array({1, 2});
    value[1] = "x";
    const VXValue& constant = value;
    EXPECT_EQ(layout(constant[0]), "Int 1\n");
    EXPECT_EQ(layout(constant[1]), "String \"x\"\n");
    EXPECT_EQ(&constant[1], &value[1]);
}

TEST(VXValue, AskingAnInvalidValueForAnElementMakesItAnArrayAndThrows)
{
    VXValue value;
    EXPECT_EQ(errorOf([&] { value[0]; }),
              errorText("xAssertArraySize", "The array has a size of 0 and you want it to be of size 1"));
    EXPECT_EQ(layout(value), "Array of 0\n");
}

TEST(VXValue, AnElementBeyondTheEndIsRefused)
{
    VXValue value = array({1, 2});
    const VXValue& constant = value;
    const std::string expected =
        errorText("xAssertArraySize", "The array has a size of 2 and you want it to be of size 3");
    EXPECT_EQ(errorOf([&] { value[2]; }), expected);
    EXPECT_EQ(errorOf([&] { constant[2]; }), expected);
    EXPECT_EQ(errorOf([&] { constant[std::numeric_limits<int>::max()]; }),
              errorText("xAssertArraySize", "The array has a size of 2 and you want it to be of size 2147483648"));
    EXPECT_EQ(value.size(), 2);
}

TEST(VXValue, AnElementBeforeTheFirstIsOutOfRange)
{
    VXValue value = array({1, 2});
    for (const int index : {-1, std::numeric_limits<int>::min()}) {
        try {
            value[index];
            ADD_FAILURE() << index;
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
        }
    }
}

TEST(VXValue, WhatIsNoArrayHasNoElements)
{
    VXValue value(7);
    const VXValue& constant = value;
    EXPECT_EQ(errorOf([&] { constant[0]; }), typeError("Array", "Int", "7"));
    EXPECT_EQ(errorOf([&] { value[0]; }), errorText("xAssertCompatibleType: type error",
                                                    "Expected a Array but received a Int (vxvalue contents: 7 )"));
    const VXValue invalid{};
    EXPECT_EQ(errorOf([&] { invalid[0]; }), typeError("Array", "Invalid", ""));
    // A Float passes for an Array, but not far.
    const VXValue real(1.5F);
    EXPECT_EQ(errorOf([&] { real[0]; }), errorText("xAssertArraySize", "try to use a Float like an array"));
}

TEST(VXValue, IsTrueWhenSetNotZeroOrNotEmpty)
{
    for (const VXValue& value :
         {VXValue(true), VXValue(-1), VXValue(1e-45F), VXValue("0"), VXValue("\0", 1), array({false})})
        EXPECT_TRUE(flagOf(value)) << layout(value);
    for (const VXValue& value :
         {VXValue(false), VXValue(0), VXValue(0.0F), VXValue(-0.0F), VXValue(""), binary(""), array({})})
        EXPECT_FALSE(flagOf(value)) << layout(value);
}

TEST(VXValue, AnInvalidValueIsNeitherTrueNorFalse)
{
    EXPECT_EQ(errorOf([] { flagOf(VXValue()); }), k_cannotCast);
}

TEST(VXValueString, OfAStringIsItsText)
{
    VXValue value("text");
    const std::string& text = value;
    EXPECT_EQ(text, "text");
    EXPECT_EQ(&textOf(value), &text);
}

TEST(VXValueString, OfABinaryMakesItAStringWithAZeroBehindAndWarns)
{
    const VXValue value("a\0\xff", 3);
    testing::internal::CaptureStdout();
    const std::string& text = value;
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 3)\n");
    EXPECT_EQ(text, std::string("a\0\xff\0", 4));
    EXPECT_EQ(value.type(), Type::String);
    testing::internal::CaptureStdout();
    EXPECT_EQ(&textOf(value), &text);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << "a String already";
}

TEST(VXValueString, OfAnEmptyBinaryIsAZero)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(textOf(binary("")), std::string("\0", 1));
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::EndsWith("(size of binary: 0)\n"));
}

TEST(VXValueString, OfABinaryOfAHundredThousandBytesIsRefused)
{
    const std::string bytes(100'000, '\1');
    const VXValue large = binary(bytes);
    testing::internal::CaptureStdout();
    EXPECT_EQ(errorOf([&] { textOf(large); }), typeError("String", "Binary", large.dump(1)));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(large.type(), Type::Binary);
    const VXValue largest = binary(bytes.substr(1));
    testing::internal::CaptureStdout();
    EXPECT_EQ(textOf(largest), bytes.substr(1) + '\0');
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::EndsWith("(size of binary: 99999)\n"));
}

TEST(VXValueString, OfAFloatFailsAnAssertion)
{
    EXPECT_THAT(errorOf([] { textOf(VXValue(1.5F)); }), MatchesRegex(k_assertionFailed));
}

TEST(VXValueString, OfAnotherTypeIsRefused)
{
    EXPECT_EQ(errorOf([] { textOf(VXValue()); }), typeError("String", "Invalid", ""));
    EXPECT_EQ(errorOf([] { textOf(VXValue(true)); }), typeError("String", "Bool", "true"));
    EXPECT_EQ(errorOf([] { textOf(VXValue(42)); }), typeError("String", "Int", "42"));
    EXPECT_EQ(errorOf([] { textOf(array({1, "a"})); }), typeError("String", "Array", "[1, \"a\"]"));
    EXPECT_EQ(errorOf([] { textOf(objectWithoutStorage()); }), typeError("String", "Object", ""));
}

} // namespace VX
