#include "support/variants.hpp"

#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <type_traits>

namespace VX {

using zu::test::array;
using zu::test::binary;
using zu::test::errorOf;
using zu::test::objectWithoutStorage;
using zu::test::typeError;

static_assert(std::is_convertible_v<VXValue, bool> && std::is_convertible_v<VXValue, const TVXValueString&>);
static_assert(!std::is_convertible_v<VXValue, int> && !std::is_convertible_v<VXValue, double> &&
                  !std::is_convertible_v<VXValue, char> && !std::is_convertible_v<VXValue, unsigned long>,
              "the number would be the flag's");

TEST(VXValueReader, GivesWhatAValueOfItsTypeHolds)
{
    EXPECT_EQ(VXValue(std::numeric_limits<int>::min()).toInt(), std::numeric_limits<int>::min());
    EXPECT_EQ(VXValue(1.5F).toFloat(), 1.5F);
    EXPECT_TRUE(VXValue(true).toBool());
    EXPECT_FALSE(VXValue(false).toBool());
    const VXValue bytes = binary("a\xff");
    EXPECT_EQ(bytes.toBinary(), (TVXValueBytes{'a', 0xFF}));
}

TEST(VXValueReader, IsNotLenient)
{
    EXPECT_EQ(errorOf([] { VXValue("x").toInt(); }), typeError("Int", "String", "\"x\""));
    EXPECT_EQ(errorOf([] { VXValue(1.5F).toInt(); }), typeError("Int", "Float", "1.5"));
    EXPECT_EQ(errorOf([] { VXValue(1).toFloat(); }), typeError("Float", "Int", "1"));
    EXPECT_EQ(errorOf([] { VXValue(1).toBool(); }), typeError("Bool", "Int", "1"));
    EXPECT_EQ(errorOf([] { VXValue().toBool(); }), typeError("Bool", "Invalid", ""));
    EXPECT_EQ(errorOf([] { VXValue("x").toBinary(); }), typeError("Binary", "String", "\"x\""));
}

TEST(VXValueEquality, IsThatOfTypeAndContent)
{
    const VXValue values[] = {{},
                              true,
                              false,
                              0,
                              1,
                              0.0F,
                              1.0F,
                              "",
                              "a",
                              "b",
                              "1",
                              binary(""),
                              binary("a"),
                              array({}),
                              array({1}),
                              array({1, 2}),
                              array({2, 1}),
                              array({array({1})}),
                              array({VXValue()})};
    for (const VXValue& left : values)
        for (const VXValue& right : values) {
            EXPECT_EQ(left == right, &left == &right) << left.dump(2) << " and " << right.dump(2);
            EXPECT_EQ(left != right, &left != &right) << left.dump(2) << " and " << right.dump(2);
        }
}

TEST(VXValueEquality, OfObjectsWithoutStorageHolds)
{
    EXPECT_TRUE(objectWithoutStorage() == objectWithoutStorage());
    EXPECT_FALSE(objectWithoutStorage() == binary(""));
}

TEST(VXValueEquality, OfAFloatThatIsNoNumberIsNever)
{
    const VXValue value(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(value == value);
    EXPECT_TRUE(VXValue(-0.0F) == VXValue(0.0F));
}

TEST(VXValueEquality, ComparesWithWhatAValueIsMadeFrom)
{
    const VXValue value(42);
    EXPECT_TRUE(value == 42 && 42 == value);
    EXPECT_TRUE(value != 41 && 41 != value);
    EXPECT_FALSE(value == true);
    EXPECT_TRUE(VXValue("a") == "a" && VXValue("a") == std::string("a") && "b" != VXValue("a"));
}

TEST(VXValuePrint, IsTheShortDump)
{
    std::ostringstream out;
    out << VXValue(42) << ' ' << array({1, "a", true});
    EXPECT_EQ(out.str(), "42 [1, \"a\", true]");
}

TEST(VXValueBinary, IsNotMadeFromANullPointerToBytes)
{
    EXPECT_THAT(errorOf([] { VXValue(nullptr, 1); }),
                testing::MatchesRegex("\tVXValue::Assert failed\n\tsrc/vxvalue\\.cpp:[1-9][0-9]*"));
    EXPECT_EQ(VXValue(nullptr, 0), binary(""));
}

TEST(VXValueBinary, TakesOverBytesWithTheirRoom)
{
    TVXValueBytes bytes{1, 2};
    bytes.reserve(100);
    const VXValue value = VXValue::fromBytes(std::move(bytes));
    EXPECT_EQ(value, binary("\x01\x02"));
    EXPECT_GE(value.toBinary().capacity(), 100u);
}

} // namespace VX
