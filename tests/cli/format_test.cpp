#include "support/files.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace zu {

namespace fs = std::filesystem;
using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string k_crooked = "<package version='1' uuid='a'><contents/>\n</package>";
const std::string k_straight = "<package uuid='a' version='1'>\n  <contents/>\n</package>\n";

ProgramResult format(std::vector<std::string> arguments, const std::string& input = {},
                     const std::string& outputFile = {})
{
    arguments.insert(arguments.begin(), "format");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, {input, outputFile, {}});
}

class Format : public testing::Test
{
protected:
    Format()
    {
        for (const char* name : {"a", "b"})
            fs::create_directory(folder.path() / name);
        folder.file("a/manifest.xml", k_crooked);
        folder.file("b/manifest.xml", k_straight);
    }

    std::string path(const std::string& name) const { return (folder.path() / name).string(); }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(Format, BringsTheManifestsOfFoldersIntoForm)
{
    const ProgramResult result = format({folder.path().string()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output + result.errors, IsEmpty());
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_straight);
}

TEST_F(Format, WhatIsInFormIsNotWritten)
{
    const auto before = fs::last_write_time(path("b/manifest.xml"));
    const auto earlier = before - std::chrono::hours(1);
    fs::last_write_time(path("b/manifest.xml"), earlier);
    EXPECT_EQ(format({path("b")}).exitCode, 0);
    EXPECT_EQ(fs::last_write_time(path("b/manifest.xml")), earlier);
}

TEST_F(Format, CheckListsWhatIsNotInForm)
{
    const ProgramResult result = format({"--check", folder.path().string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, path("a/manifest.xml") + "\n");
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_crooked);
    EXPECT_EQ(format({"--check", path("b")}).exitCode, 0);
}

TEST_F(Format, DiffShowsWhatWouldChange)
{
    const ProgramResult result = format({"--diff", folder.path().string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "--- " + path("a/manifest.xml") + "\n+++ " + path("a/manifest.xml") +
                                 "\n@@ -1,2 +1,3 @@\n"
                                 "-<package version='1' uuid='a'><contents/>\n"
                                 "-</package>\n"
                                 "\\ No newline at end of file\n"
                                 "+<package uuid='a' version='1'>\n"
                                 "+  <contents/>\n"
                                 "+</package>\n");
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_crooked);
}

TEST_F(Format, StandardInputGoesToStandardOutput)
{
    EXPECT_EQ(format({"-"}, k_crooked).output, k_straight);
    EXPECT_EQ(format({"-"}, k_straight).output, k_straight);
    const ProgramResult check = format({"--check", "-"}, k_crooked);
    EXPECT_EQ(check.exitCode, 1);
    EXPECT_EQ(check.output, "standard input\n");
}

TEST_F(Format, WhatCannotBeReadIsReportedAndTheOthersAreFormatted)
{
    folder.file("b/manifest.xml", "<p>\n</q>");
    fs::create_directory(path("c"));
    const ProgramResult result = format({path("none"), path("b"), path("c"), path("a")});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read " + path("none") + ": No such file or directory\n"));
    EXPECT_THAT(result.errors, HasSubstr("zupackage: " + path("b/manifest.xml") + ":2:1: "));
    EXPECT_THAT(result.errors, HasSubstr("zupackage: there is no manifest.xml in " + path("c") + "\n"));
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_straight);
    EXPECT_EQ(format({}).exitCode, 2);
}

TEST_F(Format, OutputThatCannotBeWrittenIsAFailureOfItsOwn)
{
    const std::string message = "zupackage: cannot write to standard output: No space left on device\n";
    const std::vector<std::vector<std::string>> commands{{"-"}, {"--check", path("a")}, {"--diff", path("a")}};
    for (const std::vector<std::string>& arguments : commands) {
        SCOPED_TRACE(arguments.front());
        const ProgramResult result = format(arguments, k_crooked, "/dev/full");
        EXPECT_EQ(result.exitCode, 5);
        EXPECT_EQ(result.errors, message);
    }
    // It is worse than what cannot be read.
    EXPECT_EQ(format({"--check", path("none"), path("a")}, {}, "/dev/full").exitCode, 5);
}

TEST_F(Format, AManifestThatCannotBeReplacedIsReportedAndStays)
{
    // A file that may not grow fails as one on a full disk does, and needs no rights to be made.
    const ProgramResult result = test::runProgram(
        "/bin/sh", {"-c", "trap '' XFSZ; ulimit -f 0; exec \"$@\"", "sh", ZUPACKAGE_PROGRAM, "format", path("a")});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: "));
    EXPECT_THAT(result.errors, HasSubstr(path("a/manifest.xml")));
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_crooked);
}

TEST_F(Format, AManifestWhoseNameCannotBeWrittenStaysAndNoOtherIsMade)
{
    // Of a folder, for the arguments of this process are characters.
    fs::create_directory(folder.path() / "c\xFF");
    const std::string file = folder.file("c\xFF/manifest.xml", k_crooked);
    const ProgramResult result = format({folder.path().string()});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, HasSubstr("/c\xEF\xBF\xBD/manifest.xml: The name is no UTF-8\n"));
    EXPECT_EQ(test::readFile(file), k_crooked);
    EXPECT_FALSE(fs::exists(folder.path() / "c\xEF\xBF\xBD"));
    EXPECT_EQ(test::readFile(path("a/manifest.xml")), k_straight);
}

TEST_F(Format, TheExamplesAreInForm)
{
    const ProgramResult result = format({"--diff", test::sourcePath("examples/packages").string()});
    EXPECT_EQ(result.exitCode, 0) << result.output;
}

} // namespace zu
