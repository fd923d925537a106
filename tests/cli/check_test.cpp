#include "support/files.hpp"
#include "support/json_schema.hpp"
#include "support/program.hpp"
#include "support/texts.hpp"

#include <QtCore/QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace zu {

using test::ProgramResult;
using test::replaced;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string k_good = "<package uuid=\"a\" version=\"1.0\">\n"
                           "  <names><name lang=\"en\">A</name></names>\n"
                           "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
                           "  <contents><webContent path=\"web\"/></contents>\n"
                           "</package>\n";

const std::string k_bad = replaced(k_good, "1.0", "one");      // an error
const std::string k_dubious = replaced(k_good, ">A<", "> A<"); // a warning

ProgramResult check(std::vector<std::string> arguments, const test::ProgramSetting& setting = {})
{
    arguments.insert(arguments.begin(), "check");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
}

class CheckCommand : public testing::Test
{
protected:
    CheckCommand() { folder.file("web", ""); }

    std::string manifest(const std::string& content) const { return folder.file("manifest.xml", content); }
    std::string content() const { return test::readFile(folder.path() / "manifest.xml"); }

    test::TemporaryFolder folder;
};

} // namespace

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
    manifest(k_bad);
    EXPECT_EQ(check({"--fail-on", "never", path}).exitCode, 0);
}

TEST_F(CheckCommand, RunsOverFoldersInSortedOrderPastBadManifests)
{
    for (const char* name : {"b/manifest.xml", "a/deep/manifest.xml", "c/manifest.xml", ".hidden/manifest.xml"}) {
        std::filesystem::create_directories((folder.path() / name).parent_path());
        folder.file(name, "no XML");
    }
    const ProgramResult result = check({"--format", "github", folder.path().string()});
    EXPECT_EQ(result.exitCode, 1);
    const std::size_t a = result.output.find("a/deep/manifest.xml");
    const std::size_t b = result.output.find("b/manifest.xml");
    const std::size_t c = result.output.find("c/manifest.xml");
    EXPECT_LT(a, b);
    EXPECT_LT(b, c);
    EXPECT_NE(c, std::string::npos);
    EXPECT_THAT(result.output, Not(HasSubstr(".hidden")));
}

TEST_F(CheckCommand, AFolderWithoutAnyManifestIsAnError)
{
    const ProgramResult result = check({folder.path().string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, "zupackage: there is no manifest.xml in " + folder.path().string() + "\n");
}

TEST_F(CheckCommand, GoesOnAfterAFileThatCannotBeRead)
{
    const ProgramResult result = check({(folder.path() / "absent.xml").string(), manifest(k_bad)});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.output, HasSubstr("[malformed-version]"));
    EXPECT_THAT(result.errors, HasSubstr("absent.xml: No such file or directory\n"));
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
    const ProgramResult result = check({"--root", "/nowhere", "-"}, {k_good, {}, {}});
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

TEST_F(CheckCommand, SettingsThatCannotBeUnderstoodAreWrongUsage)
{
    const std::string path = manifest(k_good);
    for (const char* setting : {"no-such-rule=off", "malformed-version", "malformed-version=bad"})
        EXPECT_EQ(check({"--rule", setting, path}).exitCode, 2) << setting;
    const std::pair<const char*, const char*> files[] = {
        {"\nmalformed-version = bad # why\n", ":2: \"bad\" is none of error, warning, info, pedantic, or off\n"},
        {"malformed-version = off\n", ":1: a rule that is off needs a reason, as a comment behind it or above\n"},
        {"# one\n\nmalformed-version = off\n", ":3: a rule that is off needs a reason"},
        {"malfromed-version = off # why\n", ":1: there is no rule \"malfromed-version\"; --list-rules shows them\n"}};
    for (const auto& [file, message] : files) {
        folder.file(".zupackage-check", file);
        const ProgramResult result = check({path});
        EXPECT_EQ(result.exitCode, 2) << file;
        EXPECT_THAT(result.errors, HasSubstr(message));
        EXPECT_THAT(result.output, IsEmpty());
    }
}

TEST_F(CheckCommand, FixesWhatIsSafe)
{
    const std::string path = manifest(replaced(k_good, " uuid", " installOnlyAtStartup=\" true \" uiid=\"x\" uuid"));
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    const std::string before = content();
    EXPECT_THAT(check({"--fix-dry-run", path}).output, HasSubstr(": would fix: write \"true\" [invalid-flag]\n"));
    EXPECT_EQ(content(), before);

    const ProgramResult fixed = check({"--fix", path});
    EXPECT_EQ(fixed.exitCode, 1);
    EXPECT_THAT(fixed.output, HasSubstr(": fixed: write \"true\" [invalid-flag]\n"));
    EXPECT_EQ(content(), replaced(before, " true ", "true"));
    EXPECT_EQ(std::filesystem::status(path).permissions(), static_cast<std::filesystem::perms>(0640));

    EXPECT_EQ(check({"--fix-unsafe", path}).exitCode, 0);
    EXPECT_EQ(content(), replaced(k_good, " uuid", " installOnlyAtStartup=\"true\" uuid"));
    EXPECT_THAT(check({"--fix-unsafe", path}).output, IsEmpty());
}

TEST_F(CheckCommand, FixesThatCannotBeWrittenAreAFailureOfOutput)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write anywhere";
    const std::string path = manifest(replaced(k_good, " uuid", " installOnlyAtStartup=\" true \" uuid"));
    ASSERT_EQ(chmod(folder.path().c_str(), 0500), 0);
    EXPECT_EQ(check({"--fix", path}).exitCode, 5);
    ASSERT_EQ(chmod(folder.path().c_str(), 0700), 0);
}

TEST_F(CheckCommand, DoesNotFixStandardInput) { EXPECT_EQ(check({"--fix", "-"}, {k_bad, {}, {}}).exitCode, 2); }

TEST_F(CheckCommand, JsonIsOneDocumentOfItsSchemaWhateverHappens)
{
    folder.file(".zupackage-check", "blank-text = off # none of ours\n");
    const std::string faulty = manifest(replaced(k_bad, ">A<", " lang=\"xq\"> </name><name lang=\"en\">A<"));
    const std::string absent = (folder.path() / "\xFF").string();
    for (const std::vector<std::string>& sources :
         {std::vector<std::string>{faulty}, {absent}, {folder.path().string(), absent}, {"-"}}) {
        std::vector<std::string> arguments = {"--format", "json"};
        arguments.insert(arguments.end(), sources.begin(), sources.end());
        const ProgramResult result = check(arguments, {k_good, {}, {}});
        EXPECT_EQ(test::invalidityOfJson(result.output, "docs/schemas/check-report.schema.json"), "");
        EXPECT_THAT(result.output, HasSubstr("\"format_version\": 1"));
    }
}

TEST_F(CheckCommand, SarifIsOneDocumentOfItsSchemaWhateverHappens)
{
    folder.file(".zupackage-check", "blank-text = off # none of ours\n");
    const std::string faulty = manifest(replaced(k_bad, ">A<", "> </name><name lang=\"en\">A<"));
    const std::string absent = (folder.path() / "\xFF").string();
    for (const std::vector<std::string>& sources : {std::vector<std::string>{faulty}, {absent, faulty}, {"-"}}) {
        std::vector<std::string> arguments = {"--format", "sarif"};
        arguments.insert(arguments.end(), sources.begin(), sources.end());
        const ProgramResult result = check(arguments, {k_good, {}, {}});
        EXPECT_EQ(test::invalidityOfJson(result.output, "tests/schemas/sarif-2.1.0.json"), "");
    }
}

TEST_F(CheckCommand, JunitHasACaseForEachFindingAndOneForNone)
{
    const std::string bad = manifest(k_bad);
    const std::string good = folder.file("good.xml", k_good);
    const std::string absent = (folder.path() / "absent.xml").string();
    QXmlStreamReader reader(QByteArray::fromStdString(check({"--format", "junit", bad, good, absent}).output));
    std::vector<std::string> elements;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            elements.push_back(reader.name().toString().toStdString());
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_THAT(elements, ElementsAre("testsuites", "testsuite", "testcase", "failure", "testsuite", "testcase",
                                      "testsuite", "testcase", "error"));
}

TEST_F(CheckCommand, GithubCommandsEscapeWhatWouldEndThem)
{
    std::filesystem::create_directory(folder.path() / "a,b:c%d");
    folder.file("a,b:c%d/manifest.xml", replaced(k_bad, "\"one\"", "\"100%\""));
    const ProgramResult result = check({"--format", "github", (folder.path() / "a,b:c%d").string()});
    EXPECT_THAT(result.output, HasSubstr("/a%2Cb%3Ac%25d/manifest.xml,line=1,endLine=1,col=28,endColumn=32,"
                                         "title=malformed-version::\"100%25\" is no version"));
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

TEST_F(CheckCommand, ADeviceWithoutAnEndHasOne)
{
    const ProgramResult result = check({"/dev/zero"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("/dev/zero:1:1: error: "));
    EXPECT_THAT(result.output, testing::EndsWith("[not-well-formed]\n"));
}

} // namespace zu
