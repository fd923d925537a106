#include "support/comma_locale.hpp"
#include "support/variants.hpp"

#include <zupackage/vxvalue.hpp>

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <cstring>
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

namespace {

std::string hexadecimal(std::uint64_t bits)
{
    char digits[32];
    std::snprintf(digits, sizeof digits, "%016" PRIX64, bits);
    return digits;
}

/// The payload as the value holds it: the second half of its bytes.
std::uint64_t payloadOf(const VXValue& value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, reinterpret_cast<const char*>(&value) + 8, sizeof bits);
    return bits;
}

/// What stands before the body from verbosity 2 on.
std::string labels(const VXValue& value, const std::string& type)
{
    return "VxValue at 0x0x" + hexadecimal(reinterpret_cast<std::uintptr_t>(&value)) + ", Type: " + type +
           ", Value: 0x" + hexadecimal(payloadOf(value)) + ", ";
}

} // namespace

TEST(VXValueDump, OfALeafHasItsFormatAtEveryVerbosity)
{
    for (const Leaf& leaf : leaves()) {
        SCOPED_TRACE(leaf.type + " " + leaf.compact);
        const std::string before = labels(leaf.value, leaf.type);
        EXPECT_EQ(leaf.value.dump(1), leaf.compact);
        EXPECT_EQ(leaf.value.dump(2), before + leaf.labelled);
        EXPECT_EQ(leaf.value.dump(3), "\n<VxValue>" + before + leaf.framed + "\n</VxValue>\n");
    }
}

TEST(VXValueDump, AtVerbosityZeroAndBelowIsEmpty)
{
    for (const VXValue& value : {VXValue(), VXValue(true), VXValue(42), VXValue("a"), binary("b"), array({1})})
        for (const int verbosity : {0, -1, std::numeric_limits<int>::min()})
            EXPECT_EQ(value.dump(verbosity), "") << layout(value);
}

TEST(VXValueDump, AboveVerbosityThreeIsThatOfThree)
{
    const VXValue value = array({1, "a", binary("b"), {}});
    EXPECT_EQ(value.dump(4), value.dump(3));
    EXPECT_EQ(value.dump(std::numeric_limits<int>::max()), value.dump(3));
}

TEST(VXValueDump, OfAnObjectWithoutStorageHasNoBody)
{
    const VXValue object = objectWithoutStorage();
    EXPECT_EQ(object.dump(1), "");
    EXPECT_EQ(object.dump(2), labels(object, "Object"));
    EXPECT_EQ(object.dump(3), "\n<VxValue>" + labels(object, "Object") + "\n</VxValue>\n");
}

TEST(VXValueDump, ShowsThePayloadOfScalarsAsItsBits)
{
    const auto payload = [](const VXValue& value) {
        const std::string dump = value.dump(2);
        return dump.substr(dump.find("Value: ") + 7, 18);
    };
    EXPECT_EQ(payload({}), "0x0000000000000000");
    EXPECT_EQ(payload(true), "0x0000000000000001");
    EXPECT_EQ(payload(-1), "0x00000000FFFFFFFF");
    EXPECT_EQ(payload(1.5F), "0x000000003FC00000");
}

TEST(VXValueDump, OfAnArrayIsBracketedBelowVerbosityThree)
{
    EXPECT_EQ(array({}).dump(1), "[]");
    EXPECT_EQ(array({1, "a"}).dump(1), "[1, \"a\"]");
    EXPECT_EQ(array({{}, {}, true}).dump(1), "[, , true]");
    EXPECT_EQ(array({array({}), array({1, array({2})}), 3}).dump(1), "[[], [1, [2]], 3]");
}

TEST(VXValueDump, AtVerbosityTwoLabelsAnArrayAndItsElements)
{
    const VXValue empty = array({});
    EXPECT_EQ(empty.dump(2), labels(empty, "Array") + "[Vector of 0 elem(s):]");
    const VXValue value = array({42, array({"a"}), binary("\x01")});
    EXPECT_EQ(value.dump(2), labels(value, "Array") + "[Vector of 3 elem(s):" + labels(value[0], "Int") +
                                 "Int: 0x0000002A (42), " + labels(value[1], "Array") +
                                 "[Vector of 1 elem(s):" + labels(value[1][0], "String") +
                                 "String of size 1: \"a\"], " + labels(value[2], "Binary") + "\\1</Binary>\n]");
}

TEST(VXValueDump, AtVerbosityThreeFramesAnArrayAndItsElements)
{
    const VXValue empty = array({});
    EXPECT_EQ(empty.dump(3),
              "\n<VxValue>" + labels(empty, "Array") + "\n<Vector>Vector of 0 elem(s):\n</Vector>\n</VxValue>\n");
    const VXValue value = array({true, array({42})});
    EXPECT_EQ(value.dump(3),
              "\n<VxValue>" + labels(value, "Array") + "\n<Vector>Vector of 2 elem(s):" + "\n<elem>\n\n<VxValue>" +
                  labels(value[0], "Bool") + "Bool:true\n</VxValue>\n\n</elem>" + "\n<elem>\n\n<VxValue>" +
                  labels(value[1], "Array") + "\n<Vector>Vector of 1 elem(s):" + "\n<elem>\n\n<VxValue>" +
                  labels(value[1][0], "Int") + "Int: 0x0000002A (42)\n\n</VxValue>\n\n</elem>" +
                  "\n</Vector>\n</VxValue>\n\n</elem>" + "\n</Vector>\n</VxValue>\n");
}

TEST(VXValueDump, WritesAFloatAsPrintfDoesInTheCLocale)
{
    using Limits = std::numeric_limits<float>;
    std::vector<float> numbers = {0.0F,
                                  -0.0F,
                                  Limits::min(),
                                  Limits::max(),
                                  Limits::denorm_min(),
                                  Limits::infinity(),
                                  -Limits::infinity(),
                                  Limits::quiet_NaN(),
                                  1e5F,
                                  999999.5F,
                                  1e6F,
                                  1e-4F,
                                  1e-5F};
    for (std::uint32_t bits = 0; bits < 0xFF000000U; bits += 0x3FEDCB) {
        numbers.emplace_back();
        std::memcpy(&numbers.back(), &bits, sizeof bits);
    }
    for (const float number : numbers) {
        char text[32];
        std::snprintf(text, sizeof text, "%.6g", static_cast<double>(number));
        EXPECT_EQ(VXValue(number).dump(1), text);
    }
}

TEST(VXValueDump, DoesNotFollowTheLocale)
{
    const zu::test::CommaLocale locale;
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    ASSERT_STREQ(text, "0,5");
    EXPECT_EQ(array({0.5F, 1'000'000, 1e10F}).dump(1), "[0.5, 1000000, 1e+10]");
    EXPECT_EQ(errorOf([] { VXValue(1'000'000).xAssertType(Type::String); }), typeError("String", "Int", "1000000"));
}

} // namespace VX
