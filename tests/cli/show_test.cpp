#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::examplePath;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

test::ProgramResult show(std::vector<std::string> arguments, const test::ProgramSetting& setting = {})
{
    arguments.insert(arguments.begin(), "show");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
}

std::string goldenDump(const std::string& name)
{
    return test::readFile(test::sourcePath("tests/golden/" + name + ".txt"));
}

} // namespace

TEST(Show, PrintsTheDumpOfAFileAndOfAFolder)
{
    for (const std::string& source : {examplePath("story-teller"), examplePath("story-teller/manifest.xml")}) {
        const test::ProgramResult result = show({source});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, goldenDump("story-teller"));
        EXPECT_THAT(result.errors, IsEmpty());
    }
}

TEST(Show, PrintsSeveralOneAfterTheOther)
{
    const test::ProgramResult result = show({examplePath("fleet-monitor"), examplePath("speech-language-de")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, goldenDump("fleet-monitor") + goldenDump("speech-language-de"));
}

TEST(Show, ReadsStandardInputWhateverItsEncoding)
{
    const test::ProgramResult result =
        show({"-"}, {"<?xml version='1.0' encoding='ISO-8859-1'?><p author='\xe9'/>", {}, {}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Author: \xc3\xa9\n"));
}

TEST(Show, AMalformedStandardInputIsReportedByName)
{
    const test::ProgramResult result = show({"-"}, {"<p>", {}, {}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.errors,
              "[error] zupackage: Syntax error in standard input at line 1, column 4: unexpected end of file\n");
}

TEST(Show, WhatCannotBeReadIsReportedAndTheOthersAreShown)
{
    const test::TemporaryFolder folder;
    const std::string malformed = folder.file("bad.xml", "<p></q>");
    const std::string absent = (folder.path() / "absent.xml").string();
    const test::ProgramResult result =
        show({malformed, examplePath("fleet-monitor"), absent, folder.path().string(), examplePath("story-teller")});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, goldenDump("fleet-monitor") + goldenDump("story-teller"));
    EXPECT_EQ(result.errors, "[error] zupackage: Syntax error in " + malformed +
                                 " at line 1, column 7: tag mismatch\n"
                                 "[error] zupackage: Could not open " +
                                 absent +
                                 " for reading\n"
                                 "[error] zupackage: Could not open " +
                                 folder.path().string() + "/manifest.xml for reading\n");
}

TEST(Show, AnEmptyNameIsAFileThatCannotBeOpened)
{
    const test::ProgramResult result = show({""});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, "[error] zupackage: Could not open  for reading\n");
}

TEST(Show, FileNamesAreUtf8WhateverTheLocale)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("märchen.xml", "<p uuid='u'/>");
    const test::ProgramResult result = show({path}, {{}, {}, {{"LC_ALL", "C"}}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("UUID: u\n"));
}

TEST(Show, AFullOutputIsAnErrorOfItsOwn)
{
    const test::ProgramResult result = show({examplePath("story-teller")}, {{}, "/dev/full", {}});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.errors, "zupackage: cannot write to standard output: No space left on device\n");
}

} // namespace zu
