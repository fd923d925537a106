// What GNU patch makes of the differences that the program shows.
#include "support/files.hpp"
#include "support/program.hpp"
#include "support/texts.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace zu {

namespace {

const std::string k_manifestInLines =
    "<package uuid='a' version='1.0'>\n<names>\n<name lang='en'>A</name>\n</names>\n</package>";

/// Puts a manifest into a folder of its own and the difference that a command shows through `patch`.
class PatchedManifest
{
public:
    PatchedManifest(std::string name, const std::string& bytes)
        : m_name(std::move(name)), m_path(m_folder.path() / m_name)
    {
        std::filesystem::create_directories(m_path.parent_path());
        test::writeFile(m_path, bytes);
    }

    /// @param command with the name of the manifest as "$2", and the program as "$1".
    std::string after(const std::string& command) const
    {
        const std::string script = "cd \"$0\" && " + command + " >difference; patch --silent -p0 <difference";
        const test::ProgramResult result =
            test::runProgram("/bin/sh", {"-c", script, m_folder.path().string(), ZUPACKAGE_PROGRAM, m_name});
        EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
        return test::readFile(m_path);
    }

private:
    test::TemporaryFolder m_folder;
    std::string m_name;
    std::filesystem::path m_path;
};

} // namespace

TEST(Patch, TakesADryRunOfFilesWhateverTheirNames)
{
    for (const char* name :
         {"manifest.xml", "./manifest.xml", "my package/manifest.xml", " blank .xml", "two\nlines.xml", "quo\"te.xml",
          "tab\tbed.xml", "back\\slash.xml", "it's.xml", "\xc3\xa9t\xc3\xa9.xml"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(PatchedManifest(name, k_manifestInLines).after("\"$1\" set \"$2\" @version=2.0 --dry-run"),
                  test::replaced(k_manifestInLines, "1.0", "2.0"));
    }
}

TEST(Patch, TakesADryRunOfDocumentsInEncodingsWithLines)
{
    const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?>\n<p author='\xe9'\nversion='1.0'/>\n";
    const std::string marked = "\xef\xbb\xbf<p author='\xc3\xa9'\r\nversion='1.0'/>\r\n";
    for (const std::string& manifest : {latin, marked})
        EXPECT_EQ(PatchedManifest("manifest.xml", manifest).after("\"$1\" set \"$2\" @version=2.0 --dry-run"),
                  test::replaced(manifest, "1.0'/", "2.0'/"));
}

TEST(Patch, TakesWhatFormattingWouldChange)
{
    EXPECT_EQ(PatchedManifest("my package/manifest.xml", k_manifestInLines).after("\"$1\" format --diff \"$2\""),
              "<package uuid='a' version='1.0'>\n  <names>\n    <name lang='en'>A</name>\n  </names>\n</package>\n");
}

} // namespace zu
