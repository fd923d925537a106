#include "support/files.hpp"
#include "support/json_schema.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace zu {

using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr char k_greeter[] = "<package uuid=\"greeter\" version=\"1.0\">\n"
                             "  <names><name lang=\"en\">Greeter</name><name lang=\"fr\">Salut</name></names>\n"
                             "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
                             "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
                             "  <supportedLanguages><language>en</language><language>ja</language>"
                             "</supportedLanguages>\n"
                             "  <contents><dialogContent topicName=\"hello\">\n"
                             "    <topic language=\"en\" path=\"en.talk\"/>\n"
                             "  </dialogContent></contents>\n"
                             "</package>\n";

ProgramResult languages(std::vector<std::string> arguments, const test::ProgramSetting& setting = {})
{
    arguments.insert(arguments.begin(), "languages");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
}

class LanguagesCommand : public testing::Test
{
protected:
    std::string manifest(const std::string& content) const { return folder.file("manifest.xml", content); }

    test::TemporaryFolder folder;
};

/// Columns of a text of characters that take one each.
std::size_t columns(const std::string& line)
{
    return static_cast<std::size_t>(std::count_if(
        line.begin(), line.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

TEST_F(LanguagesCommand, ShowsATableOfLanguagesAgainstTexts)
{
    const ProgramResult result = languages({"-"}, {k_greeter, {}, {}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "standard input\n"
                             "\n"
                             "                        en    fr    ja\n"
                             "declared                ds    no     s\n"
                             "package\n"
                             "  names                  1     1\n"
                             "  descriptions           1\n"
                             "dialog hello\n"
                             "  topics                 1           -\n"
                             "covered               100%          0%\n"
                             "\n"
                             "declared: d for names and descriptions, s for the rest, r required; - is missing\n");
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(LanguagesCommand, ManyLanguagesAndLongNamesFitEightyColumns)
{
    std::string names;
    for (int i = 10; i < 40; ++i)
        names += "<name lang=\"x-language-" + std::to_string(i) + "\">A</name>";
    const std::string path(200, 'p');
    const ProgramResult result =
        languages({manifest("<package uuid=\"a\"><names>" + names + "</names><contents><behaviorContent path=\"" +
                            path + "\"><names>" + names + "</names></behaviorContent></contents></package>")});
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(columns(line), 80U) << line;
    for (int i = 10; i < 40; ++i)
        EXPECT_THAT(result.output, HasSubstr("uage-" + std::to_string(i)));
    EXPECT_THAT(result.output, HasSubstr("behavior pppp"));
}

TEST_F(LanguagesCommand, WideCharactersTakeTwoColumns)
{
    const ProgramResult result =
        languages({manifest("<package uuid=\"a\"><names><name lang=\"日本\">A</name><name lang=\"日\">B</name></names>"
                            "</package>")});
    EXPECT_THAT(result.output, HasSubstr("\n                        日  日本\n"
                                         "declared                no    no\n"));
}

TEST_F(LanguagesCommand, NothingInAManifestSteersTheTerminal)
{
    const ProgramResult result = languages(
        {manifest("<package uuid=\"a\"><names><name lang=\"&#x9b;2J\">A</name></names><contents><behaviorContent "
                  "path=\"a&#10;&#x202e;b\"><names><name lang=\"en\">A</name></names></behaviorContent></contents>"
                  "</package>")});
    EXPECT_THAT(result.output, HasSubstr("\xEF\xBF\xBD"
                                         "2J"));
    EXPECT_THAT(result.output, HasSubstr("behavior a\xEF\xBF\xBD\xEF\xBF\xBD"
                                         "b\n"));
}

TEST_F(LanguagesCommand, FailsWhereARequiredLanguageIsUnderTheLimit)
{
    const std::string path = manifest(k_greeter);
    EXPECT_EQ(languages({path, "--require", "en"}).exitCode, 0);
    const ProgramResult result = languages({path, "--require", "en,fr", "--fail-under", "34"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "zupackage: " + path + ": \"fr\" has 1 of 3, 33 %, less than 34 %\n");
    EXPECT_EQ(languages({path, "--require", "en,fr", "--fail-under", "33"}).exitCode, 0);
    EXPECT_EQ(languages({path, "--require", "it"}).exitCode, 1);
}

TEST_F(LanguagesCommand, WithoutRequiredLanguagesTheDeclaredOnesCount)
{
    const ProgramResult result = languages({manifest(k_greeter), "--fail-under", "1"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("\"ja\" has 0 of 1, 0 %, less than 1 %"));
    EXPECT_THAT(result.errors, Not(HasSubstr("\"fr\"")));
}

TEST_F(LanguagesCommand, ALimitThatIsNoPercentageIsWrongUsage)
{
    const std::string path = manifest(k_greeter);
    for (const char* limit : {"101", "-1", "9x", "half"})
        EXPECT_EQ(languages({path, std::string("--fail-under=") + limit}).exitCode, 2) << limit;
}

TEST_F(LanguagesCommand, JsonIsOneDocumentOfItsSchemaWhateverHappens)
{
    const std::string path = manifest(k_greeter);
    const std::string absent = (folder.path() / "\xFF").string();
    for (const std::vector<std::string>& sources :
         {std::vector<std::string>{path}, {absent}, {path, absent, "-"}, {(folder.path() / "none").string()}}) {
        std::vector<std::string> arguments = {"--format", "json", "--require", "fr"};
        arguments.insert(arguments.end(), sources.begin(), sources.end());
        const ProgramResult result = languages(arguments, {"no XML", {}, {}});
        EXPECT_EQ(test::invalidityOfJson(result.output, "docs/schemas/languages-report.schema.json"), "");
    }
}

TEST_F(LanguagesCommand, CsvHasARecordForEachTextThatIsThereOrMissing)
{
    const ProgramResult result = languages({"--format", "csv", "-"}, {k_greeter, {}, {}});
    EXPECT_THAT(result.output,
                StartsWith("path,uuid,kind,name,texts,language,supported,description,required,count,missing\r\n"
                           "standard input,greeter,package,,names,en,true,true,false,1,false\r\n"
                           "standard input,greeter,package,,names,fr,false,false,false,1,false\r\n"));
    EXPECT_THAT(result.output, HasSubstr("standard input,greeter,dialog,hello,topics,ja,true,false,false,0,true\r\n"));
}

TEST_F(LanguagesCommand, CsvQuotesWhatNeedsItAndRunsNothing)
{
    const ProgramResult result = languages(
        {"--format", "csv", "-"},
        {"<package uuid=\"=1+1\"><names><name lang=\"a,&quot;b\">A</name><name lang=\"@c\">B</name></names></package>",
         {},
         {}});
    EXPECT_THAT(result.output, HasSubstr("standard input,'=1+1,package,,names,\"a,\"\"b\",false"));
    EXPECT_THAT(result.output, HasSubstr(",names,'@c,false"));
}

TEST_F(LanguagesCommand, GoesOnAfterAManifestThatCannotBeRead)
{
    const std::string bad = folder.file("bad.xml", "<package>");
    const ProgramResult result = languages({bad, "--require", "it", manifest(k_greeter)});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read " + bad + ": line 1, column "));
    EXPECT_THAT(result.output, HasSubstr("dialog hello\n"));
}

TEST_F(LanguagesCommand, AGateWithoutAValueIsWrongUsage)
{
    const std::string path = manifest(k_greeter);
    for (const char* codes : {"", ",", "en,,fr", "en,"}) {
        const ProgramResult result = languages({"--require", codes, path});
        EXPECT_EQ(result.exitCode, 2) << codes;
        EXPECT_EQ(result.errors, "zupackage: --require: there is an empty code in \"" + std::string(codes) + "\"\n");
    }
    EXPECT_EQ(languages({"--fail-under", "", path}).exitCode, 2);
}

TEST_F(LanguagesCommand, SaysWhenThereIsNoLanguageToJudge)
{
    const std::string path = manifest("<package><names><name lang=\"en\">N</name></names></package>");
    const ProgramResult result = languages({"--fail-under", "95", path});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors,
              "zupackage: warning: " + path + " declares no language, so that --fail-under has nothing to judge\n");
    EXPECT_EQ(languages({"--fail-under", "95", "--require", "en", path}).errors, "");
    EXPECT_EQ(languages({path}).errors, "");
}

TEST_F(LanguagesCommand, AFolderWithoutAnyManifestIsAnError)
{
    EXPECT_EQ(languages({folder.path().string()}).exitCode, 3);
}

TEST_F(LanguagesCommand, ColoursWhatIsMissingWhenAsked)
{
    const std::string path = manifest(k_greeter);
    EXPECT_THAT(languages({"--color=always", path}).output, HasSubstr("\x1B[1;31m-\x1B[0m"));
    EXPECT_THAT(languages({path}).output, Not(HasSubstr("\x1B")));
}

TEST_F(LanguagesCommand, OutputThatCannotBeWrittenIsWorseThanMissingTexts)
{
    EXPECT_EQ(languages({"--require", "it", manifest(k_greeter)}, {{}, "/dev/full", {}}).exitCode, 5);
}

} // namespace zu
