#include "cli/check_command.hpp"
#include "support/json_schema.hpp"

#include <QtCore/QXmlStreamReader>
#include <gmock/gmock.h>

namespace zu::test {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class CheckReports : public CheckCommand
{
protected:
    /// Manifests that are good, faulty, absent, from standard input, and in a folder whose name is no UTF-8: searched
    /// for, because the arguments of this process are characters.
    std::vector<std::vector<std::string>> variedSources() const
    {
        package("searched/faulty", replaced(k_bad, ">A<", " lang=\"xq\"> </name><name lang=\"en\">A<"));
        folder.file("searched/.zupackage-check", "blank-text = off # none of ours\n");
        package("searched/\xFF", k_bad);
        const std::string searched = (folder.path() / "searched").string();
        const std::string absent = (folder.path() / "absent").string();
        return {{searched}, {absent}, {searched, absent}, {"-"}};
    }

    static ProgramResult report(const std::string& format, std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), {"--format", format});
        return check(arguments, {k_good, {}, {}});
    }
};

} // namespace

TEST_F(CheckReports, JsonIsOneDocumentOfItsSchemaWhateverHappens)
{
    for (const std::vector<std::string>& sources : variedSources()) {
        const std::string output = report("json", sources).output;
        EXPECT_EQ(invalidityOfJson(output, "docs/schemas/check-report.schema.json"), "");
        EXPECT_THAT(output, HasSubstr("\"format_version\": 1"));
    }
}

TEST_F(CheckReports, SarifIsOneDocumentOfItsSchemaWhateverHappens)
{
    for (const std::vector<std::string>& sources : variedSources()) {
        EXPECT_EQ(invalidityOfJson(report("sarif", sources).output, "tests/schemas/sarif-2.1.0.json"), "");
    }
}

TEST_F(CheckReports, JunitIsOneDocumentWhateverHappens)
{
    for (const std::vector<std::string>& sources : variedSources()) {
        QXmlStreamReader reader(QByteArray::fromStdString(report("junit", sources).output));
        while (!reader.atEnd())
            reader.readNext();
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    }
}

TEST_F(CheckReports, JunitHasACaseForEachFindingAndOneForNone)
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

TEST_F(CheckReports, GithubCommandsEscapeWhatWouldEndThem)
{
    std::filesystem::create_directory(folder.path() / "a,b:c%d");
    folder.file("a,b:c%d/manifest.xml", replaced(k_bad, "\"one\"", "\"100%\""));
    const ProgramResult result = check({"--format", "github", (folder.path() / "a,b:c%d").string()});
    EXPECT_THAT(result.output, HasSubstr("/a%2Cb%3Ac%25d/manifest.xml,line=1,endLine=1,col=28,endColumn=32,"
                                         "title=malformed-version::\"100%25\" is no version"));
}

TEST_F(CheckReports, EveryFormatSaysThatFindingsWereLeftOut)
{
    std::string comments;
    for (int i = 0; i < 1'010; ++i)
        comments += "<!-- -->";
    const std::string path = manifest(replaced(k_good, "<names>", "<names>" + comments));
    EXPECT_THAT(check({"--format", "json", path}).output, HasSubstr("\"omitted\": 10\n"));
    for (const std::string format : {"text", "sarif", "junit", "github"}) {
        EXPECT_THAT(check({"--format", format, path}).output,
                    HasSubstr("at least 10 more findings were left out; of each rule the first 1000 are told"))
            << format;
    }
}

TEST_F(CheckReports, EveryFormatShowsWhatIsSuppressed)
{
    folder.file(".zupackage-check", "malformed-version = off # dates\n");
    const std::string path = manifest(k_bad);
    for (const std::string format : k_formats) {
        SCOPED_TRACE(format);
        const ProgramResult result = check({"--show-suppressed", "--format", format, path});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.output, AllOf(HasSubstr("malformed-version"), HasSubstr(".zupackage-check:1: dates")));
    }
    for (const std::string format : {"text", "junit", "github"}) {
        EXPECT_THAT(check({"--format", format, path}).output, Not(HasSubstr("malformed-version"))) << format;
    }
    EXPECT_THAT(check({"--show-suppressed", "--format", "junit", path}).output,
                HasSubstr("<skipped message=\"&quot;one"));
}

TEST_F(CheckReports, NamesOfFilesCannotSteerATerminal)
{
    const std::string bad = package("a\x1B[31m\nb", k_bad);
    const std::string absent = (folder.path() / "\x1B[2J").string();
    for (const std::string format : {"text", "github"}) {
        const ProgramResult result = check({"--format", format, bad, absent});
        EXPECT_THAT(result.output, AllOf(HasSubstr("a\xEF\xBF\xBD[31m"), Not(HasSubstr("\x1B")))) << format;
        EXPECT_THAT(result.errors, AllOf(HasSubstr("\xEF\xBF\xBD[2J"), Not(HasSubstr("\x1B")))) << format;
    }
}

} // namespace zu::test
