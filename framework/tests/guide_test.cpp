#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The lines of a file without the blanks that they start with: the guide sets its code further to the left.
std::vector<std::string> linesOf(const fs::path& file)
{
    std::ifstream stream(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line.substr(std::min(line.size(), line.find_first_not_of(' '))));
    return lines;
}

} // namespace

TEST(Guide, ShowsTheCodeOfTheExamplesThatAreCompiled)
{
    const std::string opening = "<!-- from framework/examples/";
    const std::vector<std::string> page = linesOf(fs::path(ZU_GUIDE) / "type-system.md");
    int blocks = 0;
    for (auto line = page.begin(); line != page.end(); ++line) {
        if (*line != "```cpp")
            continue;
        ASSERT_NE(line, page.begin());
        const std::string& source = line[-1];
        ASSERT_EQ(source.compare(0, opening.size(), opening), 0) << "a block of code without its source";
        const std::string name = source.substr(opening.size(), source.find(' ', opening.size()) - opening.size());
        const std::vector<std::string> example = linesOf(fs::path(ZU_EXAMPLES) / name);
        ASSERT_FALSE(example.empty()) << name;
        const auto end = std::find(line, page.end(), "```");
        EXPECT_NE(std::search(example.begin(), example.end(), line + 1, end), example.end())
            << name << " does not hold the block that starts with: " << line[1];
        ++blocks;
    }
    EXPECT_GT(blocks, 0);
}
