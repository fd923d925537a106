#include "support/manifests.hpp"
#include "support/signature.hpp"
#include "support/variants.hpp"
#include "support/whole_package.hpp"

#include <zupackage/behavior_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>

#include <algorithm>

namespace zu {

using test::array;
using test::binary;
using test::dumpOf;
using test::errorOf;
using test::errorText;
using test::layout;
using test::pair;
using test::textArray;
using test::typeError;
using test::wholeBehavior;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using VX::VXValue;

static_assert(test::has<void (BehaviorInfo::*)(VXValue&) const>(&BehaviorInfo::toVXValue));
static_assert(std::is_convertible_v<const VXValue&, BehaviorInfo>);

namespace {

VXValue encoded(const BehaviorInfo& behavior)
{
    VXValue value;
    behavior.toVXValue(value);
    return value;
}

VXValue wholeBehaviorEncoded() { return encoded(wholeBehavior()); }

/// The behavior of one pair.
BehaviorInfo decoded(const std::string& key, VXValue value) { return array({pair(key, std::move(value))}); }

} // namespace

TEST(BehaviorEncoding, CarriesAListThatAGetterCreated)
{
    BehaviorInfo behavior;
    behavior.triggerSentences("fr");
    const VXValue value = encoded(behavior);
    EXPECT_EQ(layout(value[6][1]), layout(array({pair("fr", array({}))})));
    EXPECT_THAT(BehaviorInfo(value).languagesToTriggerSentences(), ElementsAre(Pair("fr", IsEmpty())));
}

TEST(BehaviorEncoding, ReplacesWhatAnArrayHolds)
{
    for (const VXValue& before :
         {array({}), array({1, "x"}), wholeBehaviorEncoded(), array(std::vector<VXValue>(40))}) {
        VXValue value = before;
        wholeBehavior().toVXValue(value);
        EXPECT_EQ(layout(value), layout(wholeBehaviorEncoded())) << layout(before);
    }
}

TEST(BehaviorEncoding, LeavesCategoriesInvalidWhateverStoodThere)
{
    VXValue value = wholeBehaviorEncoded();
    value[4][1] = textArray({"left over"});
    wholeBehavior().toVXValue(value);
    EXPECT_EQ(value[4][1].type(), VXValue::Type::Invalid);
}

TEST(BehaviorEncoding, RefusesWhatIsNoArray)
{
    VXValue value(42);
    EXPECT_EQ(
        errorOf([&] { wholeBehavior().toVXValue(value); }),
        errorText("xAssertCompatibleType: type error", "Expected a Array but received a Int (vxvalue contents: 42 )"));
    EXPECT_EQ(layout(value), "Int 42\n");
}

TEST(BehaviorDecoding, GivesWhatWasEncoded)
{
    EXPECT_EQ(dumpOf(BehaviorInfo(wholeBehaviorEncoded())), dumpOf(wholeBehavior()));
    EXPECT_EQ(layout(encoded(BehaviorInfo(wholeBehaviorEncoded()))), layout(wholeBehaviorEncoded()));
}

TEST(BehaviorDecoding, TakesPairsInAnyOrder)
{
    std::vector<VXValue> pairs = test::elementsOf(wholeBehaviorEncoded());
    std::reverse(pairs.begin(), pairs.end());
    EXPECT_EQ(layout(encoded(BehaviorInfo(array(pairs)))), layout(wholeBehaviorEncoded()));
    std::rotate(pairs.begin(), pairs.begin() + 4, pairs.end());
    EXPECT_EQ(layout(encoded(BehaviorInfo(array(pairs)))), layout(wholeBehaviorEncoded()));
}

TEST(BehaviorDecoding, LeavesFieldsWithoutAPairEmpty)
{
    BehaviorInfo expected;
    expected.setNature("solitary");
    EXPECT_EQ(dumpOf(decoded("nature", "solitary")), dumpOf(expected));
}

TEST(BehaviorDecoding, IgnoresOtherKeys)
{
    for (const char* key : {"categories", "", "Path", "path ", "unheard of"}) {
        SCOPED_TRACE(key);
        EXPECT_EQ(dumpOf(decoded(key, textArray({"x"}))), dumpOf(BehaviorInfo()));
        EXPECT_EQ(dumpOf(decoded(key, {})), dumpOf(BehaviorInfo()));
        EXPECT_EQ(dumpOf(BehaviorInfo(array({array({key})}))), dumpOf(BehaviorInfo())) << "a pair without a value";
    }
}

TEST(BehaviorDecoding, OfARepeatedKeyTheLaterPairStays)
{
    const BehaviorInfo behavior = array({pair("path", "first"), pair("names", array({pair("en", "first")})),
                                         pair("path", "second"), pair("names", array({pair("fr", "second")}))});
    EXPECT_EQ(behavior.path(), "second");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("fr", "second")));
}

TEST(BehaviorDecoding, OfARepeatedLanguageTheLaterTextStays)
{
    EXPECT_THAT(decoded("names", array({pair("en", "first"), pair("fr", "f"), pair("en", "second")})).names(),
                ElementsAre(Pair("en", "second"), Pair("fr", "f")));
    EXPECT_THAT(decoded("tags", array({pair("en", textArray({"a", "b"})), pair("en", textArray({"c"}))})).tags("en"),
                ElementsAre("c"));
}

TEST(BehaviorDecoding, RemovesConsecutiveDuplicatePermissions)
{
    EXPECT_THAT(decoded("permissions", textArray({"a", "a", "b", "a"})).permissions(), ElementsAre("a", "b", "a"));
    EXPECT_THAT(decoded("permissions", textArray({"", "", "a", "a", "a"})).permissions(), ElementsAre("", "a"));
}

TEST(BehaviorDecoding, KeepsDuplicatesElsewhere)
{
    EXPECT_THAT(decoded("tags", array({pair("en", textArray({"a", "a"}))})).tags("en"), ElementsAre("a", "a"));
}

TEST(BehaviorDecoding, TakesTheFlagFromWhateverIsTrueOrFalse)
{
    for (const VXValue& value : {VXValue(true), VXValue(1), VXValue(0.5F), VXValue("x"), binary("x"), array({{}})})
        EXPECT_TRUE(decoded("userRequestable", value).isUserRequestable()) << layout(value);
    for (const VXValue& value : {VXValue(false), VXValue(0), VXValue(0.0F), VXValue(""), binary(""), array({})})
        EXPECT_FALSE(decoded("userRequestable", value).isUserRequestable()) << layout(value);
    EXPECT_EQ(errorOf([] { decoded("userRequestable", {}); }),
              errorText("const bool() const", "Cannot cast to bool an VXValue of invalid type."));
}

TEST(BehaviorDecoding, TakesABinaryForATextAndAKey)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(decoded("path", binary("p")).path(), std::string("p\0", 2));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 1)\n");
    testing::internal::CaptureStdout();
    // The zero behind it makes it another key.
    EXPECT_EQ(BehaviorInfo(array({array({binary("path"), "p"})})).path(), "");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::EndsWith("(size of binary: 4)\n"));
}

TEST(BehaviorDecoding, OfWhatIsNoArrayOrAnEmptyOneGivesAnEmptyBehavior)
{
    for (const VXValue& value :
         {VXValue(), VXValue(true), VXValue(42), VXValue(1.5F), VXValue("text"), binary("bytes"), array({})})
        EXPECT_EQ(dumpOf(BehaviorInfo(value)), dumpOf(BehaviorInfo())) << layout(value);
    EXPECT_EQ(dumpOf(BehaviorInfo(test::objectWithoutStorage())), dumpOf(BehaviorInfo()));
}

TEST(BehaviorDecoding, RefusesElementsThatAreNoPairs)
{
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({"path"})}; }), typeError("Array", "String", "\"path\""));
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({{}})}; }), typeError("Array", "Invalid", ""));
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({1.5F})}; }),
              errorText("xAssertArraySize", "try to use a Float like an array"));
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({array({})})}; }),
              errorText("xAssertArraySize", "The array has a size of 0 and you want it to be of size 1"));
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({array({"path"})})}; }),
              errorText("xAssertArraySize", "The array has a size of 1 and you want it to be of size 2"));
    EXPECT_EQ(errorOf([] { BehaviorInfo{array({array({1, "p"})})}; }), typeError("String", "Int", "1"));
}

TEST(BehaviorDecoding, RefusesValuesOfTheWrongType)
{
    for (const char* key : {"path", "nature"})
        EXPECT_EQ(errorOf([&] { decoded(key, 42); }), typeError("String", "Int", "42")) << key;
    for (const char* key :
         {"names", "descriptions", "tags", "triggerSentences", "loadingResponses", "conditions", "permissions"}) {
        SCOPED_TRACE(key);
        EXPECT_EQ(errorOf([&] { decoded(key, "x"); }), typeError("Array", "String", "\"x\""));
        EXPECT_EQ(errorOf([&] { decoded(key, {}); }), typeError("Array", "Invalid", ""));
        EXPECT_EQ(errorOf([&] { decoded(key, true); }), typeError("Array", "Bool", "true"));
        EXPECT_EQ(errorOf([&] { decoded(key, 1.5F); }),
                  errorText("xAssertArraySize", "try to use a Float like an array"));
    }
    EXPECT_EQ(errorOf([] { decoded("permissions", array({1})); }), typeError("String", "Int", "1"));
    EXPECT_EQ(errorOf([] { decoded("names", array({pair("en", 1)})); }), typeError("String", "Int", "1"));
    EXPECT_EQ(errorOf([] { decoded("tags", array({pair("en", "x")})); }), typeError("Array", "String", "\"x\""));
}

} // namespace zu
