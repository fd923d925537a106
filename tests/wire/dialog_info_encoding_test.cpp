#include "support/signature.hpp"
#include "support/variants.hpp"

#include <zupackage/dialog_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::array;
using test::binary;
using test::errorOf;
using test::errorText;
using test::layout;
using test::pair;
using test::typeError;
using testing::ElementsAre;
using testing::Pair;
using VX::VXValue;

static_assert(test::has<VXValue (DialogInfo::*)() const>(&DialogInfo::toVXValue));
static_assert(std::is_convertible_v<const VXValue&, DialogInfo>);

namespace {

DialogInfo wholeDialog()
{
    DialogInfo dialog;
    dialog.setTopicName("topic");
    dialog.setTypeVersion("1.0");
    dialog.setTopic("fr", "fr.top");
    dialog.setTopic("en", "en.top");
    return dialog;
}

VXValue dialogOf(VXValue topicName, VXValue typeVersion, VXValue topics)
{
    return array({pair("topicName", std::move(topicName)), pair("typeVersion", std::move(typeVersion)),
                  pair("topics", std::move(topics))});
}

VXValue wholeDialogEncoded() { return dialogOf("topic", "1.0", array({pair("en", "en.top"), pair("fr", "fr.top")})); }

} // namespace

TEST(DialogEncoding, HasThreePairsInTheirFixedOrder)
{
    EXPECT_EQ(layout(wholeDialog().toVXValue()), layout(wholeDialogEncoded()));
}

TEST(DialogEncoding, OfAnEmptyDialogHasAllPairs)
{
    EXPECT_EQ(layout(DialogInfo().toVXValue()), layout(dialogOf("", "", array({}))));
}

TEST(DialogDecoding, GivesWhatWasEncoded) { EXPECT_EQ(DialogInfo(wholeDialogEncoded()), wholeDialog()); }

TEST(DialogDecoding, GoesByPositionAndIgnoresTheKeys)
{
    VXValue value = wholeDialogEncoded();
    value[0][0] = "topics";
    value[1][0] = 7;
    value[2][0] = VXValue();
    EXPECT_EQ(DialogInfo(value), wholeDialog());
}

TEST(DialogDecoding, IgnoresWhatFollowsAPair)
{
    VXValue value = wholeDialogEncoded();
    value[0].resizeArray(3);
    EXPECT_EQ(DialogInfo(value), wholeDialog());
}

TEST(DialogDecoding, OfARepeatedLanguageTheLaterTopicStays)
{
    const DialogInfo dialog = dialogOf("", "", array({pair("en", "first"), pair("fr", "f"), pair("en", "second")}));
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("en", "second"), Pair("fr", "f")));
}

TEST(DialogDecoding, OfAnotherOuterShapeGivesAnEmptyDialog)
{
    std::vector<VXValue> pairs = test::elementsOf(wholeDialogEncoded());
    pairs.push_back(pairs.back());
    EXPECT_EQ(DialogInfo(array(pairs)), DialogInfo()) << "four pairs";
    pairs.resize(2);
    EXPECT_EQ(DialogInfo(array(pairs)), DialogInfo()) << "two pairs";
    for (const VXValue& value :
         {VXValue(), VXValue(true), VXValue(3), VXValue(1.5F), VXValue("abc"), binary("abc"), array({})})
        EXPECT_EQ(DialogInfo(value), DialogInfo()) << layout(value);
    EXPECT_EQ(DialogInfo(test::objectWithoutStorage()), DialogInfo());
}

TEST(DialogDecoding, TakesABinaryForAText)
{
    testing::internal::CaptureStdout();
    const DialogInfo dialog = dialogOf(binary("t"), "1.0", array({array({binary("en"), binary("p")})}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 1)\n"
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 2)\n"
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 1)\n");
    EXPECT_EQ(dialog.topicName(), std::string("t\0", 2));
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair(std::string("en\0", 3), std::string("p\0", 2))));
}

TEST(DialogDecoding, RefusesWrongInnerShapes)
{
    const VXValue none = array({});
    EXPECT_EQ(errorOf([&] { DialogInfo{dialogOf(42, "", none)}; }), typeError("String", "Int", "42"));
    EXPECT_EQ(errorOf([&] { DialogInfo{dialogOf("", {}, none)}; }), typeError("String", "Invalid", ""));
    EXPECT_EQ(errorOf([&] { DialogInfo{dialogOf("", "", "x")}; }), typeError("Array", "String", "\"x\""));
    EXPECT_EQ(errorOf([&] { DialogInfo{dialogOf("", "", {})}; }), typeError("Array", "Invalid", ""));
    EXPECT_EQ(errorOf([&] { DialogInfo{dialogOf("", "", array({"en"}))}; }), typeError("Array", "String", "\"en\""));
    EXPECT_EQ(errorOf([&] { DialogInfo{array({1, 2, 3})}; }), typeError("Array", "Int", "1"));
    EXPECT_EQ(errorOf([&] {
                  DialogInfo{array({array({"topicName"}), {}, {}})};
              }),
              errorText("xAssertArraySize", "The array has a size of 1 and you want it to be of size 2"));
}

} // namespace zu
