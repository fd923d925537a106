#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/signature.hpp"
#include "support/variants.hpp"
#include "support/whole_package.hpp"

#include <zupackage/package_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::array;
using test::binary;
using test::describe;
using test::errorOf;
using test::errorText;
using test::layout;
using test::pair;
using test::textArray;
using test::typeError;
using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;
using VX::VXValue;

static_assert(test::has<void (PackageInfo::*)(VXValue&)>(&PackageInfo::toVXValue), "not const: part of the interface");
static_assert(std::is_convertible_v<const VXValue&, PackageInfo>);

namespace {

VXValue encoded(PackageInfo package)
{
    VXValue value;
    package.toVXValue(value);
    return value;
}

/// A package with every field that the wire form carries.
PackageInfo everything()
{
    PackageInfo package = test::wholePackage();
    package.setInstallOnlyAtStartup(false);
    return package;
}

/// The encoding with another value in the pair at `index`.
VXValue packageWith(int index, VXValue value)
{
    VXValue encoding = encoded(everything());
    encoding[index][1] = std::move(value);
    return encoding;
}

VXValue shortened(int pairs)
{
    VXValue encoding = encoded(everything());
    encoding.resizeArray(pairs);
    return encoding;
}

constexpr int k_texts[] = {0, 1, 2, 3, 4, 5, 6, 7, 13};
constexpr int k_lists[] = {8, 9, 10, 11, 12, 14, 15, 16, 17, 18, 19};

} // namespace

// Other programs read it by position: whoever changes the golden text breaks them.
TEST(PackageEncoding, OfAPackageWithEveryFieldIsTheGoldenText)
{
    test::expectGolden(layout(encoded(everything())), "wire_form.txt");
}

TEST(PackageEncoding, OfAPackageWithoutUuidIsAnEmptyArray)
{
    PackageInfo package = everything();
    package.setUuid("");
    EXPECT_EQ(layout(encoded(package)), "Array of 0\n");
    EXPECT_EQ(describe(encoded(package)), describe({}));
    VXValue value = encoded(everything());
    package.toVXValue(value);
    EXPECT_EQ(layout(value), "Array of 0\n") << "whatever it held";
}

TEST(PackageEncoding, ReplacesWhatAnArrayHolds)
{
    const std::string expected = layout(encoded(everything()));
    for (const VXValue& before : {array({}), array({1, "x"}), encoded(everything()), array(std::vector<VXValue>(40))}) {
        VXValue value = before;
        everything().toVXValue(value);
        EXPECT_EQ(layout(value), expected) << layout(before);
    }
}

TEST(PackageEncoding, LeavesCategoriesInvalidWhateverStoodThere)
{
    VXValue value = encoded(everything());
    value[11][1][0][4][1] = textArray({"left over"});
    everything().toVXValue(value);
    EXPECT_EQ(layout(value[11][1][0][4]), layout(pair("categories", {})));
}

TEST(PackageEncoding, RefusesWhatIsNoArray)
{
    for (const char* uuid : {"uuid", ""}) {
        PackageInfo package;
        package.setUuid(uuid);
        VXValue value(42);
        EXPECT_EQ(errorOf([&] { package.toVXValue(value); }),
                  errorText("xAssertCompatibleType: type error",
                            "Expected a Array but received a Int (vxvalue contents: 42 )"));
        EXPECT_EQ(layout(value), "Int 42\n");
    }
}

TEST(PackageDecoding, GivesWhatWasEncoded)
{
    EXPECT_EQ(describe(PackageInfo(encoded(everything()))), describe(everything()));
}

TEST(PackageDecoding, GivesNoInstallOnlyAtStartup)
{
    EXPECT_EQ(describe(encoded(test::wholePackage())), describe(everything()));
}

TEST(PackageDecoding, GoesByPositionAndIgnoresTheKeys)
{
    VXValue value = encoded(everything());
    for (int i = 0; i < value.size(); ++i)
        value[i][0] = i % 2 == 0 ? VXValue("uuid") : VXValue();
    EXPECT_EQ(describe(PackageInfo(value)), describe(everything()));
}

TEST(PackageDecoding, OfTheShorterFormsLacksWhatTheirPairsHold)
{
    PackageInfo expected = everything();
    expected.clearDescriptionLanguages();
    EXPECT_EQ(describe(PackageInfo(shortened(19))), describe(expected));
    expected.clearDialogs();
    EXPECT_EQ(describe(PackageInfo(shortened(18))), describe(expected));
}

TEST(PackageDecoding, OfAnotherOuterShapeGivesAnEmptyPackage)
{
    const std::string empty = describe({});
    for (const int pairs : {0, 1, 17, 21, 22, 40})
        EXPECT_EQ(describe(PackageInfo(shortened(pairs))), empty) << pairs;
    const std::string twenty(20, 'x');
    for (const VXValue& value : {VXValue(), VXValue(true), VXValue(20), VXValue(1.5F), VXValue(twenty), binary(twenty)})
        EXPECT_EQ(describe(PackageInfo(value)), empty) << layout(value);
    EXPECT_EQ(describe(PackageInfo(test::objectWithoutStorage())), empty);
}

TEST(PackageDecoding, TakesABinaryForAText)
{
    testing::internal::CaptureStdout();
    const PackageInfo package = packageWith(0, binary("id"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "WARNING: VXValue::operator const TVXValueString&: creating a string on the fly to patch possible ruby "
              "encoding problem (size of binary: 2)\n");
    EXPECT_EQ(package.uuid(), std::string("id\0", 3));
}

TEST(PackageDecoding, KeepsDuplicatesInTheLanguageLists)
{
    EXPECT_THAT(PackageInfo(packageWith(10, textArray({"en", "en"}))).supportedLanguages(), ElementsAre("en", "en"));
    EXPECT_THAT(PackageInfo(packageWith(19, textArray({"en", "en"}))).descriptionLanguages(), ElementsAre("en", "en"));
}

TEST(PackageDecoding, FallsBackToEmptyBehaviorsAndDialogsInTheirLists)
{
    EXPECT_THAT(PackageInfo(packageWith(11, array({{}, 42, array({})}))).behaviors(), SizeIs(3));
    EXPECT_THAT(PackageInfo(packageWith(18, array({{}, 42, array({})}))).dialogs(),
                ElementsAre(DialogInfo(), DialogInfo(), DialogInfo()));
    EXPECT_EQ(errorOf([] { PackageInfo{packageWith(12, array({{}}))}; }), typeError("Array", "Invalid", ""));
}

TEST(PackageDecoding, RefusesValuesOfTheWrongType)
{
    for (const int index : k_texts) {
        EXPECT_EQ(errorOf([&] { PackageInfo{packageWith(index, 42)}; }), typeError("String", "Int", "42")) << index;
        EXPECT_EQ(errorOf([&] { PackageInfo{packageWith(index, {})}; }), typeError("String", "Invalid", "")) << index;
    }
    for (const int index : k_lists) {
        SCOPED_TRACE(index);
        EXPECT_EQ(errorOf([&] { PackageInfo{packageWith(index, "x")}; }), typeError("Array", "String", "\"x\""));
        EXPECT_EQ(errorOf([&] { PackageInfo{packageWith(index, {})}; }), typeError("Array", "Invalid", ""));
        EXPECT_EQ(errorOf([&] { PackageInfo{packageWith(index, 1.5F)}; }),
                  errorText("xAssertArraySize", "try to use a Float like an array"));
    }
}

TEST(PackageDecoding, RefusesShortPairsRequirementsAndServices)
{
    const auto tooShort = [](int has, int wanted) {
        return errorText("xAssertArraySize", "The array has a size of " + std::to_string(has) +
                                                 " and you want it to be of size " + std::to_string(wanted));
    };
    for (int index = 0; index < encoded(everything()).size(); ++index) {
        VXValue value = encoded(everything());
        value[index].resizeArray(1);
        EXPECT_EQ(errorOf([&] { PackageInfo{value}; }), tooShort(1, 2)) << index;
    }
    EXPECT_EQ(errorOf([] { PackageInfo{packageWith(14, array({textArray({"", "", "", ""})}))}; }), tooShort(4, 5));
    EXPECT_EQ(errorOf([] { PackageInfo{packageWith(15, array({textArray({""})}))}; }), tooShort(1, 2));
    EXPECT_EQ(errorOf([] { PackageInfo{packageWith(16, array({array({"", "", true})}))}; }), tooShort(3, 4));
    EXPECT_EQ(errorOf([] {
                  PackageInfo{packageWith(16, array({array({"", "", {}, array({})})}))};
              }),
              errorText("const bool() const", "Cannot cast to bool an VXValue of invalid type."));
}

} // namespace zu
