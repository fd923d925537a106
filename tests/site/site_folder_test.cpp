#include "site/site_folder.hpp"
#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

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
