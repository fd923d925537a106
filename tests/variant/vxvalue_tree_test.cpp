#include "support/build_kind.hpp"
#include "support/variants.hpp"

#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace VX {

using testing::EndsWith;
using testing::MatchesRegex;
using testing::StartsWith;
using zu::test::array;
using zu::test::binary;
using zu::test::errorOf;
using zu::test::layout;
using zu::test::objectWithoutStorage;
using zu::test::typeError;
using Type = VXValue::Type;

namespace {

// Recursion overflows the stack at a third of that under a sanitizer, whose frames are larger.
constexpr int k_levels = zu::test::k_sanitized ? 30'000 : 100'000;
constexpr char k_copyRefused[] = "\tVXValue::Assert failed\n\tsrc/vxvalue_tree\\.cpp:[1-9][0-9]*";

/// As many levels as that; each holds `before` elements, the next level, and `after` elements.
VXValue deep(int levels, int before = 0, int after = 0)
{
    VXValue value;
    value.resizeArray(0);
    for (int level = 1; level < levels; ++level) {
        VXValue outer;
        outer.resizeArray(before + 1 + after);
        for (int i = 0; i < before + 1 + after; ++i)
            outer[i] = "s";
        outer[before] = std::move(value);
        value = std::move(outer);
    }
    return value;
}

std::string repeated(const std::string& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

} // namespace

TEST(VXValueCopy, AssigningReplacesAnyTypeByAnyOther)
{
    const std::vector<VXValue> values = {{}, true, 7, 1.5F, "text", binary("b\xff"), array({1, array({"x"})})};
    for (const VXValue& source : values) {
        for (VXValue target : values) {
            SCOPED_TRACE(layout(target) + " becomes " + layout(source));
            target = source;
            EXPECT_EQ(layout(target), layout(source));
        }
    }
}

TEST(VXValueCopy, AssignedToItselfAValueStays)
{
    VXValue value = array({1, "x"});
    const VXValue& same = value;
    value = same;
    EXPECT_EQ(layout(value), layout(array({1, "x"})));
}

TEST(VXValueCopy, MovedToItselfAValueStays)
{
    VXValue value = array({1, "x"});
    VXValue& same = value;
    value = std::move(same);
    EXPECT_EQ(layout(value), layout(array({1, "x"})));
}

TEST(VXValueCopy, MovedFromAValueIsInvalid)
{
    for (VXValue value : {VXValue(true), VXValue("text"), binary("bytes"), array({1})}) {
        const std::string before = layout(value);
        VXValue constructed = std::move(value);
        EXPECT_EQ(value.type(), Type::Invalid); // NOLINT(bugprone-use-after-move): promised
        EXPECT_EQ(layout(constructed), before);
        value = std::move(constructed);
        EXPECT_EQ(constructed.type(), Type::Invalid); // NOLINT(bugprone-use-after-move): promised
        EXPECT_EQ(layout(value), before);
    }
}

TEST(VXValueCopy, IsIndependentOfItsOriginal)
{
    VXValue original = array({"text", array({1, binary("bytes")}), 2});
    const std::string before = layout(original);
    VXValue copy = original;
    VXValue assigned;
    assigned = original;
    copy[0] = "changed";
    copy[1][1] = true;
    copy[1].resizeArray(1);
    assigned.resizeArray(0);
    EXPECT_EQ(layout(original), before);
    original = VXValue();
    EXPECT_EQ(layout(copy), layout(array({"changed", array({1}), 2})));
}

TEST(VXValueCopy, ReadingACopiedBinaryLeavesTheOriginalABinary)
{
    const VXValue original = array({binary("b")});
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copying is what is tested
    const VXValue copy = original;
    testing::internal::CaptureStdout();
    static_cast<void>(static_cast<const std::string&>(copy[0]));
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(copy[0].type(), Type::String);
    EXPECT_EQ(original[0].type(), Type::Binary);
}

TEST(VXValueCopy, APartCanReplaceTheWhole)
{
    VXValue value = array({1, array({"x", array({2})}), 3});
    value = value[1];
    EXPECT_EQ(layout(value), layout(array({"x", array({2})})));
    value = std::move(value[1]);
    EXPECT_EQ(layout(value), layout(array({2})));
    value = value[0];
    EXPECT_EQ(layout(value), "Int 2\n");
}

TEST(VXValueCopy, TheWholeCanReplaceAPart)
{
    VXValue value = array({1, "x"});
    value[0] = value;
    EXPECT_EQ(layout(value), layout(array({array({1, "x"}), "x"})));
}

TEST(VXValueAssignment, OfALiteralKeepsItsTypeAndZeroIsNoNullPointer)
{
    VXValue value("text");
    value = 0;
    EXPECT_EQ(layout(value), "Int 0\n");
    value = false;
    EXPECT_EQ(layout(value), "Bool false\n");
    value = 0.5F;
    EXPECT_EQ(layout(value), "Float 0.5\n");
    value = "text";
    EXPECT_EQ(layout(value), layout(VXValue("text")));
}

TEST(VXValueCopy, OfAnObjectWithoutStorageIsRefused)
{
    const VXValue object = objectWithoutStorage();
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copying is what is tested
    EXPECT_THAT(errorOf([&] { VXValue copy(object); }), MatchesRegex(k_copyRefused));
}

TEST(VXValueCopy, ThatIsRefusedHalfwayLeavesTheTargetAsItWas)
{
    VXValue tree;
    tree.resizeArray(3);
    tree[0] = array({array({"copied"}), binary("copied")});
    tree[1] = "copied";
    tree[2].resizeArray(2);
    tree[2][0] = "copied";
    tree[2][1] = objectWithoutStorage();
    VXValue target = array({"kept"});
    EXPECT_THAT(errorOf([&] { target = tree; }), MatchesRegex(k_copyRefused));
    EXPECT_EQ(layout(target), layout(array({"kept"})));
    EXPECT_THAT(errorOf([&] { target[0] = tree; }), MatchesRegex(k_copyRefused));
    EXPECT_EQ(layout(target), layout(array({"kept"})));
    EXPECT_EQ(tree[2][1].type(), Type::Object);
}

TEST(VXValueMove, CarriesAnObjectWithoutStorage)
{
    VXValue object = objectWithoutStorage();
    const VXValue moved = std::move(object);
    EXPECT_EQ(moved.type(), Type::Object);
}

TEST(VXValueDepth, IsNoLimitToCopyingAndDestroying)
{
    for (const auto& [before, after] : {std::pair(0, 0), {1, 0}, {0, 1}, {2, 2}}) {
        SCOPED_TRACE(std::to_string(before) + " before, " + std::to_string(after) + " after");
        VXValue original = deep(k_levels, before, after);
        const VXValue copy = original;
        const std::string dump = original.dump(1);
        EXPECT_EQ(copy.dump(1), dump);
        original = 7;
        EXPECT_EQ(copy.dump(1), dump) << "the copy does not share";
    }
}

TEST(VXValueDepth, IsNoLimitToDumping)
{
    const VXValue value = deep(k_levels, 1);
    EXPECT_EQ(value.dump(1), repeated("[\"s\", ", k_levels - 1) + "[" + repeated("]", k_levels));
    EXPECT_THAT(value.dump(2), EndsWith("[Vector of 0 elem(s):" + repeated("]", k_levels)));
    EXPECT_THAT(value.dump(3), EndsWith("\n</Vector>" + repeated("\n</VxValue>\n\n</elem>\n</Vector>", k_levels - 1) +
                                        "\n</VxValue>\n"));
}

TEST(VXValueDepth, IsNoLimitToErrorMessages)
{
    const VXValue value = deep(k_levels);
    EXPECT_EQ(errorOf([&] { value.xAssertType(Type::String); }),
              typeError("String", "Array", repeated("[", k_levels) + repeated("]", k_levels)));
}

TEST(VXValueDepth, IsNoLimitToShrinkingAnArray)
{
    VXValue value;
    value.resizeArray(3);
    for (int i = 0; i < 3; ++i)
        value[i] = deep(k_levels);
    value.resizeArray(1);
    EXPECT_EQ(value.size(), 1);
    value[0] = "shallow";
    EXPECT_EQ(layout(value), layout(array({"shallow"})));
}

TEST(VXValueDepth, IsNoLimitToTakingTheInnermostOut)
{
    VXValue value = deep(k_levels);
    VXValue* innermost = &value;
    while (innermost->size() > 0)
        innermost = &(*innermost)[0];
    *innermost = "innermost";
    value = *innermost;
    EXPECT_EQ(layout(value), "String \"innermost\"\n");
}

TEST(VXValueWidth, IsNoLimitToCopyingDestroyingAndDumping)
{
    VXValue value;
    value.resizeArray(k_levels);
    for (int i = 0; i < k_levels; ++i)
        value[i] = array({"s", binary("\x1")});
    const VXValue copy = value;
    value = VXValue();
    ASSERT_EQ(copy.size(), k_levels);
    EXPECT_EQ(copy.dump(1), "[" + repeated("[\"s\", \\1], ", k_levels - 1) + "[\"s\", \\1]]");
    EXPECT_THAT(copy.dump(2), StartsWith("VxValue at 0x0x"));
}

TEST(VXValueTree, ComparesAtAnyDepth)
{
    const VXValue value = deep(k_levels, 1);
    EXPECT_TRUE(value == VXValue(value));
    EXPECT_FALSE(value == deep(k_levels + 1, 1));
}

} // namespace VX
