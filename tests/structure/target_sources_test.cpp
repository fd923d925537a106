#include "support/files.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <sstream>

namespace zu {

namespace fs = std::filesystem;

TEST(Structure, EverySourceOnDiskIsInATarget)
{
    std::set<std::string> inTargets;
    std::istringstream lines(test::readFile(TARGET_SOURCES_FILE));
    for (std::string line; std::getline(lines, line);)
        inTargets.insert(line);

    int seen = 0;
    for (const char* folder : {"authoring", "bench", "framework", "fuzz", "src", "cli", "examples", "tests"}) {
        // Not every build has the benchmarks, nor, with an installed host framework, the one in the tree, but for what
        // other tests take from its tests.
        const char* const built = std::strcmp(folder, "framework") == 0 ? "framework/src" : folder;
        const std::string prefix = test::sourcePath(built).string() + '/';
        const auto first = inTargets.lower_bound(prefix);
        if (first == inTargets.end() || first->compare(0, prefix.size(), prefix) != 0)
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(test::sourcePath(folder))) {
            // The consumer is a project of its own.
            if (entry.path().extension() != ".cpp" ||
                entry.path().string().find("/tests/consumer/") != std::string::npos)
                continue;
            ++seen;
            EXPECT_EQ(inTargets.count(entry.path().string()), 1u) << entry.path() << " is in no target";
        }
    }
    EXPECT_GT(seen, 40);
}

} // namespace zu
