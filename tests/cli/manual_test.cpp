#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <sstream>

namespace zu {

namespace fs = std::filesystem;
using test::zupackage;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const fs::path k_manual = ZUPACKAGE_MANUAL_FOLDER;

std::vector<fs::path> manPages()
{
    std::vector<fs::path> pages;
    for (const auto& entry : fs::recursive_directory_iterator(k_manual / "man"))
        if (entry.is_regular_file())
            pages.push_back(entry.path());
    return pages;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

std::vector<std::string> commands()
{
    std::vector<std::string> names;
    for (const fs::path& page : manPages()) {
        std::smatch match;
        const std::string name = page.filename().string();
        if (std::regex_match(name, match, std::regex("zupackage-(.*)\\.1")))
            names.push_back(match[1]);
    }
    return names;
}

struct Shell
{
    std::string program;
    std::vector<std::string> options;
    std::string script; ///< in tests/cli/completion/
    std::string completion;
};

const Shell k_shells[] = {
    {"/bin/bash", {"--norc"}, "offers.bash", "bash-completion/completions/zupackage"},
    {"/usr/bin/fish", {"--no-config"}, "offers.fish", "fish/vendor_completions.d/zupackage.fish"},
    {"/usr/bin/zsh", {"-f"}, "offers.zsh", "zsh/site-functions/_zupackage"},
};

class Completion : public testing::TestWithParam<Shell>
{
protected:
    void SetUp() override
    {
        if (!fs::exists(GetParam().program))
            GTEST_SKIP() << GetParam().program << " is not installed";
    }

    /// What the shell offers for the last of the words.
    std::vector<std::string> offers(const std::vector<std::string>& words) const
    {
        std::vector<std::string> arguments = GetParam().options;
        arguments.push_back(test::sourcePath("tests/cli/completion/" + GetParam().script).string());
        arguments.push_back((k_manual / GetParam().completion).string());
        arguments.insert(arguments.end(), words.begin(), words.end());
        return linesOf(test::runProgram(GetParam().program, arguments).output);
    }
};

} // namespace

TEST(Manual, HelpOfACommandIsWhatItsOptionShows)
{
    ASSERT_THAT(commands(), Contains("show"));
    for (const std::string& command : commands()) {
        const test::ProgramResult help = zupackage({"help", command});
        EXPECT_EQ(help.exitCode, 0) << command;
        EXPECT_EQ(help.output, zupackage({command, "--help"}).output);
    }
    EXPECT_EQ(zupackage({"help"}).output, zupackage({"--help"}).output);
}

TEST(Manual, HelpOfWhatIsNoCommandIsWrongUsage)
{
    const test::ProgramResult result = zupackage({"help", "unknown"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(result.errors, HasSubstr("unknown"));
}

TEST(Manual, EveryCommandShowsExamplesOfItself)
{
    for (const std::string& command : commands()) {
        EXPECT_THAT(zupackage({command, "--help"}).output, HasSubstr("\nExamples:\n")) << command;
        EXPECT_THAT(test::readFile(k_manual / "man/man1" / ("zupackage-" + command + ".1")),
                    HasSubstr("zupackage " + command))
            << command;
    }
}

TEST(Manual, PagesAreCleanForTheirFormatter)
{
    constexpr char k_formatter[] = "/usr/bin/mandoc";
    if (!fs::exists(k_formatter))
        GTEST_SKIP() << k_formatter << " is not installed";
    for (const fs::path& page : manPages()) {
        // The date is that of the release, which a build does not know.
        for (const std::string& line :
             linesOf(test::runProgram(k_formatter, {"-T", "lint", "-W", "warning", page.string()}).output))
            EXPECT_THAT(line, HasSubstr("missing date"));
    }
}

TEST(Manual, PagesCallAnArgumentByItsName)
{
    EXPECT_THAT(test::readFile(k_manual / "man/man1/zupackage-help.1"),
                HasSubstr(".SH ARGUMENTS\n.TP\n\\fICOMMAND\\fR\n"));
}

// With ZU_UPDATE_GOLDEN in the environment the page is written anew.
TEST(Manual, ReferenceOfManifestsIsThatOfTheVocabulary)
{
    const fs::path page = test::sourcePath("docs/manifest.md");
    const std::string reference = test::readFile(k_manual / "manifest.md");
    if (std::getenv("ZU_UPDATE_GOLDEN"))
        test::writeFile(page, reference);
    EXPECT_EQ(test::readFile(page), reference);
}

TEST_P(Completion, OffersCommands) { EXPECT_THAT(offers({"sh"}), ElementsAre("show")); }

TEST_P(Completion, OffersTheOptionsOfTheCommand)
{
    EXPECT_THAT(offers({"check", "--col"}), ElementsAre("--color"));
    EXPECT_THAT(offers({"show", "--col"}), Not(Contains("--color")));
}

TEST_P(Completion, OffersTheValuesOfAnOption)
{
    EXPECT_THAT(offers({"check", "--format", "j"}), ElementsAre("json", "junit"));
}

// fish offers the whole word, the others what follows the sign.
TEST_P(Completion, OffersTheValuesOfAnOptionBehindAnEqualsSign)
{
    EXPECT_THAT(offers({"check", "--format=j"}), ElementsAre(EndsWith("json"), EndsWith("junit")));
}

TEST_P(Completion, OffersTheCommandsThatHelpExplains) { EXPECT_THAT(offers({"help", "sh"}), ElementsAre("show")); }

INSTANTIATE_TEST_SUITE_P(Shells, Completion, testing::ValuesIn(k_shells),
                         [](const auto& shell) { return fs::path(shell.param.program).filename().string(); });

} // namespace zu
