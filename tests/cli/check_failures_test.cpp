#include "cli/check_command.hpp"
#include "support/json_schema.hpp"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace zu::test {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(CheckCommand, SettingsThatCannotBeUnderstoodAreWrongUsage)
{
    const std::string path = manifest(k_good);
    for (const char* setting : {"no-such-rule=off", "malformed-version", "malformed-version=bad"}) {
        EXPECT_EQ(check({"--rule", setting, path}).exitCode, 2) << setting;
    }
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

TEST_F(CheckCommand, SettingsThatCannotBeUnderstoodHideNoOtherManifest)
{
    package("a", k_bad);
    const std::string b = package("b", k_bad);
    package("c", k_bad);
    folder.file("b/.zupackage-check", "nonsense\n");
    for (const std::string format : k_formats) {
        SCOPED_TRACE(format);
        const ProgramResult result = check({"--format", format, folder.path().string()});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.output, AllOf(HasSubstr("a/manifest.xml"), HasSubstr("c/manifest.xml")));
        EXPECT_THAT(result.errors, AllOf(HasSubstr("zupackage: cannot check " + b + ": "),
                                         HasSubstr("b/.zupackage-check:1: \"nonsense\" is not of the form")));
        if (format != "text") {
            EXPECT_THAT(result.output, AllOf(HasSubstr("b/manifest.xml"), HasSubstr("b/.zupackage-check:1: ")));
        }
        if (format == "json") {
            EXPECT_EQ(invalidityOfJson(result.output, "docs/schemas/check-report.schema.json"), "");
        }
        if (format == "sarif") {
            EXPECT_THAT(result.output, HasSubstr("\"executionSuccessful\": false"));
        }
        EXPECT_THAT(result.output, Not(HasSubstr("=\"unreadable\""))) << "the manifest is not";
        EXPECT_THAT(result.output, Not(HasSubstr("title=unreadable")));
    }
}

TEST_F(CheckCommand, SettingsThatCannotBeReadAreAFailureOfInput)
{
    const std::string path = manifest(k_good);
    const fs::path settings = folder.path() / ".zupackage-check";
    for (const auto& [target, reason] : {std::pair<const char*, const char*>{"absent", "No such file or directory"},
                                         {"/dev/zero", "Not a regular file"},
                                         {"web", "Permission denied"}}) {
        SCOPED_TRACE(target);
        fs::create_symlink(target, settings);
        ASSERT_EQ(chmod((folder.path() / "web").c_str(), 0), 0);
        const ProgramResult result = checkWithoutPrivileges({path});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_THAT(result.errors, AllOf(HasSubstr("zupackage: cannot check " + path + ": "),
                                         HasSubstr(std::string(".zupackage-check: ") + reason + "\n")));
        fs::remove(settings);
    }
    ASSERT_EQ(mkfifo(settings.c_str(), 0600), 0);
    EXPECT_THAT(check({path}).errors, HasSubstr(".zupackage-check: Not a regular file\n"));
}

TEST_F(CheckCommand, SettingsAreNotReadWithoutLimit)
{
    folder.file(".zupackage-check", std::string(1024 * 1024 + 1, '#'));
    const ProgramResult result = check({manifest(k_good)});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr(".zupackage-check: larger than 1 MiB, which no settings are\n"));
}

} // namespace zu::test
