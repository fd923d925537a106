#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>

using namespace std::string_literals;

namespace zu {

namespace {

/// A package with `text` in every field.
PackageInfo everywhere(const std::string& text)
{
    PackageInfo package;
    package.setUuid(text);
    package.setVersion(text);
    package.setAuthor(text);
    package.setOrganization(text);
    package.setDate(text);
    package.setTypeVersion(text);
    package.setChannel(text);
    package.setName(text, text);
    package.setDescription(text, text);
    package.addSupportedLanguage(text);
    package.addDescriptionLanguage(text);
    BehaviorInfo behavior;
    behavior.setPath(text);
    behavior.setNature(text);
    behavior.setName(text, text);
    behavior.setDescription(text, text);
    behavior.addTag(text, text);
    behavior.addTriggerSentence(text, text);
    behavior.addLoadingResponse(text, text);
    behavior.addCondition(text, text);
    package.addBehavior(behavior);
    DialogInfo dialog;
    dialog.setTopicName(text);
    dialog.setTypeVersion(text);
    dialog.setTopic(text, text);
    package.addDialog(dialog);
    LanguageInfo language;
    language.setPath(text);
    language.setEngineName(text);
    language.setEngineVersion(text);
    language.setLocale(text);
    language.setName(text, text);
    package.addLanguage(language);
    package.addRobotRequirement({text, text, text, text, text});
    package.addMorvoRequirement({text, text});
    package.addService({text, text, true, {{text, text}}});
    package.addExecutableFile(text);
    return package;
}

/// The document as another parser understands it: read by libxml2 and written in canonical form.
std::string throughSecondParser(const std::string& document)
{
    const test::TemporaryFolder folder;
    const test::ProgramResult result = test::runProgram("xmllint", {"--c14n", folder.file("manifest.xml", document)});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    return result.output;
}

} // namespace

TEST(PackageWriterHostile, InjectionInEveryFieldStaysText)
{
    const char* const attempts[] = {
        "</name><evil/>",
        "\"/><evil x=\"",
        "'/><evil x='",
        "]]></condition><evil/><![CDATA[",
        "--><evil/><!--",
        "?><evil/><?",
        "&evil;",
        "&#60;evil/&#62;",
        "<!DOCTYPE evil [<!ENTITY evil 'evil'>]>",
        "a\r\nb\tc",
        "\xf0\x9f\xa4\x96 \xc2\x85 \xe2\x80\xa8",
    };
    for (const char* attempt : attempts) {
        SCOPED_TRACE(attempt);
        PackageInfo package = everywhere(attempt);
        const std::string document = package.saveToManifestContent();
        EXPECT_EQ(test::describe(test::packageFrom(document)), test::describe(package));
    }
}

TEST(PackageWriterHostile, ASecondParserReadsTheSame)
{
    const char* const texts[] = {"<a>&amp;\"'", "]]>]]>", "a\tb\nc", "&#13;", "\xf0\x9f\xa4\x96\xe6\x97\xa5"};
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        PackageInfo package = everywhere(text);
        const PackageInfo read = test::packageFrom(throughSecondParser(package.saveToManifestContent()));
        EXPECT_EQ(test::describe(read), test::describe(package));
    }
}

TEST(PackageWriterHostile, ASecondParserKeepsCarriageReturnsOutsideConditions)
{
    PackageInfo package = everywhere("a\r\nb");
    const PackageInfo read = test::packageFrom(throughSecondParser(package.saveToManifestContent()));
    EXPECT_EQ(read.name("a\r\nb"), "a\r\nb");
    EXPECT_THAT(read.behaviors().front().conditions("a\r\nb"), testing::ElementsAre("a\nb"));
}

TEST(PackageWriterHostile, WhatXmlCannotCarryBecomesTheReplacementCharacter)
{
    const std::string replacement = "\xef\xbf\xbd";
    const std::pair<std::string, std::string> cases[] = {
        {"a\0b"s, "a" + replacement + "b"},
        {"\x01\x08\x0b\x0c\x0e\x1f", replacement + replacement + replacement + replacement + replacement + replacement},
        {"\xef\xbf\xbe\xef\xbf\xbf", replacement + replacement},
        {"a\xff", "a" + replacement},
        {"\x7f\xc2\x80\xef\xbf\xbd", "\x7f\xc2\x80\xef\xbf\xbd"},
    };
    for (const auto& [text, expected] : cases) {
        PackageInfo package = everywhere(text);
        const std::string document = package.saveToManifestContent();
        EXPECT_EQ(test::describe(test::packageFrom(document)), test::describe(everywhere(expected)));
        EXPECT_EQ(test::describe(test::packageFrom(throughSecondParser(document))),
                  test::describe(everywhere(expected)));
    }
}

TEST(PackageWriterHostile, ASecondParserReadsGeneratedPackages)
{
    const test::TemporaryFolder folder;
    std::vector<std::string> arguments = {"--noout"};
    for (int i = 0; i < 200; ++i) {
        const auto seed = static_cast<std::uint64_t>(i);
        PackageInfo package = test::packages(test::texts())(rc::Random(seed), 20).value();
        arguments.push_back(folder.file(std::to_string(i) + ".xml", package.saveToManifestContent()));
        arguments.push_back((folder.path() / (std::to_string(i) + "_file.xml")).string());
        ASSERT_TRUE(package.saveToManifestFile(arguments.back()));
    }
    const test::ProgramResult result = test::runProgram("xmllint", arguments);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
}

} // namespace zu
