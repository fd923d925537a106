#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/manifests.hpp"

#include <QtCore/QFile>
#include <gmock/gmock.h>

namespace zu {

using log::Level;
using test::CapturedLog;
using test::LogLine;
using test::manifest;
using test::packageFrom;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

constexpr char k_contentFunction[] = "zu::PackageInfo::loadFromManifestContent";
constexpr char k_fileFunction[] = "zu::PackageInfo::loadFromManifestFile";
constexpr char k_malformed[] = "<package>\n  <names></package>";
constexpr char k_parserWords[] = " at line 2, column 19: tag mismatch";

/// The one record that a refused manifest leaves.
LogLine error(const char* function, const std::string& message)
{
    return {Level::Error, "zupackage", "src/package_info", function, message};
}

/// Has something in every kind of field.
PackageInfo filled()
{
    return packageFrom(
        manifest("<names><name lang='en'>n</name></names><contents><behaviorContent path='b'/></contents>",
                 "uuid='u' installOnlyAtStartup='1'"));
}

void expectFilled(const PackageInfo& package) { EXPECT_EQ(test::dumpOf(package), test::dumpOf(filled())); }

} // namespace

TEST(PackageReaderFailure, MalformedTextLeavesTheObjectAndIsQuotedWhole)
{
    const CapturedLog log;
    PackageInfo package = filled();
    EXPECT_FALSE(package.loadFromManifestContent(k_malformed));
    expectFilled(package);
    EXPECT_THAT(log.lines(),
                ElementsAre(error(k_contentFunction, std::string("Syntax error in ") + k_malformed + k_parserWords)));
}

TEST(PackageReaderFailure, AMalformedFileLeavesTheObjectAndIsNamed)
{
    const CapturedLog log;
    const test::TemporaryFolder folder;
    const std::string path = folder.file("bäd.xml", k_malformed);
    PackageInfo package = filled();
    EXPECT_FALSE(package.loadFromManifestFile(path));
    QFile file(QString::fromStdString(path));
    EXPECT_FALSE(package.loadFromManifestFile(file));
    EXPECT_FALSE(file.isOpen());
    expectFilled(package);
    const LogLine expected = error(k_fileFunction, "Syntax error in " + path + k_parserWords);
    EXPECT_THAT(log.lines(), ElementsAre(expected, expected));
}

TEST(PackageReaderFailure, EmptyTextAndAnEmptyFileAreMalformed)
{
    const CapturedLog log;
    const test::TemporaryFolder folder;
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestContent(""));
    EXPECT_FALSE(package.loadFromManifestFile(folder.file("empty.xml", "")));
    EXPECT_THAT(log.lines(), SizeIs(2));
}

TEST(PackageReaderFailure, AnAbsentFileIsOneOpenFailure)
{
    const CapturedLog log;
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "absent.xml").string();
    PackageInfo package = filled();
    EXPECT_FALSE(package.loadFromManifestFile(path));
    expectFilled(package);
    EXPECT_THAT(log.lines(), ElementsAre(error(k_fileFunction, "Could not open " + path + " for reading")));
}

TEST(PackageReaderFailure, AFolderOrAnEmptyPathCannotBeOpened)
{
    const CapturedLog log;
    const test::TemporaryFolder folder;
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestFile(folder.path().string()));
    EXPECT_FALSE(package.loadFromManifestFile(std::string()));
    EXPECT_THAT(log.lines(),
                ElementsAre(error(k_fileFunction, "Could not open " + folder.path().string() + " for reading"),
                            error(k_fileFunction, "Could not open  for reading")));
}

TEST(PackageReaderFailure, AnOpenFileCannotBeOpenedAgain)
{
    const CapturedLog log;
    const test::TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", "<package uuid='u'/>");
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestFile(file));
    EXPECT_TRUE(file.isOpen());
    EXPECT_THAT(log.lines(), ElementsAre(error(k_fileFunction, "Could not open " + path + " for reading")));
}

TEST(PackageReaderFile, IsReadAndClosed)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", "<package uuid='u'/>");
    PackageInfo package;
    EXPECT_TRUE(package.loadFromManifestFile(path));
    EXPECT_EQ(package.uuid(), "u");
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(package.loadFromManifestFile(file));
    EXPECT_FALSE(file.isOpen());
}

} // namespace zu
