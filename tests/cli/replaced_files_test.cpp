#include "support/files.hpp"
#include "support/program.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace zu {

namespace fs = std::filesystem;

namespace {

const std::string k_paddedFlag =
    "<package version='1.0' installOnlyAtStartup=' true '><names><name lang='en'>A</name></names></package>\n";

} // namespace

TEST(ReplacedFiles, KeepTheirModeWhateverCommandWritesThem)
{
    const test::TemporaryFolder folder;
    const std::string source = folder.file("source.xml", "<package version='2.0'/>");
    const std::string file = folder.file("manifest.xml", k_paddedFlag);
    const std::vector<std::string> commands[] = {
        {"set", file, "@version=2.0"},
        {"add", file, "names/name", "@lang=fr", ".=B"},
        {"remove", file, "names/name"},
        {"format", file},
        {"check", "--fix", file},
        {"merge", file, file, source, "-o", file},
        {"convert", "--to", "json", source, "-o", file},
    };
    std::vector<mode_t> modes = {0600, 0640};
    if (geteuid() == 0)
        modes.insert(modes.end(), {0444, 0440});
    for (const mode_t mode : modes) {
        for (const std::vector<std::string>& command : commands) {
            test::writeFile(file, k_paddedFlag);
            ASSERT_EQ(chmod(file.c_str(), mode), 0);
            test::runProgram(ZUPACKAGE_PROGRAM, command);
            EXPECT_NE(test::readFile(file), k_paddedFlag) << command.front();
            EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(mode)) << command.front();
            ASSERT_EQ(chmod(file.c_str(), 0600), 0);
        }
    }
}

} // namespace zu
