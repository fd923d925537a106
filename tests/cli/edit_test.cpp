#include "cli/zupackage.hpp"
#include "support/texts.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace zu {

namespace fs = std::filesystem;
using test::ProgramResult;
using test::replaced;
using test::zupackage;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string k_manifest = "<package uuid='a' version='1.0'>\n"
                               "  <names>\n"
                               "    <!-- The one on the box. -->\n"
                               "    <name lang='en'>A</name>\n"
                               "    <name lang='fr'>B</name>\n"
                               "  </names>\n"
                               "</package>";

/// Runs the program by a shell: its name and arguments are "$@".
ProgramResult runBy(const std::string& script, std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), {"-c", script, "sh", ZUPACKAGE_PROGRAM});
    return test::runProgram("/bin/sh", arguments);
}

class EditCommands : public testing::Test
{
protected:
    std::string content() const { return test::readFile(manifest); }
    std::size_t fileCount() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }

    test::TemporaryFolder folder;
    const std::string manifest = folder.file("manifest.xml", k_manifest);
};

} // namespace

TEST_F(EditCommands, SetChangesTextsAndNothingElse)
{
    const ProgramResult result =
        zupackage({"set", folder.path().string(), "@version=2.0", "names/name[@lang='fr']=x=y"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output + result.errors, IsEmpty());
    EXPECT_EQ(content(), replaced(replaced(k_manifest, "1.0", "2.0"), ">B<", ">x=y<"));
}

TEST_F(EditCommands, ThePathEndsAtTheFirstEqualsSignOutsideOfBrackets)
{
    EXPECT_EQ(zupackage({"set", manifest, "names/name[@lang=\"fr\"][.='B']/@lang=de"}).exitCode, 0);
    EXPECT_EQ(content(), replaced(k_manifest, "'fr'", "'de'"));
    EXPECT_EQ(zupackage({"set", manifest, "descriptions/description[@lang='en']=[']=]"}).exitCode, 0);
    EXPECT_THAT(content(), HasSubstr("<description lang='en'>[']=]</description>"));
    EXPECT_EQ(zupackage({"set", manifest, "names/name[1]"}).errors,
              "zupackage: \"names/name[1]\" is not of the form PATH=TEXT\n");
}

TEST_F(EditCommands, AddAppendsAnEntry)
{
    EXPECT_EQ(zupackage({"add", manifest, "names/name", "@lang=de", ".=C"}).exitCode, 0);
    EXPECT_EQ(content(), replaced(k_manifest, "B</name>\n", "B</name>\n    <name lang='de'>C</name>\n"));
}

TEST_F(EditCommands, RemoveTakesLinesAway)
{
    EXPECT_EQ(zupackage({"remove", manifest, "names/name[@lang='fr']"}).exitCode, 0);
    EXPECT_EQ(content(), replaced(k_manifest, "    <name lang='fr'>B</name>\n", ""));
}

TEST_F(EditCommands, StandardInputGoesToStandardOutput)
{
    const ProgramResult result = zupackage({"set", "-", "@version=1.0"}, k_manifest);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, k_manifest);
    EXPECT_EQ(zupackage({"remove", "-", "names/name"}, "<p><names><name/></names></p>").output,
              "<p><names></names></p>");
}

TEST_F(EditCommands, ADryRunShowsTheDifferenceAndWritesNothing)
{
    const ProgramResult result = zupackage({"set", manifest, "@version=2.0", "names/name[@lang='fr']=C", "--dry-run"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "--- " + manifest + "\n+++ " + manifest +
                                 "\n@@ -1,7 +1,7 @@\n"
                                 "-<package uuid='a' version='1.0'>\n"
                                 "+<package uuid='a' version='2.0'>\n"
                                 "   <names>\n"
                                 "     <!-- The one on the box. -->\n"
                                 "     <name lang='en'>A</name>\n"
                                 "-    <name lang='fr'>B</name>\n"
                                 "+    <name lang='fr'>C</name>\n"
                                 "   </names>\n"
                                 " </package>\n"
                                 "\\ No newline at end of file\n");
    EXPECT_EQ(content(), k_manifest);
    EXPECT_THAT(zupackage({"set", manifest, "@version=1.0", "--dry-run"}).output, IsEmpty());
}

TEST_F(EditCommands, TheReadmeShowsADryRun)
{
    const std::string root = test::sourcePath("README.md").parent_path().string();
    const ProgramResult result =
        runBy("cd '" + root + "' && exec \"$@\"",
              {"set", "examples/packages/fleet-monitor", "--dry-run",
               "services/service[@name='heartbeat']/envVar[@name='FLEET_ROBOT']/@value=brindle-7"});
    test::expectGolden(result.output, "set_dry_run.txt");
}

TEST_F(EditCommands, FarDifferencesStandInHunksOfTheirOwn)
{
    std::string lines;
    for (int i = 0; i < 20; ++i)
        lines += "<!-- " + std::to_string(i) + " -->\n";
    const ProgramResult result = zupackage({"set", "-", "@uuid=b", "names/name[@lang='en']=A", "--dry-run"},
                                           "<p uuid='a'>\n" + lines + "</p>\n");
    EXPECT_EQ(result.output, "--- standard input\t\n+++ standard input\t\n"
                             "@@ -1,4 +1,4 @@\n"
                             "-<p uuid='a'>\n"
                             "+<p uuid='b'>\n"
                             " <!-- 0 -->\n <!-- 1 -->\n <!-- 2 -->\n"
                             "@@ -19,4 +19,7 @@\n"
                             " <!-- 17 -->\n <!-- 18 -->\n <!-- 19 -->\n"
                             "+<names>\n"
                             "+  <name lang='en'>A</name>\n"
                             "+</names>\n"
                             " </p>\n");
}

TEST_F(EditCommands, AllIsDoneOrNothing)
{
    const ProgramResult absent = zupackage({"remove", manifest, "names/name[@lang='fr']", "@channel"});
    EXPECT_EQ(absent.exitCode, 4);
    EXPECT_EQ(absent.errors, "zupackage: " + manifest + ": there is no @channel; the nearest is /package\n");
    const ProgramResult wrong = zupackage({"set", manifest, "@version=2.0", "@installOnlyAtStartup=yes"});
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_EQ(wrong.errors, "zupackage: " + manifest + ": \"yes\" is no flag: \"true\", \"1\", \"false\" or \"0\"\n");
    EXPECT_EQ(content(), k_manifest);
}

TEST_F(EditCommands, ForceMakesWhatManifestsDoNotHave)
{
    EXPECT_EQ(zupackage({"set", manifest, "@flavour=mint", "--force"}).exitCode, 0);
    EXPECT_EQ(content(), replaced(k_manifest, "'1.0'", "'1.0' flavour='mint'"));
}

TEST_F(EditCommands, AnIllFormedDocumentIsRefusedWithItsPlace)
{
    test::writeFile(manifest, "<package>\n</packag>");
    const ProgramResult result = zupackage({"set", manifest, "@uuid=a", "--force"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("manifest.xml:2:1: "));
}

TEST_F(EditCommands, LinksAndModesStay)
{
    fs::create_symlink("manifest.xml", folder.path() / "link.xml");
    ASSERT_EQ(chmod(manifest.c_str(), 0640), 0);
    EXPECT_EQ(zupackage({"set", (folder.path() / "link.xml").string(), "@version=2.0"}).exitCode, 0);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link.xml"));
    EXPECT_EQ(fs::status(manifest).permissions(), static_cast<fs::perms>(0640));
    EXPECT_EQ(content(), replaced(k_manifest, "1.0", "2.0"));
}

TEST_F(EditCommands, AFullDiskIsReportedAndTheOldFileStays)
{
    // A file that may not grow fails as one on a full disk does, and needs no rights to be made.
    const ProgramResult result = runBy("trap '' XFSZ; ulimit -f 0; exec \"$@\"", {"set", manifest, "@version=2.0"});
    EXPECT_EQ(result.exitCode, 5);
    // Instrumented programs have files of their own to complain about.
    EXPECT_THAT(result.errors, HasSubstr("zupackage: Could not write " + manifest + ": File too large\n"));
    EXPECT_EQ(content(), k_manifest);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(EditCommands, AProcessKilledHalfWayLeavesTheOldFile)
{
    const ProgramResult result =
        runBy("ulimit -c 0; ulimit -f 1; \"$@\"; echo $?",
              {"set", manifest, "descriptions/description[@lang='en']=" + std::string(100'000, 'x')});
    EXPECT_EQ(result.output, std::to_string(128 + SIGXFSZ) + "\n");
    EXPECT_EQ(content(), k_manifest);
}

TEST_F(EditCommands, AFolderThatMayNotBeWrittenIsReportedAndTheOldFileStays)
{
    std::string script = "exec \"$@\"";
    if (geteuid() == 0) // who may write everything but a file system that cannot be written
        script = "d=$(dirname \"$3\"); exec unshare -m sh -c 'mount --bind \"$1\" \"$1\" && "
                 "mount -o remount,ro,bind \"$1\" && shift && exec \"$@\"' sh \"$d\" \"$@\"";
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    const ProgramResult result = runBy(script, {"set", manifest, "@version=2.0"});
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    if (result.errors.find("mount") != std::string::npos || result.errors.find("unshare") != std::string::npos)
        GTEST_SKIP() << "nothing may be mounted here: " << result.errors;
    EXPECT_EQ(result.exitCode, 5) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("Could not write " + manifest + ": "));
    EXPECT_EQ(content(), k_manifest);
    EXPECT_EQ(fileCount(), 1U);
}

} // namespace zu
