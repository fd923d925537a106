#include "support/manifests.hpp"
#include "support/signature.hpp"
#include "support/variants.hpp"

#include <zupackage/language_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>

namespace zu {

using test::array;
using test::binary;
using test::dumpOf;
using test::errorOf;
using test::errorText;
using test::layout;
using test::pair;
using test::typeError;
using VX::VXValue;

static_assert(test::has<void (LanguageInfo::*)(VXValue&) const>(&LanguageInfo::toVXValue));
static_assert(std::is_convertible_v<const VXValue&, LanguageInfo>);

namespace {

LanguageInfo wholeLanguage()
{
    LanguageInfo language;
    language.setPath("path");
    language.setEngineName("engine");
    language.setEngineVersion("1.0");
    language.setLocale("fr");
    language.setName("français", "fr");
    language.setName("French", "en");
    return language;
}

VXValue wholeLanguageEncoded()
{
    return array({pair("path", "path"), pair("engineName", "engine"), pair("engineVersion", "1.0"),
                  pair("locale", "fr"), pair("names", array({pair("en", "French"), pair("fr", "français")}))});
}

VXValue encoded(const LanguageInfo& language)
{
    VXValue value;
    language.toVXValue(value);
    return value;
}

/// The encoding with another value in the pair at `index`.
VXValue languageWith(int index, VXValue value)
{
    VXValue encoding = wholeLanguageEncoded();
    encoding[index][1] = std::move(value);
    return encoding;
}

} // namespace

TEST(LanguageEncoding, HasFivePairsInTheirFixedOrder)
{
    EXPECT_EQ(layout(encoded(wholeLanguage())), layout(wholeLanguageEncoded()));
}

TEST(LanguageEncoding, OfAnEmptyLanguageHasAllPairs)
{
    EXPECT_EQ(layout(encoded(LanguageInfo())),
              layout(array({pair("path", ""), pair("engineName", ""), pair("engineVersion", ""), pair("locale", ""),
                            pair("names", array({}))})));
}

TEST(LanguageEncoding, ReplacesWhatAnArrayHolds)
{
    for (const VXValue& before :
         {array({}), array({1, "x"}), wholeLanguageEncoded(), array(std::vector<VXValue>(40))}) {
        VXValue value = before;
        wholeLanguage().toVXValue(value);
        EXPECT_EQ(layout(value), layout(wholeLanguageEncoded())) << layout(before);
    }
}

TEST(LanguageEncoding, RefusesWhatIsNoArray)
{
    VXValue value("text");
    EXPECT_EQ(errorOf([&] { wholeLanguage().toVXValue(value); }),
              errorText("xAssertCompatibleType: type error",
                        "Expected a Array but received a String (vxvalue contents: \"text\" )"));
    EXPECT_EQ(layout(value), "String \"text\"\n");
}

TEST(LanguageDecoding, GivesWhatWasEncoded)
{
    EXPECT_EQ(dumpOf(LanguageInfo(wholeLanguageEncoded())), dumpOf(wholeLanguage()));
}

TEST(LanguageDecoding, GoesByPositionAndIgnoresTheKeys)
{
    VXValue value = wholeLanguageEncoded();
    value[0][0] = "names";
    value[4][0] = VXValue();
    EXPECT_EQ(dumpOf(LanguageInfo(value)), dumpOf(wholeLanguage()));
}

TEST(LanguageDecoding, IgnoresWhatFollowsTheFifthPair)
{
    VXValue value = wholeLanguageEncoded();
    value.resizeArray(7);
    EXPECT_EQ(dumpOf(LanguageInfo(value)), dumpOf(wholeLanguage()));
}

TEST(LanguageDecoding, OfARepeatedLanguageTheLaterNameStays)
{
    EXPECT_EQ(LanguageInfo(languageWith(4, array({pair("en", "first"), pair("en", "second")}))).name("en"), "second");
}

TEST(LanguageDecoding, TakesABinaryForAText)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(LanguageInfo(languageWith(3, binary("de"))).locale(), std::string("de\0", 3));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 2)\n");
}

// Unlike the other records, this one has no empty form to fall back to.
TEST(LanguageDecoding, RefusesAnyOtherOuterShape)
{
    EXPECT_EQ(errorOf([] { LanguageInfo{VXValue()}; }), typeError("Array", "Invalid", ""));
    EXPECT_EQ(errorOf([] { LanguageInfo{VXValue(42)}; }), typeError("Array", "Int", "42"));
    EXPECT_EQ(errorOf([] { LanguageInfo{VXValue("text")}; }), typeError("Array", "String", "\"text\""));
    EXPECT_EQ(errorOf([] { LanguageInfo{VXValue(1.5F)}; }),
              errorText("xAssertArraySize", "try to use a Float like an array"));
    EXPECT_EQ(errorOf([] { LanguageInfo{array({})}; }),
              errorText("xAssertArraySize", "The array has a size of 0 and you want it to be of size 1"));
    VXValue value = wholeLanguageEncoded();
    value.resizeArray(4);
    EXPECT_EQ(errorOf([&] { LanguageInfo{value}; }),
              errorText("xAssertArraySize", "The array has a size of 4 and you want it to be of size 5"));
}

TEST(LanguageDecoding, RefusesWrongInnerShapes)
{
    for (int index = 0; index < 4; ++index) {
        SCOPED_TRACE(index);
        EXPECT_EQ(errorOf([&] { LanguageInfo{languageWith(index, {})}; }), typeError("String", "Invalid", ""));
        EXPECT_EQ(errorOf([&] { LanguageInfo{languageWith(index, array({}))}; }), typeError("String", "Array", "[]"));
    }
    EXPECT_EQ(errorOf([] { LanguageInfo{languageWith(4, {})}; }), typeError("Array", "Invalid", ""));
    EXPECT_EQ(errorOf([] { LanguageInfo{languageWith(4, array({pair("en", 1)}))}; }), typeError("String", "Int", "1"));
    VXValue value = wholeLanguageEncoded();
    value[2].resizeArray(1);
    EXPECT_EQ(errorOf([&] { LanguageInfo{value}; }),
              errorText("xAssertArraySize", "The array has a size of 1 and you want it to be of size 2"));
}

} // namespace zu
