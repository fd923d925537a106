#include "cli/wave_manifest.hpp"
#include "support/git_repository.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::GitRepository;
using test::k_waveManifest;
using test::ProgramResult;
using test::replaced;
using test::withName;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class GitMerge : public testing::Test
{
protected:
    GitMerge()
    {
        repository.commit(".gitattributes", "manifest.xml merge=zupackage\n");
        repository.commit("manifest.xml", k_waveManifest);
        repository.run({"config", "merge.zupackage.driver",
                        "'" ZUPACKAGE_PROGRAM "' merge %O %A %B -o %A --marker-size %L --name=%P"});
        repository.run({"config", "merge.zupackage.recursive", "binary"});
        repository.run({"branch", "theirs"});
    }

    /// Merges two branches that begin with the manifest.
    ProgramResult merge(const std::string& ours, const std::string& theirs) const
    {
        repository.commit("manifest.xml", ours);
        repository.run({"checkout", "--quiet", "theirs"});
        repository.commit("manifest.xml", theirs);
        repository.run({"checkout", "--quiet", "main"});
        return repository.git({"merge", "--quiet", "--no-edit", "theirs"});
    }

    /// Lets both branches change the name, and each take the other's change in and settle on a name of its own: then
    /// they have two bases.
    void cross() const
    {
        const auto named = [](const std::string& name) { return replaced(k_waveManifest, "Wave", name); };
        repository.commit("manifest.xml", named("Hello"));
        repository.run({"branch", "hello"});
        repository.run({"checkout", "--quiet", "theirs"});
        repository.commit("manifest.xml", named("Hi"));
        repository.git({"merge", "--quiet", "--no-edit", "hello"});
        repository.commit("manifest.xml", named("Hi there"));
        repository.run({"checkout", "--quiet", "main"});
        repository.git({"merge", "--quiet", "--no-edit", "theirs~1"});
        repository.commit("manifest.xml", named("Hello there"));
    }

    std::string content() const { return test::readFile(repository.path("manifest.xml")); }

    GitRepository repository;
};

} // namespace

TEST_F(GitMerge, BranchesThatAddLanguagesMeetWithoutAConflict)
{
    const ProgramResult result = merge(withName("fr", "Saluer"), withName("ja", "手をふる"));
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(content(),
              replaced(withName("fr", "Saluer"), "  </names>", "    <name lang=\"ja\">手をふる</name>\n  </names>"));
}

TEST_F(GitMerge, ATextThatBothChangedIsLeftWithMarks)
{
    const ProgramResult result =
        merge(replaced(k_waveManifest, "Wave", "Wave hello"), replaced(k_waveManifest, "Wave", "Hi"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: manifest.xml: both sides changed names/name[@lang='en']\n"));
    EXPECT_EQ(content(), replaced(k_waveManifest, "    <name lang=\"en\">Wave</name>\n",
                                  "<<<<<<< ours\n    <name lang=\"en\">Wave hello</name>\n"
                                  "=======\n    <name lang=\"en\">Hi</name>\n>>>>>>> theirs\n"));
    EXPECT_EQ(repository.run({"diff", "--name-only", "--diff-filter=U"}), "manifest.xml\n");
}

TEST_F(GitMerge, ManifestsThatBothAddedAreMerged)
{
    std::filesystem::create_directory(repository.path("new"));
    const auto commitNew = [this](const std::string& manifest) { repository.commit("new/manifest.xml", manifest); };
    commitNew(withName("fr", "Saluer"));
    repository.run({"checkout", "--quiet", "theirs"});
    std::filesystem::create_directory(repository.path("new"));
    commitNew(withName("ja", "手をふる"));
    repository.run({"checkout", "--quiet", "main"});
    const ProgramResult result = repository.git({"merge", "--quiet", "--no-edit", "theirs"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_THAT(test::readFile(repository.path("new/manifest.xml")), HasSubstr("Saluer"));
    EXPECT_THAT(test::readFile(repository.path("new/manifest.xml")), HasSubstr("手をふる"));
}

TEST_F(GitMerge, BranchesThatCrossedMeetWithMarksForTheirConflictAlone)
{
    cross();
    ASSERT_EQ(repository.run({"merge-base", "--all", "main", "theirs"}).size(), 2U * 41);
    const auto withNames = [](const std::string& name, const std::string& lines) {
        return replaced(replaced(k_waveManifest, "Wave", name), "  </names>", lines + "  </names>");
    };
    const std::string french = "    <name lang=\"fr\">Saluer</name>\n";
    const std::string japanese = "    <name lang=\"ja\">手をふる</name>\n";
    EXPECT_EQ(merge(withNames("Hello there", french), withNames("Hi there", japanese)).exitCode, 1);
    EXPECT_EQ(content(), replaced(withNames("Wave", french + japanese), "    <name lang=\"en\">Wave</name>\n",
                                  "<<<<<<< ours\n    <name lang=\"en\">Hello there</name>\n"
                                  "=======\n    <name lang=\"en\">Hi there</name>\n>>>>>>> theirs\n"));
}

TEST_F(GitMerge, NothingIsLostWhereTheBaseOfBranchesThatCrossedHasMarks)
{
    repository.run({"config", "--unset", "merge.zupackage.recursive"});
    cross();
    const ProgramResult result = repository.git({"merge", "--quiet", "--no-edit", "theirs"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read manifest.xml (base): "));
    EXPECT_THAT(content(), HasSubstr("<<<<<<< ours\n"));
    EXPECT_THAT(content(), HasSubstr("Hello there"));
    EXPECT_THAT(content(), HasSubstr("Hi there"));
}

TEST_F(GitMerge, CommentsOfBothBranchesMeet)
{
    const std::string comment = "  <!-- for robots -->\n</package>";
    const std::string ours =
        replaced(k_waveManifest, "    <name lang=\"en\">Wave", "    <!-- short -->\n    <name lang=\"en\">Hello");
    EXPECT_EQ(merge(ours, replaced(k_waveManifest, "</package>", comment)).exitCode, 0);
    EXPECT_EQ(content(), replaced(ours, "</package>", comment));
}

TEST_F(GitMerge, WhatCannotBeReadIsLeftAsOurs)
{
    const std::string ours = withName("fr", "Saluer");
    const ProgramResult result = merge(ours, "<package>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read manifest.xml (theirs): line 1, "));
    EXPECT_EQ(content(), ours);
}

} // namespace zu
