#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/whole_package.hpp"

#include <gmock/gmock.h>

#include <csignal>
#include <grp.h>
#include <iostream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::KilledBySignal;

namespace {

class ManifestSaver : public testing::Test
{
protected:
    std::string path(const std::string& name) const { return (folder.path() / name).string(); }

    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    test::TemporaryFolder folder;
    const PackageInfo package = test::wholePackage();
    const std::string content = [this] {
        EXPECT_TRUE(package.saveToManifestFile(path("content")));
        std::string bytes = test::readFile(path("content"));
        fs::remove(path("content"));
        return bytes;
    }();
};

std::string failure(const PackageInfo& package, const std::string& path)
{
    try {
        saveManifest(package, path);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "no failure";
}

/// Ends the process, with the failure to save on standard error.
[[noreturn]] void saveAndExit(const PackageInfo& package, const std::string& path)
{
    std::cerr << failure(package, path);
    std::_Exit(1);
}

/// From now on the kernel ends the process when it writes more into a file, unless SIGXFSZ is ignored.
void limitFileSize()
{
    rlimit limit = {};
    limit.rlim_cur = limit.rlim_max = 1'000;
    setrlimit(RLIMIT_FSIZE, &limit);
}

constexpr id_t k_nobody = 65534;

/// Root may write everything.
void dropPrivileges()
{
    if (geteuid() == 0 && setuid(k_nobody) != 0)
        std::_Exit(2);
}

/// Puts a small file system over the folder, for this process alone and as long as it lives.
bool mountSmallDisk(const fs::path& folder)
{
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.c_str(), "tmpfs", 0, "size=16k") == 0;
}

/// A package whose manifest takes 100 kB at least.
PackageInfo largePackage()
{
    PackageInfo package;
    package.setDescription(std::string(100'000, 'x'), "en");
    return package;
}

} // namespace

TEST_F(ManifestSaver, WritesWhatSaveToManifestFileWritesAndNothingElse)
{
    saveManifest(package, path("manifest.xml"));
    EXPECT_EQ(test::readFile(path("manifest.xml")), content);
    EXPECT_THAT(files(), ElementsAre("manifest.xml"));
}

TEST_F(ManifestSaver, PutsAnyBytesInThePlaceOfAManifest)
{
    const std::string file = folder.file("manifest.xml", "old");
    const std::string bytes("\xFF\0<", 3);
    replaceManifest(file, bytes);
    EXPECT_EQ(test::readFile(file), bytes);
    EXPECT_THAT(files(), ElementsAre("manifest.xml"));
}

TEST_F(ManifestSaver, ReplacesALongerFile)
{
    folder.file("manifest.xml", std::string(100'000, 'x'));
    saveManifest(package, path("manifest.xml"));
    EXPECT_EQ(test::readFile(path("manifest.xml")), content);
}

TEST_F(ManifestSaver, AFailureNamesPathAndReasonAndIsNotLogged)
{
    const test::CapturedLog log;
    fs::create_directory(path("folder"));
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    fs::create_symlink("loop", path("loop"));
    fs::create_symlink("\xFF.xml", path("link"));
    const std::pair<std::string, std::string> cases[] = {
        {path("absent/manifest.xml"), "No such file or directory"},
        {path("folder"), "Not a regular file"},
        {path("pipe"), "Not a regular file"},
        {path("loop"), "Too many levels of symbolic links"},
        {"", "No such file or directory"},
        {path("manifest.xml") + '\0' + "rest", "Invalid argument"},
        {path("\xFF.xml"), "The name is no UTF-8"},
        {path("link"), "The name is no UTF-8"},
    };
    for (const auto& [name, reason] : cases)
        EXPECT_EQ(failure(package, name), "Could not write " + std::string(name.c_str()) + ": " + reason);
    EXPECT_THAT(log.lines(), testing::IsEmpty());
    EXPECT_THAT(files(), testing::UnorderedElementsAre("folder", "pipe", "loop", "link"));
}

TEST_F(ManifestSaver, KeepsThePermissionsOfTheFile)
{
    const std::string file = folder.file("manifest.xml", "old");
    std::vector<mode_t> modes = {0600, 0640, 0664, 0755};
    if (geteuid() == 0) // who alone may write the others
        modes.insert(modes.end(), {0, 0066, 0400, 0440, 0444, 0555, 01644, 02755, 04755});
    for (const mode_t mode : modes) {
        ASSERT_EQ(chmod(file.c_str(), mode), 0);
        saveManifest(package, file);
        EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(mode));
    }
}

TEST_F(ManifestSaver, OtherHardLinksKeepTheOldContent)
{
    const std::string file = folder.file("manifest.xml", "old");
    fs::create_hard_link(file, path("hard.xml"));
    saveManifest(package, file);
    EXPECT_EQ(test::readFile(file), content);
    EXPECT_EQ(test::readFile(path("hard.xml")), "old");
}

TEST_F(ManifestSaver, ANewFileHasThePermissionsOfNewFiles)
{
    saveManifest(package, path("manifest.xml"));
    EXPECT_EQ(fs::status(path("manifest.xml")).permissions(), fs::status(folder.file("other", "")).permissions());
}

TEST_F(ManifestSaver, KeepsTheOwnerWhereAllowed)
{
    const std::string file = folder.file("manifest.xml", "old");
    if (chown(file.c_str(), 12345, 23456) != 0)
        GTEST_SKIP() << "only root may give files away";
    saveManifest(package, file);
    struct stat status = {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12345U);
    EXPECT_EQ(status.st_gid, 23456U);
}

TEST_F(ManifestSaver, LinksStayAndWhatTheyLeadToIsReplaced)
{
    fs::create_directories(path("real/deep"));
    fs::create_directory_symlink("real/deep", path("linked"));
    folder.file("real/manifest.xml", "old");
    fs::create_symlink("../manifest.xml", path("linked/manifest.xml")); // that is real/manifest.xml
    fs::create_symlink("linked/manifest.xml", path("manifest.xml"));
    saveManifest(package, path("manifest.xml"));
    EXPECT_TRUE(fs::is_symlink(path("manifest.xml")));
    EXPECT_TRUE(fs::is_symlink(path("real/deep/manifest.xml")));
    EXPECT_FALSE(fs::is_symlink(path("real/manifest.xml")));
    EXPECT_EQ(test::readFile(path("real/manifest.xml")), content);
}

TEST_F(ManifestSaver, TheTargetOfADanglingLinkIsMade)
{
    fs::create_directory(path("elsewhere"));
    fs::create_symlink("elsewhere/target.xml", path("manifest.xml"));
    saveManifest(package, path("manifest.xml"));
    EXPECT_TRUE(fs::is_symlink(path("manifest.xml")));
    EXPECT_EQ(test::readFile(path("elsewhere/target.xml")), content);
}

using ManifestSaverDeathTest = ManifestSaver; // which run first, while there are no other threads

TEST_F(ManifestSaverDeathTest, AFullDiskIsReportedAndTheOldFileStays)
{
    EXPECT_EXIT(
        {
            if (!mountSmallDisk(folder.path())) {
                std::cerr << "not tested: only root may mount";
                std::_Exit(1);
            }
            const std::string file = folder.file("manifest.xml", "old");
            const std::string message = failure(largePackage(), file);
            std::cerr << message << '|' << test::readFile(file) << '|' << files().size();
            std::_Exit(1);
        },
        ExitedWithCode(1), "manifest.xml: No space left on device\\|old\\|1$|not tested");
}

TEST_F(ManifestSaverDeathTest, AFileThatMayNotGrowIsReportedAndTheOldOneStays)
{
    const std::string file = folder.file("manifest.xml", "old");
    EXPECT_EXIT(
        {
            std::signal(SIGXFSZ, SIG_IGN);
            limitFileSize();
            saveAndExit(package, file);
        },
        ExitedWithCode(1), "Could not write .*/manifest.xml: File too large");
    EXPECT_EQ(test::readFile(file), "old");
    EXPECT_THAT(files(), ElementsAre("manifest.xml"));
}

TEST_F(ManifestSaverDeathTest, AProcessKilledHalfWayLeavesTheOldFile)
{
    const std::string file = folder.file("manifest.xml", "old");
    EXPECT_EXIT(
        {
            limitFileSize();
            saveAndExit(largePackage(), file);
        },
        KilledBySignal(SIGXFSZ), "");
    EXPECT_EQ(test::readFile(file), "old");
}

TEST_F(ManifestSaverDeathTest, AFolderThatMayNotBeWrittenIsReportedAndTheOldFileStays)
{
    const std::string file = folder.file("manifest.xml", "old");
    ASSERT_EQ(chmod(file.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    EXPECT_EXIT(
        {
            dropPrivileges();
            saveAndExit(package, file);
        },
        ExitedWithCode(1), "Could not write .*/manifest.xml: Permission denied");
    EXPECT_EQ(test::readFile(file), "old");
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
}

TEST_F(ManifestSaverDeathTest, AFileOfAnotherOwnerDoesNotComeToActAsItsWriter)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be two users";
    const std::string file = folder.file("manifest.xml", "old");
    ASSERT_EQ(chmod(file.c_str(), 06777), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    EXPECT_EXIT(
        {
            if (setgroups(0, nullptr) != 0 || setgid(k_nobody) != 0)
                std::_Exit(2);
            dropPrivileges();
            saveAndExit(package, file);
        },
        ExitedWithCode(1), "^no failure$");
    EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0777));
}

TEST_F(ManifestSaverDeathTest, AFileThatMayNotBeWrittenIsReportedAndStays)
{
    const std::string file = folder.file("manifest.xml", "old");
    ASSERT_EQ(chmod(file.c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    EXPECT_EXIT(
        {
            dropPrivileges();
            saveAndExit(package, file);
        },
        ExitedWithCode(1), "Could not write .*/manifest.xml: .* is not writable");
    EXPECT_EQ(test::readFile(file), "old");
}

} // namespace zu
