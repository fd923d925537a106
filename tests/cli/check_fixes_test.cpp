#include "cli/check_command.hpp"
#include "support/json_schema.hpp"

#include <QtCore/QTextCodec>
#include <gmock/gmock.h>

#include <sys/stat.h>

namespace zu::test {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

TEST_F(CheckCommand, DoesNotFixStandardInput) { EXPECT_EQ(check({"--fix", "-"}, {k_bad, {}, {}}).exitCode, 2); }

TEST_F(CheckCommand, ADryRunReportsTheFileAsItIs)
{
    const std::string path = manifest(k_fixable);
    const ProgramResult result = check({"--fix-dry-run", path});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, AllOf(HasSubstr(path + ":1:32: would fix: write \"true\" [invalid-flag]\n"),
                                     HasSubstr(path + ":1:32: error: ")));
    EXPECT_EQ(result.errors, "1 error in 1 manifest, 1 would be fixed\n");
}

TEST_F(CheckCommand, FixesStandWhereTheFileHadWhatTheyFix)
{
    // The flag comes to light when its attribute has its right name, which is longer.
    const std::string path = manifest(replaced(k_fixable, "Startup", "Startp"));
    for (const char* run : {"--fix-dry-run", "--fix-unsafe"}) {
        EXPECT_THAT(check({"--fix-unsafe", run, path}).output, HasSubstr(path + ":1:31: ")) << run;
    }
    EXPECT_EQ(content(), replaced(k_fixable, " true ", "true"));
}

TEST_F(CheckCommand, FixesStandWhereTheFileHadWhatTheyFixInEveryEncoding)
{
    for (const char* encoding : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE", "ISO-8859-1"}) {
        SCOPED_TRACE(encoding);
        const std::string text = "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>\n" +
                                 replaced(k_fixable, "Startup", "Startp");
        const QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(QString::fromStdString(text));
        const std::string path = manifest(bytes.toStdString());
        EXPECT_THAT(check({"--fix-unsafe", path}).output, HasSubstr(path + ":2:31: fixed: write \"true\""));
    }
}

TEST_F(CheckCommand, FixesAreNamedInEveryFormat)
{
    for (const char* format : k_machineFormats) {
        SCOPED_TRACE(format);
        const std::string path = manifest(k_fixable);
        const ProgramResult planned = check({"--fix-dry-run", "--format", format, path});
        EXPECT_EQ(planned.exitCode, 1);
        EXPECT_THAT(planned.output, HasSubstr("invalid-flag"));
        EXPECT_THAT(planned.output,
                    HasSubstr(std::string(format) == "json" ? "\"would_fix\": [\n" : "would fix: write"));
        EXPECT_EQ(content(), k_fixable);
        const ProgramResult made = check({"--fix", "--format", format, path});
        EXPECT_EQ(made.exitCode, 0);
        EXPECT_THAT(made.output, HasSubstr(std::string(format) == "json" ? "\"fixed\": [\n" : "fixed: write"));
        EXPECT_THAT(made.output, HasSubstr("invalid-flag"));
    }
}

TEST_F(CheckCommand, FixesThatCannotBeWrittenHideNothing)
{
    const std::string a = package("a", k_bad);
    const std::string b = package("b", k_fixable);
    const std::string c = package("c", k_bad);
    ASSERT_EQ(chmod((folder.path() / "b").c_str(), 0500), 0);
    for (const std::string format : k_formats) {
        SCOPED_TRACE(format);
        const ProgramResult result = checkWithoutPrivileges({"--fix", "--format", format, folder.path().string()});
        EXPECT_EQ(result.exitCode, 5);
        EXPECT_THAT(result.errors, HasSubstr("zupackage: Could not write " + b + ": "));
        EXPECT_THAT(result.output, AllOf(HasSubstr("a/manifest.xml"), HasSubstr("invalid-flag"),
                                         HasSubstr("c/manifest.xml"), Not(HasSubstr("fixed:"))));
        if (format == "text") {
            EXPECT_THAT(result.errors, HasSubstr("3 errors in 3 manifests, 1 could not be written\n"));
        } else {
            EXPECT_THAT(result.output, HasSubstr("Could not write " + b + ": "));
        }
        if (format == "json") {
            EXPECT_EQ(invalidityOfJson(result.output, "docs/schemas/check-report.schema.json"), "");
        }
        if (format == "sarif") {
            EXPECT_THAT(result.output, HasSubstr("\"executionSuccessful\": false"));
        }
    }
    ASSERT_EQ(chmod((folder.path() / "b").c_str(), 0700), 0);
    EXPECT_EQ(readFile(b), k_fixable);
}

} // namespace zu::test
