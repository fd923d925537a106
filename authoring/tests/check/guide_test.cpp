#include "support/files.hpp"

#include <zupackage/authoring/rule.hpp>

#include <gtest/gtest.h>

#include <cstdlib>

namespace zu::authoring {

namespace {

const char* nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Info:
        return "info";
    case Severity::Pedantic:
        return "pedantic";
    }
    return "";
}

std::string tableOfRules()
{
    std::string table = "| rule | severity | finds |\n|---|---|---|\n";
    for (const Rule& rule : rules())
        table.append("| `")
            .append(rule.id)
            .append("` | ")
            .append(nameOf(rule.severity))
            .append(" | ")
            .append(rule.summary)
            .append(" |\n");
    return table;
}

} // namespace

// With ZU_UPDATE_GOLDEN in the environment the table is written anew.
TEST(Guide, ListsAllRules)
{
    const std::string begin = "<!-- rules -->\n";
    const std::filesystem::path path = test::sourcePath("docs/guide/checking.md");
    const std::string guide = test::readFile(path);
    const std::size_t first = guide.find(begin) + begin.size();
    const std::size_t last = guide.find("<!-- end of rules -->");
    ASSERT_LT(first, last);
    if (std::getenv("ZU_UPDATE_GOLDEN")) {
        test::writeFile(path, std::string(guide).replace(first, last - first, tableOfRules()));
        return;
    }
    EXPECT_EQ(guide.substr(first, last - first), tableOfRules());
}

} // namespace zu::authoring
