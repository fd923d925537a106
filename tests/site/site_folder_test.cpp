#include "site/site_folder.hpp"
#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::cli {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class SiteFolderTest : public testing::Test
{
protected:
    /// All that stands in the temporary folder, files and folders.
    std::vector<std::string> entries() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(temporary.path()))
            names.push_back(entry.path().lexically_relative(temporary.path()).string());
        std::sort(names.begin(), names.end());
        return names;
    }

    void publish(const std::string& name) const
    {
        SiteFolder folder(site);
        folder.add(name, "content");
        folder.publish();
    }

    test::TemporaryFolder temporary;
    std::string site = (temporary.path() / "site").string();
};

} // namespace

TEST_F(SiteFolderTest, IsThereOnceItIsPublished)
{
    SiteFolder folder(site + "/");
    folder.add("pages/a.html", "content");
    EXPECT_FALSE(fs::exists(site));
    folder.publish();
    EXPECT_THAT(entries(), ElementsAre("site", "site/.zupackage-site", "site/pages", "site/pages/a.html"));
    EXPECT_EQ(test::readFile(site + "/pages/a.html"), "content");
}

TEST_F(SiteFolderTest, LeavesNothingBehindWhenItIsNotPublished)
{
    publish("old.html");
    SiteFolder(site).add("a.html", "content");
    EXPECT_THAT(entries(), ElementsAre("site", "site/.zupackage-site", "site/old.html"));
}

TEST_F(SiteFolderTest, ReplacesAnEarlierSite)
{
    publish("pages/old.html");
    publish("new.html");
    EXPECT_THAT(entries(), ElementsAre("site", "site/.zupackage-site", "site/new.html"));
}

TEST_F(SiteFolderTest, TakesAnEmptyFolder)
{
    fs::create_directory(site);
    publish("a.html");
    EXPECT_THAT(entries(), ElementsAre("site", "site/.zupackage-site", "site/a.html"));
}

TEST_F(SiteFolderTest, NeverTouchesFilesOfOthers)
{
    publish("a.html");
    for (const char* name : {"site/notes.txt", "site/empty"}) {
        if (std::string(name) == "site/empty")
            fs::create_directory(temporary.path() / name);
        else
            test::writeFile(temporary.path() / name, "mine");
        try {
            SiteFolder folder(site);
            ADD_FAILURE() << name << " would be lost";
        } catch (const SiteError& error) {
            EXPECT_THAT(error.what(), HasSubstr(fs::path(name).filename().string()));
        }
        fs::remove(temporary.path() / name);
    }
    EXPECT_THAT(entries(), ElementsAre("site", "site/.zupackage-site", "site/a.html"));
}

TEST_F(SiteFolderTest, IsOpenToNobodyElseThanTheEarlierSite)
{
    publish("old.html");
    fs::permissions(site, fs::perms::owner_all);
    SiteFolder folder(site);
    folder.add("a.html", "content");
    for (const auto& entry : fs::directory_iterator(temporary.path()))
        EXPECT_EQ(entry.status().permissions(), fs::perms::owner_all) << entry.path();
    folder.publish();
    EXPECT_EQ(fs::status(site).permissions(), fs::perms::owner_all);
    fs::permissions(site, fs::perms::all);
    publish("b.html");
    EXPECT_EQ(fs::status(site).permissions(), fs::perms::all);
}

TEST_F(SiteFolderTest, BelongsToTheGroupOfTheEarlierSite)
{
    publish("old.html");
    if (chown(site.c_str(), 12345, 23456) != 0)
        GTEST_SKIP() << "only root may give folders away";
    fs::permissions(site, static_cast<fs::perms>(02750));
    publish("a.html");
    struct stat status = {};
    ASSERT_EQ(stat(site.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12345U);
    EXPECT_EQ(status.st_gid, 23456U);
    EXPECT_EQ(status.st_mode & 07777, 02750U);
}

TEST_F(SiteFolderTest, OfAnotherGroupIsOpenToItAsToOthers)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be two users";
    fs::permissions(temporary.path(), fs::perms::all);
    fs::create_directory(site);
    fs::permissions(site, static_cast<fs::perms>(0775));
    EXPECT_EXIT(
        {
            constexpr id_t k_nobody = 65534;
            if (setgroups(0, nullptr) != 0 || setgid(k_nobody) != 0 || setuid(k_nobody) != 0)
                std::_Exit(2);
            publish("a.html");
            std::_Exit(0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(fs::status(site).permissions(), static_cast<fs::perms>(0755));
}

TEST_F(SiteFolderTest, MakesNothingBeforeItsFirstFile)
{
    SiteFolder folder(site + "/deep/below");
    EXPECT_FALSE(fs::exists(site));
}

TEST_F(SiteFolderTest, IsNoFile)
{
    temporary.file("site", "mine");
    EXPECT_THROW(SiteFolder{site}, SiteError);
    EXPECT_EQ(test::readFile(site), "mine");
}

TEST_F(SiteFolderTest, OfALinkReplacesWhatItLeadsTo)
{
    fs::create_directory(temporary.path() / "real");
    fs::create_directory_symlink("real", site);
    publish("a.html");
    EXPECT_TRUE(fs::is_symlink(site));
    EXPECT_TRUE(fs::exists(temporary.path() / "real" / "a.html"));
}

} // namespace zu::cli
