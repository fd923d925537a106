#include "support/files.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace zu {

using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace fs = std::filesystem;

namespace {

ProgramResult site(std::vector<std::string> arguments, const test::ProgramSetting& setting = {})
{
    arguments.insert(arguments.begin(), "site");
    return test::runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
}

class SiteCommand : public testing::Test
{
protected:
    std::string manifest(const std::string& name, const std::string& content) const
    {
        fs::create_directories(folder.path() / "packages" / name);
        return folder.file("packages/" + name + "/manifest.xml", content);
    }

    std::string page(const std::string& name) const { return test::readFile(out + "/" + name); }

    std::map<std::string, std::string> files() const
    {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(out)) {
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(out).string()] = test::readFile(entry.path());
        }
        return files;
    }

    test::TemporaryFolder folder;
    std::string packages = (folder.path() / "packages").string();
    std::string out = (folder.path() / "out").string();
};

constexpr char k_hostile[] =
    "<package uuid=\"&lt;/title&gt;&lt;script&gt;alert(1)&lt;/script&gt;\" version='\" onload=\"alert(1)' "
    "channel=\"&lt;img src=x onerror=alert(1)&gt;\" author=\"&lt;/script&gt;\">"
    "<names><name lang='en\" onclick=\"x'>&lt;b&gt;bold&lt;/b&gt;</name></names>"
    "<contents><behaviorContent path='\"&gt;&lt;script&gt;'/></contents></package>";

} // namespace

TEST_F(SiteCommand, MakesAListAPageForEachPackageAndAStyleSheet)
{
    manifest("a", "<package uuid=\"org.a\"><names><name lang=\"en\">Alpha</name></names></package>");
    manifest("b", "<package uuid=\"org.b\"><names><name lang=\"en\">beta</name></names></package>");
    const ProgramResult result = site({packages, "-o", out, "--title", "Our robots"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(page("index.html"), HasSubstr("<title>Our robots</title>"));
    EXPECT_THAT(page("index.html"), HasSubstr("<a href=\"packages/org.a.html\" lang=\"en\" dir=\"auto\">Alpha</a>"));
    EXPECT_LT(page("index.html").find("Alpha"), page("index.html").find("beta"));
    EXPECT_THAT(page("packages/org.a.html"), HasSubstr("<h1><span lang=\"en\" dir=\"auto\">Alpha</span></h1>"));
    EXPECT_EQ(page("style.css"), test::readFile(test::sourcePath("cli/site/style.css")));
}

TEST_F(SiteCommand, TitlesAreNoneOfWhiteSpaceAlone)
{
    manifest("a", "<package uuid=\"&#xA0;\"><names><name lang=\"en\"><![CDATA[\u3000]]></name></names></package>");
    EXPECT_EQ(site({packages, "-o", out}).exitCode, 0);
    EXPECT_THAT(page("index.html"), HasSubstr("\">a</a>"));
}

TEST_F(SiteCommand, ShowsTheTextsOfStrangersAsText)
{
    manifest("hostile", k_hostile);
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    ASSERT_EQ(site({packages, "--single", out + "/one.html"}).exitCode, 0);
    for (const auto& [name, content] : files()) {
        SCOPED_TRACE(name);
        EXPECT_THAT(content, Not(HasSubstr("<script>alert")));
        EXPECT_THAT(content, Not(HasSubstr("<b>bold")));
        EXPECT_THAT(content, Not(HasSubstr("<img")));
        EXPECT_THAT(content, Not(HasSubstr("\" onload")));
        EXPECT_THAT(content, Not(HasSubstr("\" onclick")));
    }
    EXPECT_THAT(page("packages/title-script-alert-1-script.html"), HasSubstr("&lt;b&gt;bold&lt;/b&gt;"));
}

TEST_F(SiteCommand, AllowsNoScriptButItsOwn)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    EXPECT_THAT(page("index.html"), HasSubstr("content=\"default-src &#39;none&#39;; script-src &#39;sha256-"));
    EXPECT_THAT(page("packages/org.a.html"),
                HasSubstr("content=\"default-src &#39;none&#39;; script-src &#39;none&#39;; "));
}

TEST_F(SiteCommand, OneFileHoldsEverything)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    const ProgramResult result = site({packages, "--single", "-"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("<a href=\"#package-1\">org.a</a>"));
    EXPECT_THAT(result.output, HasSubstr("<div id=\"package-1\">"));
    EXPECT_THAT(result.output, Not(HasSubstr("<link rel=\"stylesheet\"")));
}

TEST_F(SiteCommand, GivesTheSameBytesEveryTime)
{
    ASSERT_EQ(site({test::sourcePath("examples/packages").string(), "-o", out}).exitCode, 0);
    const auto first = files();
    ASSERT_EQ(site({test::sourcePath("examples/packages").string(), "-o", out}).exitCode, 0);
    EXPECT_EQ(files(), first);
    EXPECT_EQ(first.size(), 6U);
}

TEST_F(SiteCommand, MissingTextsAndFindingsStandOnThePage)
{
    ASSERT_EQ(site({test::sourcePath("examples/packages").string(), "-o", out}).exitCode, 0);
    const std::string text = page("packages/org.example.storyteller.html");
    EXPECT_THAT(text, HasSubstr("<span class=\"unseen\">missing</span>"));
    EXPECT_THAT(text, HasSubstr("<code>trimmed-text</code>"));
    EXPECT_THAT(text, HasSubstr("&lt;tag lang=&quot;<mark>de</mark>&quot;&gt;Schlafenszeit"));
}

TEST_F(SiteCommand, WhatIsNoPackageHasAPageThatSaysWhy)
{
    manifest("bad", "<package uuid=\"org.bad\"><names></package>");
    manifest("good", "<package uuid=\"org.good\"/>");
    const ProgramResult result = site({packages, "-o", out});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read " + packages + "/bad/manifest.xml: line 1, column"));
    EXPECT_THAT(page("packages/bad.html"), HasSubstr("The manifest cannot be read: line 1, column"));
    EXPECT_THAT(page("packages/bad.html"), HasSubstr("<code>not-well-formed</code>"));
    EXPECT_THAT(page("index.html"), HasSubstr("org.good"));
}

TEST_F(SiteCommand, WithoutAnyPackageWhatIsThereStaysAsItIs)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    fs::create_directory(folder.path() / "empty");
    const std::string single = folder.file("one.html", "published");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    const auto published = files();
    for (const std::string& source : {packages + "/typo", (folder.path() / "empty").string()}) {
        const ProgramResult result = site({source, "-o", out});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_THAT(result.errors, HasSubstr("zupackage: there is no package to show; nothing is written\n"));
        EXPECT_EQ(files(), published);
        EXPECT_EQ(site({source, "--single", single}).exitCode, 3);
        EXPECT_EQ(test::readFile(single), "published");
        EXPECT_EQ(site({source, "-o", (folder.path() / "new/site").string()}).exitCode, 3);
        EXPECT_FALSE(fs::exists(folder.path() / "new"));
    }
}

TEST_F(SiteCommand, AFolderThatMayOnlyBeReadIsReplacedByOneOfItsMode)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    fs::permissions(out, static_cast<fs::perms>(0555));
    const ProgramResult result = test::runWithoutPrivileges(ZUPACKAGE_PROGRAM, {"site", packages, "-o", out});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(fs::status(out).permissions(), static_cast<fs::perms>(0555));
    fs::permissions(out, fs::perms::owner_all);
    const auto entries = fs::directory_iterator(folder.path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "something is left beside it";
}

TEST_F(SiteCommand, ThePageHasTheWholeOfWhatHeadingsCut)
{
    const std::string topic(400, 't');
    const std::string locale(400, 'l');
    manifest("a", "<package uuid=\"org.a\"><contents><dialogContent topicName=\"" + topic +
                      "\"/><languageContent><locale>" + locale + "</locale></languageContent></contents></package>");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    const std::string text = page("packages/org.a.html");
    EXPECT_THAT(text, HasSubstr("<dt>Topic</dt><dd><bdi>" + topic + "</bdi>"));
    EXPECT_THAT(text, HasSubstr("<dt>Language</dt><dd><bdi>" + locale + "</bdi>"));
    EXPECT_THAT(text, Not(HasSubstr(">" + locale + "</h")));
}

TEST_F(SiteCommand, AnEmptyTitleIsWrongUsage)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    const ProgramResult result = site({packages, "-o", out, "--title", " "});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "zupackage: --title: a site has no empty title\n");
    EXPECT_FALSE(fs::exists(out));
}

TEST_F(SiteCommand, OnePackageWithLongTextsDoesNotSpoilTheList)
{
    const std::string huge(200'000, 'x');
    manifest("a", "<package uuid=\"" + huge + "\" version=\"" + huge + "\" author=\"" + huge +
                      "\"><names><name lang=\"en\">" + huge + "</name></names><descriptions><description lang=\"en\">" +
                      huge + "</description></descriptions><contents><behaviorContent path=\"" + huge +
                      "\"><tags><tag lang=\"en\">" + huge +
                      "</tag></tags></behaviorContent></contents><requirements><robotRequirement model=\"" + huge +
                      "\"/></requirements></package>");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    EXPECT_LT(page("index.html").size(), 20'000U);
    EXPECT_THAT(page("packages/" + std::string(80, 'x') + ".html"),
                HasSubstr("<h1><span lang=\"en\" dir=\"auto\">" + std::string(299, 'x') + "…</span></h1>"));
}

TEST_F(SiteCommand, FiltersByValuesAsTheyStand)
{
    manifest("a", "<package uuid=\"org.a\"><requirements><robotRequirement model=\"Brindle  7 \"/></requirements>"
                  "</package>");
    ASSERT_EQ(site({packages, "-o", out}).exitCode, 0);
    EXPECT_THAT(page("index.html"), HasSubstr("<option value=\"Brindle  7 \">Brindle  7 </option>"));
    EXPECT_THAT(page("index.html"), HasSubstr("<li>Brindle  7 </li>"));
}

TEST_F(SiteCommand, SettingsThatCannotBeUnderstoodLeaveOutTheirPackagesAlone)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    manifest("b", "<package uuid=\"org.b\"/>");
    folder.file("packages/a/.zupackage-check", "no-such-rule=off # why not\n");
    const ProgramResult result = site({packages, "-o", out});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot check " + packages + "/a/manifest.xml: "));
    EXPECT_THAT(page("index.html"), HasSubstr(">org.b</a>"));
    EXPECT_THAT(page("index.html"), Not(HasSubstr(">org.a</a>")));
}

TEST_F(SiteCommand, NamesOfFilesSteerNoTerminal)
{
    manifest("\x1B[31mX", "<package");
    manifest("a", "<package uuid=\"org.a\"/>");
    EXPECT_THAT(site({packages, "-o", out}).errors, HasSubstr("/\xEF\xBF\xBD[31mX/manifest.xml: line 1, column "));
    EXPECT_THAT(site({packages, "--single", "-"}).errors, Not(HasSubstr("\x1B")));
}

TEST_F(SiteCommand, NeedsExactlyOnePlaceForItsOutput)
{
    EXPECT_EQ(site({packages}).exitCode, 2);
    EXPECT_EQ(site({packages, "-o", out, "--single", out}).exitCode, 2);
}

TEST_F(SiteCommand, AFolderWithFilesOfOthersStaysAsItIs)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    fs::create_directory(out);
    test::writeFile(out + "/notes.txt", "mine");
    const ProgramResult result = site({packages, "-o", out});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.errors,
              "zupackage: " + out + " holds \"notes.txt\", which is of no site; choose a folder for the site alone\n");
    EXPECT_EQ(files().size(), 1U);
}

TEST_F(SiteCommand, OutputThatCannotBeWrittenIsAFailureOfOutput)
{
    manifest("a", "<package uuid=\"org.a\"/>");
    EXPECT_EQ(site({packages, "-o", "/dev/null/x"}).exitCode, 5);
    EXPECT_EQ(site({packages, "--single", "/dev/null/x"}).exitCode, 5);
    EXPECT_EQ(site({packages, "--single", "-"}, {{}, "/dev/full", {}}).exitCode, 5);
}

} // namespace zu
