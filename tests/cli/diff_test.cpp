#include "support/files.hpp"
#include "support/json_schema.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string k_before = "<package uuid=\"u\" version=\"1.0\">\n"
                             "  <names><name lang=\"en\">A</name></names>\n"
                             "  <contents><dialogContent topicName=\"t\" typeVersion=\"1\"/></contents>\n"
                             "</package>\n";
const std::string k_after = "<package uuid=\"u\" version=\"1.1\">\n"
                            "  <names><name lang=\"en\">A</name><name lang=\"fr\">\xC3\xA0 \"B\"</name></names>\n"
                            "</package>\n";

ProgramResult diff(std::vector<std::string> arguments, const test::ProgramSetting& setting = {})
{
    arguments.insert(arguments.begin(), "diff");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
}

class DiffCommand : public testing::Test
{
protected:
    std::string before(const std::string& content) const { return folder.file("before.xml", content); }
    std::string after(const std::string& content) const { return folder.file("after.xml", content); }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(DiffCommand, TellsEachChangeInALineOfItsOwn)
{
    const ProgramResult result = diff({before(k_before), after(k_after)});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "changed  @version: \"1.0\" -> \"1.1\"\n"
                             "added    names/name[@lang='fr']: \"\xC3\xA0 \\\"B\\\"\"\n"
                             "removed  contents/dialogContent[@topicName='t']\n"
                             "         - <dialogContent topicName=\"t\" typeVersion=\"1\"/>\n");
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(DiffCommand, LongTextsStandBelowEachOther)
{
    const std::string text(60, 'x');
    EXPECT_EQ(diff({before("<p author='" + text + "'/>"), after("<p author='" + text + "y'/>")}).output,
              "changed  @author\n         - \"" + text + "\"\n         + \"" + text + "y\"\n");
}

TEST_F(DiffCommand, MovedEntriesAreNamedAlone)
{
    const std::string a = "<behaviorContent path='a'><nature>n</nature></behaviorContent>";
    const std::string b = "<behaviorContent path='b'/>";
    EXPECT_EQ(
        diff({before("<p><contents>" + b + a + "</contents></p>"), after("<p><contents>" + a + b + "</contents></p>")})
            .output,
        "moved    contents/behaviorContent[@path='a']\n");
}

TEST_F(DiffCommand, UsesColoursWhereTheyAreWanted)
{
    const std::vector<std::string> files = {before(k_before), after(k_after)};
    const std::string coloured = diff({"--color=always", files[0], files[1]}).output;
    EXPECT_THAT(coloured, HasSubstr("\x1B[32madded   \x1B[0m names"));
    EXPECT_THAT(coloured, HasSubstr("\n         \x1B[31m- <dialogContent"));
    EXPECT_THAT(diff(files).output, Not(HasSubstr("\x1B")));
}

TEST_F(DiffCommand, UsesColoursInThePagerOfGit)
{
    const std::vector<std::string> words = {"--git",        "m.xml", before(k_before), "0", "100644",
                                            after(k_after), "0",     "100644"};
    EXPECT_THAT(diff(words, {{}, {}, {{"GIT_PAGER_IN_USE", "true"}}}).output,
                StartsWith("\x1B[1mmanifest m.xml\x1B[0m\n\x1B[33mchanged "));
    EXPECT_THAT(diff(words, {{}, {}, {{"GIT_PAGER_IN_USE", "true"}, {"NO_COLOR", "1"}}}).output,
                StartsWith("manifest m.xml\nchanged "));
}

TEST_F(DiffCommand, GitGivesThePathAloneOfWhatIsNotMerged)
{
    const ProgramResult result = diff({"--git", "m.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "manifest m.xml is not merged\n");
}

TEST_F(DiffCommand, NoTextSteersTheTerminal)
{
    const std::string text = "\xC2\x9B"
                             "2J\xE2\x80\xAE\n";
    const ProgramResult result = diff({before("<p/>"), after("<p><names><n lang='\xC2\x9B'>" + text +
                                                             "</n></names>"
                                                             "<services><service name='s' execStart='\xE2\x80\xAE'/>"
                                                             "</services></p>")});
    EXPECT_EQ(result.output, "added    names/name[@lang='\xEF\xBF\xBD']: \"\xEF\xBF\xBD"
                             "2J\xEF\xBF\xBD\\n\"\n"
                             "added    services/service[@name='s']\n"
                             "         + <service autorun=\"false\" name=\"s\" execStart=\"\xEF\xBF\xBD\"/>\n");
}

TEST_F(DiffCommand, SaysWhenTheFormattingAloneDiffers)
{
    const ProgramResult result = diff({before(k_before), after("<!-- new -->\n" + k_before)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "nothing of the package differs, only the text of the manifest\n");
}

TEST_F(DiffCommand, SaysNothingOfIdenticalManifests)
{
    const ProgramResult result = diff({before(k_before), after(k_before)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, IsEmpty());
}

TEST_F(DiffCommand, TakesFoldersAndStandardInput)
{
    folder.file("manifest.xml", k_before);
    const ProgramResult result = diff({folder.path().string(), "-"}, {k_after, {}, {}});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("changed  @version"));
}

TEST_F(DiffCommand, WhatCannotBeReadIsNamedWithItsReason)
{
    const std::string malformed = before("<p>");
    const std::string absent = (folder.path() / "absent.xml").string();
    const ProgramResult result = diff({malformed, absent});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.errors, "zupackage: cannot read " + malformed + ": line 1, column 4: unexpected end of file\n" +
                                 "zupackage: cannot read " + absent + ": No such file or directory\n");
}

TEST_F(DiffCommand, ComparesTwoManifests)
{
    const std::string path = before(k_before);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{path}, {path, path, path}, {"-", "-"}, {"--git", path, path}})
        EXPECT_EQ(diff(arguments).exitCode, 2) << arguments.size();
}

TEST_F(DiffCommand, OutputThatCannotBeWrittenIsWorseThanDifferences)
{
    EXPECT_EQ(diff({before(k_before), after(k_after)}, {{}, "/dev/full", {}}).exitCode, 5);
}

TEST_F(DiffCommand, JsonIsOneDocumentOfItsSchemaWhateverHappens)
{
    const std::string old = before(k_before);
    const std::pair<std::string, std::string> outcomes[] = {{after(k_after), "different"},
                                                            {folder.file("same.xml", k_before + "\n"), "same_package"},
                                                            {old, "identical"},
                                                            {folder.file("bad.xml", "<"), "unreadable"},
                                                            {(folder.path() / "\xFF").string(), "unreadable"}};
    for (const auto& [path, outcome] : outcomes) {
        const ProgramResult result = diff({"--format", "json", old, path});
        EXPECT_EQ(test::invalidityOfJson(result.output, "docs/schemas/difference-report.schema.json"), "");
        EXPECT_THAT(result.output, HasSubstr("\"outcome\": \"" + outcome + "\""));
    }
}

} // namespace zu
