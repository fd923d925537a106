#include "support/files.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

test::ProgramResult run(const std::vector<std::string>& arguments, const std::string& input = {})
{
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, {input, {}, {}});
}

std::string examplePath(const std::string& name) { return test::sourcePath("examples/packages/" + name).string(); }

} // namespace

TEST(Convert, AManifestBecomesJsonAndComesBack)
{
    for (const auto& folder : test::examplePackages()) {
        SCOPED_TRACE(folder);
        const test::ProgramResult json = run({"convert", "--to", "json", folder.string()});
        EXPECT_EQ(json.exitCode, 0);
        EXPECT_THAT(json.output, StartsWith("{\n  \"format_version\": 1,\n  \"uuid\": \""));
        const test::ProgramResult xml = run({"convert", "--to", "xml", "-"}, json.output);
        EXPECT_EQ(xml.exitCode, 0);
        EXPECT_EQ(run({"show", "-"}, xml.output).output, run({"show", folder.string()}).output);
        EXPECT_EQ(run({"convert", "--to", "json", "-"}, xml.output).output, json.output);
        EXPECT_EQ(run({"show", "--format", "json", folder.string()}).output, json.output);
    }
}

TEST(Convert, AFileIsReplacedAndAFolderHasItsManifestInIt)
{
    const test::TemporaryFolder folder;
    const std::string json = folder.file("manifest.json", "old");
    const std::string xml = (folder.path() / "manifest.xml").string();
    EXPECT_EQ(run({"convert", "--to", "json", examplePath("story-teller"), "-o", json}).exitCode, 0);
    EXPECT_EQ(run({"convert", "--to", "xml", folder.path().string(), "-o", xml}).exitCode, 0);
    EXPECT_EQ(run({"show", folder.path().string()}).output, run({"show", examplePath("story-teller")}).output);
}

TEST(Convert, ADashIsStandardOutput)
{
    const std::vector<std::string> arguments = {"convert", "--to", "json", examplePath("story-teller")};
    std::vector<std::string> withDash = arguments;
    withDash.insert(withDash.end(), {"-o", "-"});
    EXPECT_EQ(run(withDash).output, run(arguments).output);
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST(Convert, WhatCannotBeReadIsToldAndEndsWithThree)
{
    const test::ProgramResult json = run({"convert", "--to", "xml", "-"}, "{\"format_version\": 1,\n\"names\": 1}");
    EXPECT_EQ(json.exitCode, 3);
    EXPECT_THAT(json.output, IsEmpty());
    EXPECT_EQ(json.errors,
              "zupackage: cannot read standard input: line 2, column 10, at \"/names\": must be an object, "
              "not a number\n");
    const test::ProgramResult xml = run({"convert", "--to", "json", "-"}, "<p>");
    EXPECT_EQ(xml.exitCode, 3);
    EXPECT_THAT(xml.errors, HasSubstr("Syntax error in standard input"));
    EXPECT_EQ(run({"convert", "--to", "xml", "/nowhere.json"}).exitCode, 3);
    EXPECT_EQ(run({"show", "--format", "json", "/nowhere.xml"}).exitCode, 3);
}

TEST(Convert, WhatCannotBeWrittenIsToldAndEndsWithFive)
{
    const test::TemporaryFolder folder;
    const test::ProgramResult result =
        run({"convert", "--to", "json", examplePath("story-teller"), "-o", (folder.path() / "no/such").string()});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, StartsWith("zupackage: Could not write "));
}

TEST(Convert, WrongUsageEndsWithTwo)
{
    EXPECT_EQ(run({"convert", examplePath("story-teller")}).exitCode, 2);
    EXPECT_EQ(run({"convert", "--to", "yaml", examplePath("story-teller")}).exitCode, 2);
    const test::ProgramResult several = run({"show", "--format", "json", "-", "-"}, "<p/>");
    EXPECT_EQ(several.exitCode, 2);
    EXPECT_EQ(several.errors, "zupackage: --format json shows one package\n");
}

} // namespace zu
