#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::IsEmpty;
using testing::StartsWith;

namespace {

const std::string k_twoNames = "<p version='1.0'><names><name lang='en'>A &amp; B</name>"
                               "<name lang='fr'>two\nlines</name></names></p>";

test::ProgramResult get(std::vector<std::string> arguments, const std::string& input = k_twoNames)
{
    arguments.insert(arguments.begin(), "get");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, {input, {}, {}});
}

} // namespace

TEST(Get, PrintsTheTextsOfAllPathsOneALine)
{
    const test::ProgramResult result = get({"-", "@version", "names/name", "names/name[@lang='en']/@lang"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "1.0\nA & B\ntwo\nlines\nen\n");
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST(Get, TakesAFolderForItsManifest)
{
    const std::string folder = test::examplePath("story-teller");
    for (const std::string& source : {folder, folder + "/manifest.xml"})
        EXPECT_EQ(get({source, "@uuid"}).output, "org.example.storyteller\n");
}

TEST(Get, PrintsTextsForPrograms)
{
    EXPECT_EQ(get({"--json", "-", "names/name"}).output, "[\n  \"A & B\",\n  \"two\\nlines\"\n]\n");
    EXPECT_EQ(get({"-0", "-", "names/name"}).output, std::string("A & B\0two\nlines\0", 16));
}

TEST(Get, WhatIsNotThereIsReportedWithTheNearestPathAndTheOthersArePrinted)
{
    const test::ProgramResult result = get({"-", "names/name[@lang='fx']", "@version"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, "1.0\n");
    EXPECT_EQ(result.errors, "zupackage: standard input: there is no names/name[@lang='fx']; the nearest is "
                             "names/name[@lang='fr']\n");
    EXPECT_EQ(get({"--json", "-", "@x"}).output, "[]\n");
}

TEST(Get, WhatIsNoPathIsWrongUsage)
{
    const test::ProgramResult result = get({"-", "names/name[lang=fr]"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "zupackage: \"names/name[lang=fr]\" is no path: column 17: expected a text in quotes\n");
    EXPECT_EQ(get({"-"}).exitCode, 2);
}

TEST(Get, WhatCannotBeReadIsReportedWithItsPlace)
{
    const test::ProgramResult malformed = get({"-", "@version"}, "<p>\n</q>");
    EXPECT_EQ(malformed.exitCode, 3);
    EXPECT_THAT(malformed.errors, StartsWith("zupackage: standard input:2:1: "));
    EXPECT_EQ(get({"--json", "/no/such/file", "@version"}).output, "[]\n");
    EXPECT_EQ(get({"/no/such/file", "@version"}).exitCode, 3);
}

TEST(Get, OutputThatCannotBeWrittenIsReported)
{
    EXPECT_EQ(test::runProgram(ZUPACKAGE_PROGRAM, {"get", "-", "@version"}, {k_twoNames, "/dev/full", {}}).exitCode, 5);
}

} // namespace zu
