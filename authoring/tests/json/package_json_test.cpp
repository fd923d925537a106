#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"
#include "support/whole_package.hpp"

#include <zupackage/authoring/package_json.hpp>

#include <gmock/gmock.h>

namespace zu {

using authoring::PackageJsonError;
using authoring::Place;
using test::checkProperty;
using test::describe;
using test::k_inputs;
using test::packageFrom;
using test::packages;
using test::written;

namespace {

PackageInfo emptyPackage() { return {}; }

} // namespace

TEST(PackageToJson, AnEmptyPackageHasItsFlagAlone)
{
    EXPECT_EQ(toJson(emptyPackage()), "{\n  \"format_version\": 1,\n  \"installOnlyAtStartup\": false\n}\n");
}

TEST(PackageToJson, AWholePackageIsThereUnderTheNamesOfTheManifest)
{
    test::expectGolden(toJson(test::wholePackage()), "whole_package.json");
}

TEST(PackageToJson, WhatNoManifestCarriesIsLeftOutOrReplaced)
{
    PackageInfo package;
    package.setInstaller("i");
    package.setPath("p");
    package.setUuid(std::string("a\x01\xff\0", 4));
    package.setName("", "en");
    package.setName("N\xc3", "\x80");
    EXPECT_EQ(toJson(package), "{\n  \"format_version\": 1,\n  \"uuid\": \"a\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\",\n"
                               "  \"installOnlyAtStartup\": false,\n"
                               "  \"names\": {\n    \"\xef\xbf\xbd\": \"N\xef\xbf\xbd\"\n  }\n}\n");
}

TEST(PackageToJson, KeysThatBecomeEqualAreReadAsTheManifestIs)
{
    PackageInfo package;
    package.setName("first", "\x80");
    package.setName("second", "\x81");
    PackageService service;
    service.envVars = {{"\x80", "first"}, {"\x81", "second"}};
    package.addService(service);
    package.addSupportedLanguage("\x80");
    package.addSupportedLanguage("\x81");
    EXPECT_EQ(toJson(package), toJson(packageFrom(written(package))));
    EXPECT_EQ(describe(packageFromJson(toJson(package))), describe(packageFrom(written(package))));
}

TEST(PackageToJson, ByteOrderMarksBeforeTextsVanish)
{
    const std::string marks = "\xef\xbb\xbf\xef\xbb\xbf";
    PackageInfo package;
    package.setUuid(marks + "u");
    package.setName("plain", "en");
    package.setName("marked", marks + "en");
    package.setName(marks, "fr");
    const std::string json = toJson(package);
    EXPECT_EQ(json, "{\n  \"format_version\": 1,\n  \"uuid\": \"u\",\n  \"installOnlyAtStartup\": false,\n"
                    "  \"names\": {\n    \"en\": \"marked\"\n  }\n}\n");
    EXPECT_EQ(toJson(packageFromJson(json)), json);
}

TEST(PackageJson, ManifestsAndJsonBecomeEachOtherWithoutLoss)
{
    checkProperty(k_inputs, [] {
        const PackageInfo package = *packages(test::visibleTexts());
        const std::string manifest = written(package);
        const std::string json = toJson(package);
        RC_ASSERT(written(packageFromJson(json)) == manifest);
        RC_ASSERT(toJson(packageFrom(manifest)) == json);
    });
}

TEST(PackageJson, AnyBytesInAPackageGiveJsonThatIsReadAgain)
{
    checkProperty(k_inputs / 20, [] {
        const PackageInfo once = packageFromJson(toJson(*packages(test::byteStrings(), test::byteStrings())));
        RC_ASSERT(toJson(packageFromJson(toJson(once))) == toJson(once));
    });
}

TEST(PackageJson, EachExampleComesBack)
{
    for (const auto& folder : test::examplePackages()) {
        SCOPED_TRACE(folder);
        PackageInfo package;
        ASSERT_TRUE(package.loadFromManifestFile((folder / "manifest.xml").string()));
        const std::string json = toJson(package);
        EXPECT_EQ(describe(packageFromJson(json)), describe(package));
        EXPECT_EQ(toJson(packageFrom(written(packageFromJson(json)))), json);
    }
}

TEST(PackageFromJson, MembersStandInAnyOrderAndBlanksStay)
{
    const PackageInfo package = packageFromJson("\xef\xbb\xbf"
                                                R"({"names": {"fr": " ", "de": "\r\n", "en": "a\u0000\tb"}, "uuid": "u",
                            "format_version": 1})");
    EXPECT_EQ(package.uuid(), "u");
    EXPECT_EQ(package.name("fr"), " ");
    EXPECT_EQ(package.name("de"), "\r\n");
    EXPECT_EQ(package.name("en"), "a\xef\xbf\xbd\tb");
}

TEST(PackageFromJson, WhatIsEmptyIsLikeWhatIsAbsent)
{
    const PackageInfo package = packageFromJson(R"({"format_version": 1, "uuid": "", "names": {}, "services": [],
        "contents": {"behaviorContent": [{"userRequestable": false, "tags": {"en": []}, "permissions": []}]}})");
    EXPECT_EQ(package.behaviors().size(), 1u);
    EXPECT_FALSE(package.behaviors().front().isUserRequestable());
    EXPECT_EQ(toJson(package), toJson(packageFromJson(toJson(package))));
}

struct Refusal
{
    const char* json;
    const char* message;
};

/// Where a member is wrong, the JSON is `{"format_version":1,` and it.
class RefusedMember : public testing::TestWithParam<Refusal>
{
};

TEST_P(RefusedMember, IsToldWithPlaceAndPointer)
{
    try {
        packageFromJson(std::string("{\"format_version\":1,\n ") + GetParam().json);
        FAIL() << "was read";
    } catch (const PackageJsonError& error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    PackageFromJson, RefusedMember,
    testing::Values(
        Refusal{R"("uuid": 7})", "line 2, column 10, at \"/uuid\": must be a string, not a number"},
        Refusal{R"("uuid": null})", "line 2, column 10, at \"/uuid\": must be a string, not null"},
        Refusal{R"("installOnlyAtStartup": "true"})",
                "line 2, column 26, at \"/installOnlyAtStartup\": must be true or false, not a string"},
        Refusal{R"("uid": "u"})",
                "line 2, column 2, at \"/uid\": the key \"uid\" is not known; did you mean \"uuid\"?"},
        Refusal{R"("uuid": "u", "uuid": "u"})", "line 2, column 15, at \"/uuid\": the key \"uuid\" stands there twice"},
        Refusal{R"("names": {"en": "a", "en": "b"}})",
                "line 2, column 23, at \"/names/en\": the key \"en\" stands there twice"},
        Refusal{R"("names": {"\u0001": "a", "\u0002": "b"}})",
                "line 2, column 27, at \"/names/\xef\xbf\xbd\": the key \"\xef\xbf\xbd\" stands there twice, as a "
                "manifest carries it"},
        Refusal{R"("supportedLanguages": ["en", "fr", "en"]})",
                "line 2, column 37, at \"/supportedLanguages/2\": the entry \"en\" stands there twice"},
        Refusal{R"("descriptionLanguages": ["en", "\ufeffen"]})",
                "line 2, column 33, at \"/descriptionLanguages/1\": the entry \"\xef\xbb\xbf"
                "en\" stands there twice, as a manifest carries it"},
        Refusal{R"("contents": {"behaviorContent": [{"permissions": ["canSitDown", "canSitDown"]}]}})",
                "line 2, column 66, at \"/contents/behaviorContent/0/permissions/1\": the entry \"canSitDown\" stands "
                "there twice"},
        Refusal{R"("version": 1e999})", "line 2, column 13, at \"/version\": is a number that is too large"},
        Refusal{R"("names": {"a/b~": 1}})", "line 2, column 20, at \"/names/a~1b~0\": must be a string, not a number"},
        Refusal{R"("names": ["en"]})", "line 2, column 11, at \"/names\": must be an object, not a list"},
        Refusal{R"("services": {}})", "line 2, column 14, at \"/services\": must be a list, not an object"},
        Refusal{R"("services": [{}, true]})", "line 2, column 19, at \"/services/1\": must be an object, not true"},
        Refusal{R"("executableFiles": [["a"]]})",
                "line 2, column 22, at \"/executableFiles/0\": must be a string, not a list"},
        Refusal{R"("contents": {"behaviorContent": [{"tags": {"en": "a"}}]}})",
                "line 2, column 51, at \"/contents/behaviorContent/0/tags/en\": must be a list, not a string"},
        Refusal{R"("contents": {"behaviorContent": [{"nature": {}}]}})",
                "line 2, column 46, at \"/contents/behaviorContent/0/nature\": must be a string, not an object"},
        Refusal{R"("contents": {"behaviorContent": [{"userRequestable": 1}]}})",
                "line 2, column 55, at \"/contents/behaviorContent/0/userRequestable\": must be true or false, not a "
                "number"},
        Refusal{
            R"("contents": {"behaviorContent": [{"permissions": ["canFly", "canStandUp"]}]}})",
            "line 2, column 52, at \"/contents/behaviorContent/0/permissions/0\": the name \"canFly\" is not known"},
        Refusal{R"("contents": {"dialogContent": [{"topic": {"en": {}}}]}})",
                "line 2, column 50, at \"/contents/dialogContent/0/topic/en\": must be a string, not an object"},
        Refusal{"\"author\": \"\xc3\xa9\", \"x\": 1}", "line 2, column 17, at \"/x\": the key \"x\" is not known"}));

class RefusedText : public testing::TestWithParam<Refusal>
{
};

TEST_P(RefusedText, IsToldWithItsPlace)
{
    try {
        packageFromJson(GetParam().json);
        FAIL() << "was read";
    } catch (const PackageJsonError& error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    PackageFromJson, RefusedText,
    testing::Values(
        Refusal{"", "line 1, column 1: is no JSON: unexpected end of input; expected '[', '{', or a literal"},
        Refusal{"{}", "line 1, column 2: the key \"format_version\" is missing"},
        Refusal{"[]", "line 1, column 1: must be an object, not a list"},
        Refusal{"3", "line 1, column 1: must be an object, not a number"},
        Refusal{"{\"format_version\": 2}", "line 1, column 20, at \"/format_version\": is a version of the "
                                           "form that is not known; 1 is"},
        Refusal{"{\"format_version\": \"1\"}",
                "line 1, column 20, at \"/format_version\": must be a number, not a string"},
        Refusal{"{\r\n\"format_version\": 1,\r}",
                "line 3, column 1, at \"/format_version\": is no JSON: unexpected '}'; expected string literal"},
        Refusal{"{\"uuid\": \"\xff\"}",
                "line 1, column 11, at \"/uuid\": is no JSON: invalid string: ill-formed UTF-8 byte"},
        Refusal{"{\"a - b; last read", "line 1, column 19: is no JSON: invalid string: missing closing quote"},
        Refusal{"{\"format_version\": 1} x", "line 1, column 23: is no JSON: invalid literal"}));

TEST(PackageFromJson, AZeroByteEndsNoText)
{
    using namespace std::string_literals;
    const std::string document = "{\"format_version\":1}";
    for (const std::string& json : {document + "\0"s, document + "\n\0 garbage {{{"s, "{\"format_version\":\0 1}"s}) {
        try {
            packageFromJson(json);
            ADD_FAILURE() << "was read";
        } catch (const PackageJsonError& error) {
            EXPECT_EQ(error.reason(), "is no JSON: there is a zero byte");
            EXPECT_EQ(error.place().line, json.find('\n') < json.size() ? 2u : 1u);
        }
    }
}

TEST(PackageFromJson, EntriesThatReadersKeepTwiceStandThereTwice)
{
    const PackageInfo package = packageFromJson(R"({"format_version": 1, "executableFiles": ["a", "a"],
        "contents": {"behaviorContent": [{"path": "b", "tags": {"en": ["t", "t"]}}, {"path": "b"}]}})");
    EXPECT_EQ(package.executableFiles().size(), 2u);
    EXPECT_EQ(package.behaviors().size(), 2u);
    EXPECT_EQ(package.behaviors().front().languagesToTags().at("en").size(), 2u);
}

TEST(PackageFromJson, ErrorsAreDataToo)
{
    try {
        packageFromJson("{\"format_version\":1,\n\"names\":{\"en\":1}}");
        FAIL() << "was read";
    } catch (const PackageJsonError& error) {
        EXPECT_EQ(error.place(), (Place{2, 15}));
        EXPECT_EQ(error.pointer(), "/names/en");
        EXPECT_EQ(error.reason(), "must be a string, not a number");
    }
}

TEST(PackageFromJson, BombsAreRefusedWithoutMuchStackOrMemory)
{
    std::string nested = "{\"format_version\":1,\"services\":" + std::string(8'000'000, '[');
    EXPECT_THROW(packageFromJson(nested), PackageJsonError);
    EXPECT_THROW(packageFromJson(std::string(std::size_t(64) * 1024 * 1024 + 1, ' ')), PackageJsonError);
    std::string many = R"({"format_version":1,"contents":{"behaviorContent":[{"tags":{")" + std::string(1 << 20, 'k');
    many += "\":[\"\"";
    for (int i = 0; i < 100; ++i)
        many += ",\"\"";
    try {
        packageFromJson(many);
        FAIL() << "was read";
    } catch (const PackageJsonError& error) {
        EXPECT_EQ(error.reason(), "the manifest of the package would be larger than 64 MiB");
    }
}

} // namespace zu
