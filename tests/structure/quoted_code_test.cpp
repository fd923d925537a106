#include "support/files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>

namespace zu {

namespace fs = std::filesystem;

namespace {

/// A fenced block of code in a page, with the file that the comment before it names (empty when there is none).
struct Quotation
{
    std::string file;
    std::string code;
};

/// Code may stand further to the left in a page; what a program prints may not.
bool isCode(const std::string& file)
{
    const fs::path path = file;
    return path.extension() == ".cpp" || path.filename() == "CMakeLists.txt";
}

/// Without the blanks that its lines start with.
std::string unindented(const std::string& text)
{
    std::string result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        result += line.substr(std::min(line.size(), line.find_first_not_of(' '))) + '\n';
    return result;
}

std::vector<Quotation> quotationsOf(const std::string& page)
{
    constexpr std::string_view k_marker = "<!-- quoted from ";
    std::vector<Quotation> quotations;
    std::string file;
    std::optional<std::string> code;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (code && line == "```") {
            quotations.push_back({file, *code});
            code.reset();
            file.clear();
        } else if (code) {
            *code += line + '\n';
        } else if (line.compare(0, 3, "```") == 0) {
            code.emplace();
        } else if (line.compare(0, k_marker.size(), k_marker) == 0) {
            file = line.substr(k_marker.size(), line.find(" -->") - k_marker.size());
        }
    }
    return quotations;
}

std::vector<fs::path> pages()
{
    std::vector<fs::path> result = {test::sourcePath("README.md")};
    if (fs::exists(test::sourcePath("docs/guide")))
        for (const auto& entry : fs::directory_iterator(test::sourcePath("docs/guide")))
            result.push_back(entry.path());
    return result;
}

} // namespace

TEST(Structure, QuotedCodeStandsInTheFileThatItNames)
{
    int quotations = 0;
    for (const fs::path& page : pages())
        for (const Quotation& quotation : quotationsOf(test::readFile(page))) {
            SCOPED_TRACE(page.string() + ":\n" + quotation.code);
            ASSERT_NE(quotation.file, "") << "no comment before the block names its file";
            const std::string source = test::readFile(test::sourcePath(quotation.file));
            const bool stands = isCode(quotation.file)
                                    ? unindented(source).find(unindented(quotation.code)) != std::string::npos
                                    : ("\n" + source).find("\n" + quotation.code) != std::string::npos;
            EXPECT_TRUE(stands) << "not in " << quotation.file;
            ++quotations;
        }
    EXPECT_GT(quotations, 0);
}

TEST(Structure, TheGuideLeadsToEveryPageOfIt)
{
    const std::string index = test::readFile(test::sourcePath("docs/guide/README.md"));
    for (const fs::path& page : pages()) {
        if (page.extension() == ".md" && page.filename() != "README.md") {
            EXPECT_NE(index.find("](" + page.filename().string() + ")"), std::string::npos) << page;
        }
    }
}

} // namespace zu
