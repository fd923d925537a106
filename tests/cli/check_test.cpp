#include "cli/check_command.hpp"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

namespace zu::test {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

TEST_F(CheckCommand, SaysNothingOfAGoodManifest)
{
    const ProgramResult result = check({manifest(k_good)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.errors, "no findings in 1 manifest\n");
}

TEST_F(CheckCommand, NamesPlaceSeverityAndRule)
{
    const std::string path = manifest(k_bad);
    const ProgramResult result = check({path});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, path + ":1:28: error: \"one\" is no version of the form \"1.2\" or \"1.2.0-beta\" "
                                    "[malformed-version]\n");
    EXPECT_EQ(result.errors, "1 error in 1 manifest\n");
}

TEST_F(CheckCommand, TellsOfAPackageWithoutADescriptionWhereItDeclaresLanguages)
{
    const std::string path = manifest(k_undescribed);
    const ProgramResult result = check({"--fix-unsafe", "--root", folder.path().string(), path});
    EXPECT_EQ(result.output,
              path + ":4:3: info: the package has no description in any language [missing-descriptions]\n");
    EXPECT_EQ(content(), k_undescribed);
}

TEST_F(CheckCommand, ShowsTheSourceInColours)
{
    const ProgramResult result = check({"--color=always", manifest(k_bad)});
    EXPECT_THAT(result.output, HasSubstr("\x1B[1;31merror\x1B[0m: "));
    EXPECT_THAT(result.output,
                HasSubstr("\n  <package uuid=\"a\" version=\"one\">\n                             ^~~\n"));
}

TEST_F(CheckCommand, HasNoColoursWhereNobodyWatches)
{
    EXPECT_THAT(check({manifest(k_bad)}).output, Not(HasSubstr("\x1B")));
    EXPECT_THAT(check({"--color=never", manifest(k_bad)}).output, Not(HasSubstr("\x1B")));
}

TEST_F(CheckCommand, FailsFromTheSeverityOnThatIsAskedFor)
{
    const std::string path = manifest(k_dubious);
    EXPECT_EQ(check({path}).exitCode, 0);
    EXPECT_EQ(check({"--fail-on", "warning", path}).exitCode, 1);
    EXPECT_EQ(check({"--fail-on", "info", path}).exitCode, 1);
    manifest(k_undescribed);
    EXPECT_EQ(check({path}).exitCode, 0);
    EXPECT_EQ(check({"--fail-on", "warning", path}).exitCode, 0);
    EXPECT_EQ(check({"--fail-on", "info", path}).exitCode, 1);
    manifest(k_bad);
    EXPECT_EQ(check({"--fail-on", "never", path}).exitCode, 0);
}

TEST_F(CheckCommand, ReadsStandardInput)
{
    const ProgramResult result = check({"-"}, {k_bad, {}, {}});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("standard input:1:28: error: "));
}

TEST_F(CheckCommand, LooksForFilesInTheRoot)
{
    EXPECT_EQ(check({"--root", folder.path().string(), "-"}, {k_good, {}, {}}).exitCode, 0);
    const TemporaryFolder empty;
    const ProgramResult result = check({"--root", empty.path().string(), "-"}, {k_good, {}, {}});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("[missing-file]"));
}

TEST_F(CheckCommand, OutputThatCannotBeWrittenIsWorseThanFindings)
{
    const ProgramResult result = check({manifest(k_bad)}, {{}, "/dev/full", {}});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, StartsWith("zupackage: cannot write to standard output: No space left on device\n"));
}

TEST_F(CheckCommand, RulesFollowTheCommandLineThenTheNearestFile)
{
    std::filesystem::create_directory(folder.path() / "inner");
    const std::string path = folder.file("inner/manifest.xml", replaced(k_bad, "\"web\"", "\"../web\""));
    folder.file(".zupackage-check", "# versions are dates here\n"
                                    "malformed-version = off\n"
                                    "file-outside-package = warning\n");
    EXPECT_EQ(check({path}).exitCode, 0);
    EXPECT_EQ(check({"--rule", "file-outside-package=error", path}).exitCode, 1);

    const ProgramResult shown = check({"--show-suppressed", path});
    EXPECT_THAT(shown.output, HasSubstr(": suppressed: \"one\" is no version"));
    EXPECT_THAT(shown.output, HasSubstr(".zupackage-check:2: versions are dates here\n"));
    EXPECT_THAT(shown.errors, HasSubstr("1 suppressed\n"));

    folder.file("inner/.zupackage-check", "");
    EXPECT_EQ(check({path}).exitCode, 1);
}

TEST_F(CheckCommand, ExplainsEachRuleThatItLists)
{
    const ProgramResult list = check({"--list-rules"});
    EXPECT_EQ(list.exitCode, 0);
    std::istringstream lines(list.output);
    int rules = 0;
    for (std::string id, rest; lines >> id && std::getline(lines, rest); ++rules)
        EXPECT_THAT(check({"--explain", id}).output, StartsWith(id + " (")) << id;
    EXPECT_GT(rules, 50);
}

TEST_F(CheckCommand, ARuleThatThereIsNotIsAbsent)
{
    const ProgramResult result = check({"--explain", "no-such-rule"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors, "zupackage: there is no rule \"no-such-rule\"; --list-rules shows them\n");
}

} // namespace zu::test
