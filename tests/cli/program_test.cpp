#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::zupackage;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(Program, HelpGoesToStandardOutput)
{
    const test::ProgramResult result = zupackage({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("show"));
    EXPECT_THAT(result.output, HasSubstr("Exit codes: 0 "));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST(Program, HelpThatCannotBeWrittenIsAnError)
{
    const test::ProgramResult result = test::runProgram(ZUPACKAGE_PROGRAM, {"--help"}, {{}, "/dev/full", {}});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.errors, "zupackage: cannot write to standard output: No space left on device\n");
}

TEST(Program, EveryCommandHasHelp)
{
    const test::ProgramResult result = zupackage({"show", "--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("FILE|FOLDER|-"));
}

TEST(Program, VersionIsThatOfTheProject)
{
    const test::ProgramResult result = zupackage({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "zupackage " ZUPACKAGE_VERSION "\n");
}

TEST(Program, WrongUsageIsExplainedOnStandardError)
{
    const std::vector<std::vector<std::string>> wrong = {
        {}, {"show"}, {"unknown"}, {"--unknown"}, {"show", "--unknown", "x"}};
    for (const std::vector<std::string>& arguments : wrong) {
        const test::ProgramResult result = zupackage(arguments);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.errors, HasSubstr("--help"));
    }
}

TEST(Program, ArgumentsThatAreNotExpectedSteerNoTerminal)
{
    const test::ProgramResult result = zupackage({"convert", "--to", "json", "x", "\x1B[2J\ny"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "The following argument was not expected: \xEF\xBF\xBD[2J\xEF\xBF\xBDy\n"
                             "Run with --help for more information.\n");
}

} // namespace zu
