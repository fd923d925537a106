#include "cli/check_command.hpp"
#include "support/terminal.hpp"

#include <gmock/gmock.h>

namespace zu::test {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char k_excerpt[] = "\n  <package uuid=\"a\" version=\"one\">\n"
                             "                             ^~~\n";

} // namespace

TEST_F(CheckCommand, ATerminalGetsColoursAndTheSource)
{
    const ProgramResult result = runOnTerminal(ZUPACKAGE_PROGRAM, {"check", manifest(k_bad)});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, AllOf(HasSubstr("\x1B[1;31merror\x1B[0m: "), HasSubstr(k_excerpt),
                                     EndsWith("1 error in 1 manifest\n")));
}

TEST_F(CheckCommand, ATerminalGetsNoColoursWhereTheyAreNotWanted)
{
    const std::string path = manifest(k_bad);
    const ProgramResult results[] = {runOnTerminal(ZUPACKAGE_PROGRAM, {"check", path}, {{"NO_COLOR", "1"}}),
                                     runOnTerminal(ZUPACKAGE_PROGRAM, {"check", "--color=never", path})};
    for (const ProgramResult& result : results) {
        EXPECT_THAT(result.output, AllOf(HasSubstr(k_excerpt), Not(HasSubstr("\x1B"))));
    }
    EXPECT_THAT(runOnTerminal(ZUPACKAGE_PROGRAM, {"check", path}, {{"NO_COLOR", ""}}).output, HasSubstr("\x1B[1;31m"));
}

TEST_F(CheckCommand, ATerminalShowsTheProgressOfMoreThanFiftyManifests)
{
    for (int i = 0; i < 50; ++i)
        package(std::to_string(i), k_good);
    const std::string root = folder.path().string();
    EXPECT_EQ(runOnTerminal(ZUPACKAGE_PROGRAM, {"check", root}).output, "no findings in 50 manifests\n");
    package("50", k_good);
    EXPECT_THAT(runOnTerminal(ZUPACKAGE_PROGRAM, {"check", root}).output,
                AllOf(HasSubstr("\rchecked 1 of 51\r\x1B[K"),
                      EndsWith("\rchecked 51 of 51\r\x1B[Kno findings in 51 manifests\n")));
}

} // namespace zu::test
