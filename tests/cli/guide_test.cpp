// What the guide shows of the program: it quotes these golden texts.
#include "cli/wave_manifest.hpp"
#include "support/files.hpp"
#include "support/program.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace zu {

using test::k_waveManifest;
using test::replaced;

namespace {

/// Runs the program in a folder, so that the paths in what it prints are short.
test::ProgramResult zupackageIn(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                                const test::ProgramSetting& setting = {})
{
    std::vector<std::string> command = {"-c", "cd \"$1\" && shift && exec \"$@\"", "sh", folder.string(),
                                        ZUPACKAGE_PROGRAM};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return test::runProgram("/bin/sh", command, setting);
}

} // namespace

TEST(Guide, ShowsTheLanguagesOfAnExample)
{
    const auto examples = test::sourcePath("examples/packages");
    test::expectGolden(zupackageIn(examples / "story-teller", {"languages"}).output, "guide/languages.txt");
}

TEST(Guide, ShowsFindingsAndHowTheyAreMended)
{
    const test::TemporaryFolder folder;
    const std::string manifest = "wave-hello/manifest.xml";
    const std::string french = "<!-- French: ask Odile -->";
    zupackageIn(folder.path(), {"new", "wave-hello", "--kind", "behavior", "--language", "en", "--language", "fr"});
    const auto set = zupackageIn(folder.path(), {"set", "wave-hello", "@author=Kerstin",
                                                 "names/name[@lang='en']=Wave hello", "names/name[@lang='fr']=Saluer"});
    EXPECT_EQ(set.exitCode, 0) << set.errors;
    folder.file(manifest, replaced(test::readFile(folder.path() / manifest),
                                   "  <description lang=\"en\">wave-hello</description>\n"
                                   "  <description lang=\"fr\">wave-hello</description>\n",
                                   "  " + french +
                                       "\n  <description lang=\"en\">Waves when somebody says hello.</description>\n"));
    const test::ProgramResult check = zupackageIn(folder.path(), {"check", "wave-hello"});
    test::expectGolden(check.output + check.errors, "guide/findings.txt");
    folder.file(manifest, replaced(test::readFile(folder.path() / manifest), french,
                                   "<description lang=\"fr\">Fait signe quand on dit bonjour.</description>"));
    const test::ProgramResult mended = zupackageIn(folder.path(), {"check", "--fail-on", "pedantic", "wave-hello"});
    EXPECT_EQ(mended.exitCode, 0);
    EXPECT_EQ(mended.output + mended.errors, "no findings in 1 manifest\n");
}

TEST(Guide, ShowsTheDifferenceOfTwoVersions)
{
    const std::string before = test::readFile(test::sourcePath("examples/packages/story-teller/manifest.xml"));
    std::string after = replaced(before, "version=\"2.1.0\"", "version=\"2.2.0\"");
    after = replaced(after, "It's story time", "Story time!");
    after = replaced(after, "</names>", "<name lang=\"es\">La hora del cuento</name></names>");
    const auto place = [&after](const std::string& text) {
        return after.begin() + static_cast<std::ptrdiff_t>(after.find(text));
    };
    std::rotate(place("<dialogContent topicName=\"story_choice\""), place("<dialogContent topicName=\"story_chat\""),
                place("</contents>"));
    const test::TemporaryFolder folder;
    folder.file("story-teller-2.1", before);
    folder.file("story-teller-2.2", after);
    test::expectGolden(zupackageIn(folder.path(), {"diff", "story-teller-2.1", "story-teller-2.2"}).output,
                       "guide/difference.txt");
}

TEST(Guide, ShowsHowJsonIsRefused)
{
    const test::TemporaryFolder folder;
    const auto refused =
        zupackageIn(folder.path(), {"convert", "--to", "xml", "-"}, {R"({"format_version": 1, "name": {}})", {}, {}});
    test::expectGolden(refused.errors, "guide/refused_json.txt");
}

TEST(Guide, ShowsAConflict)
{
    const test::TemporaryFolder folder;
    folder.file("base.xml", k_waveManifest);
    folder.file("ours.xml", replaced(k_waveManifest, "Wave", "Wave hello"));
    folder.file("theirs.xml", replaced(k_waveManifest, "Wave", "Hi"));
    const auto merge = zupackageIn(folder.path(), {"merge", "base.xml", "ours.xml", "theirs.xml"});
    test::expectGolden(merge.output, "guide/conflict.xml");
}

TEST(Guide, ShowsHowANewManifestNamesItsSchema)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(zupackageIn(folder.path(), {"new", "--schema", "hello"}).exitCode, 0);
    const std::string manifest = test::readFile(folder.path() / "hello/manifest.xml");
    test::expectGolden(manifest.substr(0, manifest.find("<package")), "guide/schema.xml");
}

} // namespace zu
