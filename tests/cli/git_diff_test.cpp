#include "cli/wave_manifest.hpp"
#include "support/git_repository.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::GitRepository;
using test::k_waveManifest;
using test::replaced;
using test::withName;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

class GitDiff : public testing::Test
{
protected:
    GitDiff()
    {
        repository.commit(".gitattributes", "manifest.xml diff=zupackage\n");
        repository.commit("manifest.xml", k_waveManifest);
    }

    void configure(const std::string& key, const std::string& words) const
    {
        repository.run({"config", key, "'" ZUPACKAGE_PROGRAM "' " + words});
    }

    GitRepository repository;
};

} // namespace

TEST_F(GitDiff, ShowsManifestsAsTextWhereItComparesLines)
{
    configure("diff.zupackage.textconv", "convert --to json");
    test::writeFile(repository.path("manifest.xml"), withName("fr", "Saluer"));
    EXPECT_THAT(repository.run({"diff"}), HasSubstr("\n+    \"fr\": \"Saluer\"\n"));
    test::writeFile(
        repository.path("manifest.xml"),
        replaced(k_waveManifest, "</package>",
                 "<services><service name='clock' execStart='bin/clock'/></services>"
                 "<requirements><robotRequirement model='M' minHeadVersion='2'/></requirements></package>"));
    EXPECT_THAT(repository.run({"diff"}), AllOf(HasSubstr("\"bin/clock\""), HasSubstr("\"minHeadVersion\": \"2\"")));
    test::writeFile(repository.path("manifest.xml"), replaced(k_waveManifest, "for people", "for all"));
    EXPECT_THAT(repository.run({"diff"}), Not(HasSubstr("@@")));
}

TEST_F(GitDiff, ShowsWhatBecameOfThePackage)
{
    configure("diff.zupackage.command", "diff --git");
    test::writeFile(repository.path("manifest.xml"), withName("fr", "Saluer"));
    EXPECT_EQ(repository.run({"diff"}), "manifest manifest.xml\nadded    names/name[@lang='fr']: \"Saluer\"\n");
    test::writeFile(repository.path("manifest.xml"), replaced(k_waveManifest, "for people", "for all"));
    EXPECT_EQ(repository.run({"diff"}),
              "manifest manifest.xml\nnothing of the package differs, only the text of the manifest\n");
}

TEST_F(GitDiff, ShowsManifestsThatComeGoOrGetAnotherName)
{
    configure("diff.zupackage.command", "diff --git");
    EXPECT_THAT(repository.run({"show", "--ext-diff", "--format="}),
                HasSubstr("manifest manifest.xml (new)\nadded    @uuid: \"u\"\nadded    @version: \"1.0\"\n"));
    std::filesystem::create_directory(repository.path("inner"));
    repository.run({"mv", "manifest.xml", "inner/manifest.xml"});
    EXPECT_THAT(repository.run({"diff", "--cached", "--no-renames"}),
                HasSubstr("manifest manifest.xml (deleted)\nremoved  @uuid: \"u\"\n"));
    test::writeFile(repository.path("inner/manifest.xml"),
                    replaced(k_waveManifest, "version=\"1.0\"", "version=\"1.1\""));
    repository.run({"add", "--all"});
    EXPECT_EQ(repository.run({"diff", "--cached", "--find-renames"}),
              "manifest manifest.xml (now inner/manifest.xml)\nchanged  @version: \"1.0\" -> \"1.1\"\n");
}

TEST_F(GitDiff, GoesOnAfterAManifestThatCannotBeRead)
{
    configure("diff.zupackage.command", "diff --git");
    std::filesystem::create_directory(repository.path("z"));
    repository.commit("z/manifest.xml", k_waveManifest);
    test::writeFile(repository.path("manifest.xml"), "<p>");
    test::writeFile(repository.path("z/manifest.xml"), withName("fr", "Saluer"));
    EXPECT_EQ(repository.run({"diff"}),
              "manifest manifest.xml\n"
              "cannot be read: line 1, column 4: unexpected end of file; git diff --no-ext-diff shows its text\n"
              "manifest z/manifest.xml\nadded    names/name[@lang='fr']: \"Saluer\"\n");
}

} // namespace zu
