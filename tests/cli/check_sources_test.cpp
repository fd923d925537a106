#include "cli/check_command.hpp"
#include "support/json_schema.hpp"

#include <gmock/gmock.h>

#include <sstream>
#include <sys/stat.h>

namespace zu::test {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

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

TEST_F(CheckCommand, ADeviceWithoutAnEndHasOne)
{
    const ProgramResult result = check({"/dev/zero"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("/dev/zero:1:1: error: "));
    EXPECT_THAT(result.output, testing::EndsWith("[not-well-formed]\n"));
}

TEST_F(CheckCommand, FailuresOfTheSearchStandInEveryFormat)
{
    fs::create_directory(folder.path() / "empty");
    const std::string good = package("good", k_good);
    const std::string empty = (folder.path() / "empty").string();
    for (const char* format : k_machineFormats) {
        SCOPED_TRACE(format);
        const ProgramResult result = check({"--format", format, empty, good});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(result.errors, "zupackage: there is no manifest.xml in " + empty + "\n");
        EXPECT_THAT(result.output, HasSubstr("there is no manifest.xml in " + empty));
    }
    EXPECT_EQ(invalidityOfJson(check({"--format", "json", empty}).output, "docs/schemas/check-report.schema.json"), "");
    const std::string sarif = check({"--format", "sarif", empty}).output;
    EXPECT_EQ(invalidityOfJson(sarif, "tests/schemas/sarif-2.1.0.json"), "");
    EXPECT_THAT(sarif, HasSubstr("\"executionSuccessful\": false"));
}

TEST_F(CheckCommand, FoldersThatCannotBeReadAreNamed)
{
    const std::string good = package("good", k_good);
    const fs::path closed = folder.path() / "closed";
    fs::create_directory(closed);
    ASSERT_EQ(chmod(closed.c_str(), 0), 0);
    const ProgramResult result = checkWithoutPrivileges({folder.path().string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, "zupackage: cannot search " + closed.string() + ": Permission denied\n" +
                                 "no findings in 1 manifest, 1 could not be checked\n");
    ASSERT_EQ(chmod(closed.c_str(), 0700), 0);
}

TEST_F(CheckCommand, PipesInFoldersAreNamedAndNotRead)
{
    package("good", k_good);
    fs::create_directory(folder.path() / "pipe");
    const fs::path pipe = folder.path() / "pipe/manifest.xml";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const ProgramResult result = check({folder.path().string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, StartsWith("zupackage: cannot read " + pipe.string() + ": Not a regular file\n"));
}

TEST_F(CheckCommand, NamesOfFoldersMayBeAnyBytes)
{
    package("\xFF", k_bad);
    const ProgramResult result = check({folder.path().string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("/\xEF\xBF\xBD/manifest.xml:1:28: error: "));
    EXPECT_THAT(check({"--format", "sarif", folder.path().string()}).output, HasSubstr("/%FF/manifest.xml\""));
}

TEST_F(CheckCommand, LinksToFoldersAreFollowedOnce)
{
    const TemporaryFolder elsewhere;
    elsewhere.file("manifest.xml", k_bad);
    package("searched/real", k_bad);
    package("beside", k_bad);
    const fs::path searched = folder.path() / "searched";
    fs::create_directory_symlink("real", searched / "a-link");
    fs::create_directory_symlink("..", searched / "up");
    fs::create_directory_symlink("loop", searched / "loop");
    fs::create_directory_symlink(elsewhere.path(), searched / "out");
    fs::create_directory_symlink(elsewhere.path(), searched / "out-again");
    const ProgramResult result = check({"--format", "github", searched.string()});
    std::vector<std::string> names;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);) {
        if (line.find("malformed-version") != std::string::npos)
            names.push_back(line.substr(line.find("/searched/"), line.find(",line=") - line.find("/searched/")));
    }
    EXPECT_THAT(names, ElementsAre("/searched/out/manifest.xml", "/searched/real/manifest.xml"));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(CheckCommand, ARootThatCannotBeUsedIsOneError)
{
    const std::string path = manifest(k_good);
    const std::pair<std::string, std::string> roots[] = {{"/nowhere", "/nowhere: No such file or directory"},
                                                         {path, path + ": Not a directory"}};
    for (const auto& [root, reason] : roots) {
        const ProgramResult result = check({"--root", root, path});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(result.errors, "zupackage: cannot look for files in " + reason + "\n");
        EXPECT_THAT(result.output, IsEmpty());
        for (const char* format : k_machineFormats) {
            EXPECT_THAT(check({"--format", format, "--root", root, path}).output, HasSubstr(reason)) << format;
        }
    }
    const fs::path closed = folder.path() / "closed";
    fs::create_directory(closed);
    ASSERT_EQ(chmod(closed.c_str(), 0600), 0);
    EXPECT_EQ(checkWithoutPrivileges({"--root", closed.string(), path}).exitCode, 3);
}

} // namespace zu::test
