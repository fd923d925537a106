#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::examplePath;
using test::zupackage;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(Convert, AManifestBecomesJsonAndComesBack)
{
    for (const auto& folder : test::examplePackages()) {
        SCOPED_TRACE(folder);
        const test::ProgramResult json = zupackage({"convert", "--to", "json", folder.string()});
        EXPECT_EQ(json.exitCode, 0);
        EXPECT_THAT(json.output, StartsWith("{\n  \"format_version\": 1,\n  \"uuid\": \""));
        const test::ProgramResult xml = zupackage({"convert", "--to", "xml", "-"}, json.output);
        EXPECT_EQ(xml.exitCode, 0);
        EXPECT_EQ(zupackage({"show", "-"}, xml.output).output, zupackage({"show", folder.string()}).output);
        EXPECT_EQ(zupackage({"convert", "--to", "json", "-"}, xml.output).output, json.output);
        EXPECT_EQ(zupackage({"show", "--format", "json", folder.string()}).output, json.output);
    }
}

TEST(Convert, AFileIsReplacedAndAFolderHasItsManifestInIt)
{
    const test::TemporaryFolder folder;
    const std::string json = folder.file("manifest.json", "old");
    const std::string xml = (folder.path() / "manifest.xml").string();
    EXPECT_EQ(zupackage({"convert", "--to", "json", examplePath("story-teller"), "-o", json}).exitCode, 0);
    EXPECT_EQ(zupackage({"convert", "--to", "xml", folder.path().string(), "-o", xml}).exitCode, 0);
    EXPECT_EQ(zupackage({"show", folder.path().string()}).output,
              zupackage({"show", examplePath("story-teller")}).output);
}

TEST(Convert, ADashIsStandardOutput)
{
    const std::vector<std::string> arguments = {"convert", "--to", "json", examplePath("story-teller")};
    std::vector<std::string> withDash = arguments;
    withDash.insert(withDash.end(), {"-o", "-"});
    EXPECT_EQ(zupackage(withDash).output, zupackage(arguments).output);
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST(Convert, WhatCannotBeReadIsToldAndEndsWithThree)
{
    const test::ProgramResult json =
        zupackage({"convert", "--to", "xml", "-"}, "{\"format_version\": 1,\n\"names\": 1}");
    EXPECT_EQ(json.exitCode, 3);
    EXPECT_THAT(json.output, IsEmpty());
    EXPECT_EQ(json.errors,
              "zupackage: cannot read standard input: line 2, column 10, at \"/names\": must be an object, "
              "not a number\n");
    const test::ProgramResult xml = zupackage({"convert", "--to", "json", "-"}, "<p>");
    EXPECT_EQ(xml.exitCode, 3);
    EXPECT_THAT(xml.errors, HasSubstr("Syntax error in standard input"));
    EXPECT_EQ(zupackage({"convert", "--to", "xml", "/nowhere.json"}).exitCode, 3);
    EXPECT_EQ(zupackage({"show", "--format", "json", "/nowhere.xml"}).exitCode, 3);
}

TEST(Convert, WhatCannotBeWrittenIsToldAndEndsWithFive)
{
    const test::TemporaryFolder folder;
    const test::ProgramResult result =
        zupackage({"convert", "--to", "json", examplePath("story-teller"), "-o", (folder.path() / "no/such").string()});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, StartsWith("zupackage: Could not write "));
}

TEST(Convert, WrongUsageEndsWithTwo)
{
    EXPECT_EQ(zupackage({"convert", examplePath("story-teller")}).exitCode, 2);
    EXPECT_EQ(zupackage({"convert", "--to", "yaml", examplePath("story-teller")}).exitCode, 2);
    const test::ProgramResult several = zupackage({"show", "--format", "json", "-", "-"}, "<p/>");
    EXPECT_EQ(several.exitCode, 2);
    EXPECT_EQ(several.errors, "zupackage: --format json shows one package\n");
}

} // namespace zu
