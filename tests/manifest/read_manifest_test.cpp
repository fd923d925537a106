#include "support/captured_log.hpp"
#include "support/files.hpp"

#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>

namespace zu {

using test::CapturedLog;
using test::examplePackages;
using test::readFile;
using testing::IsEmpty;

TEST(ReadManifest, ReadsWhatTheFileHolds)
{
    for (const std::filesystem::path& example : examplePackages()) {
        const std::string path = (example / "manifest.xml").string();
        PackageInfo fromFile;
        PackageInfo fromBytes;
        ASSERT_TRUE(fromFile.loadFromManifestFile(path));
        EXPECT_TRUE(readManifest(readFile(path), fromBytes));
        EXPECT_EQ(fromBytes.saveToManifestContent(), fromFile.saveToManifestContent());
    }
}

TEST(ReadManifest, GoesByTheEncodingThatTheDocumentSays)
{
    PackageInfo package;
    EXPECT_TRUE(readManifest("<?xml version='1.0' encoding='ISO-8859-1'?><package author='Zo\xEB'/>", package));
    EXPECT_EQ(package.author(), "Zoë");
}

TEST(ReadManifest, SaysWhyADocumentIsRefusedAndLogsNothing)
{
    const CapturedLog log;
    PackageInfo package;
    package.setUuid("kept");
    ManifestSyntaxError error;
    EXPECT_FALSE(readManifest("<package uuid='new'>\n <names></package>", package, &error));
    EXPECT_EQ(error.message, "tag mismatch");
    EXPECT_EQ(error.line, 2);
    EXPECT_EQ(error.column, 18);
    EXPECT_EQ(package.uuid(), "kept");
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(ReadManifest, NeedsNobodyToTakeTheError)
{
    PackageInfo package;
    EXPECT_FALSE(readManifest("", package));
}

} // namespace zu
