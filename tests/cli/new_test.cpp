#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace zu {

using test::ProgramResult;
using test::zupackage;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class NewCommand : public testing::Test
{
protected:
    std::string path(const std::string& name) const { return (folder.path() / name).string(); }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(NewCommand, MakesPackagesOfEachKindThatPassTheCheck)
{
    for (const char* kind : {"behavior", "dialog", "language", "service"}) {
        const std::string package = path(kind);
        const ProgramResult made = zupackage({"new", package, "--kind", kind, "--language", "en", "--language", "fr_CA",
                                              "--name", "Grüß dich & <Co>", "--uuid", "org.example.x"});
        EXPECT_EQ(made.exitCode, 0) << made.errors;
        EXPECT_THAT(made.output, HasSubstr(package + "/manifest.xml\n"));
        const ProgramResult checked = zupackage({"check", "--fail-on", "pedantic", package});
        EXPECT_EQ(checked.exitCode, 0);
        EXPECT_THAT(checked.output, IsEmpty());
        EXPECT_THAT(zupackage({"show", package}).output, HasSubstr("Grüß dich & <Co>"));
    }
}

TEST_F(NewCommand, NeedsNothingButAFolder)
{
    EXPECT_EQ(zupackage({"new", path("Wave Hello/")}).exitCode, 0);
    const std::string manifest = test::readFile(path("Wave Hello/manifest.xml"));
    EXPECT_THAT(manifest, HasSubstr("<name lang=\"en\">Wave Hello</name>"));
    EXPECT_THAT(manifest, HasSubstr("<behaviorContent path=\"behaviors/wave-hello\">"));
    EXPECT_EQ(zupackage({"check", "--fail-on", "pedantic", path("Wave Hello")}).exitCode, 0);
}

TEST_F(NewCommand, DescribesThePackageInEachLanguage)
{
    const std::string description = "Says “hello” & waves.\nThen it bows.";
    EXPECT_EQ(
        zupackage({"new", path("a"), "--language", "en", "--language", "fr", "--description", description}).exitCode,
        0);
    for (const char* language : {"en", "fr"}) {
        const std::string described = std::string("descriptions/description[@lang='") + language + "']";
        EXPECT_EQ(zupackage({"get", path("a"), described}).output, description + "\n");
    }
    EXPECT_EQ(zupackage({"check", "--fail-on", "pedantic", path("a")}).exitCode, 0);
}

TEST_F(NewCommand, DescribesThePackageByItsNameUntilItIsTold)
{
    EXPECT_EQ(zupackage({"new", path("a"), "--name", "Wave Hello"}).exitCode, 0);
    EXPECT_EQ(zupackage({"get", path("a"), "descriptions/description[@lang='en']"}).output, "Wave Hello\n");
}

TEST_F(NewCommand, MakesServicesExecutable)
{
    EXPECT_EQ(zupackage({"new", path("clock"), "--kind", "service"}).exitCode, 0);
    const auto permissions = std::filesystem::status(path("clock/bin/clock")).permissions();
    EXPECT_NE(permissions & std::filesystem::perms::owner_exec, std::filesystem::perms::none);
}

TEST_F(NewCommand, OverwritesNothing)
{
    folder.file("manifest.xml", "mine");
    const ProgramResult result = zupackage({"new", folder.path().string(), "--name", "x"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.errors, "zupackage: " + path("manifest.xml") + " is there already\n");
    EXPECT_EQ(test::readFile(path("manifest.xml")), "mine");
    EXPECT_FALSE(std::filesystem::exists(path("behaviors")));
}

TEST_F(NewCommand, ADanglingLinkIsThereAlready)
{
    std::filesystem::create_symlink("nowhere", path("manifest.xml"));
    EXPECT_EQ(zupackage({"new", folder.path().string()}).exitCode, 5);
    EXPECT_FALSE(std::filesystem::exists(path("nowhere")));
}

TEST_F(NewCommand, AFolderThatCannotBeMadeIsAFailureOfOutput)
{
    folder.file("file", "");
    EXPECT_EQ(zupackage({"new", path("file/package")}).exitCode, 5);
}

TEST_F(NewCommand, RefusesWhatAManifestShouldNotHold)
{
    const ProgramResult result = zupackage({"new", path("a"), "--language", "english"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("\"english\" is no language code"));
    EXPECT_FALSE(std::filesystem::exists(path("a")));
}

TEST_F(NewCommand, RefusesTextsThatNobodyCanSee)
{
    for (const std::string option : {"--uuid", "--name", "--description"}) {
        for (const char* blank : {"", " ", "\t", "\xE3\x80\x80"}) {
            const ProgramResult result = zupackage({"new", path("a"), option, blank});
            EXPECT_EQ(result.exitCode, 2);
            EXPECT_EQ(result.errors, "zupackage: " + option + ": the value is empty or white space alone\n");
        }
    }
    EXPECT_FALSE(std::filesystem::exists(path("a")));
}

TEST_F(NewCommand, RefusesAnIdOrANameOfSeveralLines)
{
    for (const std::string option : {"--uuid", "--name"}) {
        const ProgramResult result = zupackage({"new", path("a"), option, "a\nb"});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.errors, "zupackage: " + option + ": the value has a control character in it\n");
    }
    EXPECT_FALSE(std::filesystem::exists(path("a")));
}

TEST_F(NewCommand, RefusesADescriptionThatAManifestCannotHold)
{
    const ProgramResult result = zupackage({"new", path("a"), "--description", "Beeps \a"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("U+FFFD"));
    EXPECT_FALSE(std::filesystem::exists(path("a")));
}

TEST_F(NewCommand, NeedsANameWhereThatOfTheFolderIsNone)
{
    const ProgramResult result = zupackage({"new", path("a\nb")});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("has a control character in it; give the package one by --name\n"));
    EXPECT_EQ(zupackage({"new", path("a\nb"), "--name", "x"}).exitCode, 0);
}

TEST_F(NewCommand, RefusesALanguageThatIsGivenTwice)
{
    const ProgramResult result = zupackage({"new", path("a"), "--language", "en", "--language", "en"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "zupackage: --language: \"en\" is given twice\n");
    EXPECT_FALSE(std::filesystem::exists(path("a")));
}

TEST_F(NewCommand, SaysWhyItCannotLookIntoTheFolder)
{
    const ProgramResult result = zupackage({"new", path(std::string(300, 'x'))});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, EndsWith(": File name too long\n"));
}

TEST_F(NewCommand, KnowsItsKinds) { EXPECT_EQ(zupackage({"new", path("a"), "--kind", "game"}).exitCode, 2); }

} // namespace zu
