#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/whole_package.hpp"

#include <QtCore/QFile>
#include <QtCore/QTextCodec>
#include <gmock/gmock.h>

namespace zu {

using test::written;

TEST(PackageWriter, OfADefaultPackageHasOneFlagAndEmptyContents)
{
    EXPECT_EQ(written(PackageInfo()), "<?xml version='1.0' encoding='UTF-8'?>\n"
                                      "<package installOnlyAtStartup=\"false\">\n"
                                      " <contents/>\n"
                                      "</package>\n");
}

TEST(PackageWriter, ElementsAndAttributesStandInTheirFixedOrder)
{
    test::expectGolden(written(test::wholePackage()), "whole_package.xml");
}

TEST(PackageWriter, TheFileIsIndentedByTwoBlanksAndTheTextByOne)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    ASSERT_TRUE(test::wholePackage().saveToManifestFile(path));
    test::expectGolden(test::readFile(path), "whole_package_file.xml");
}

TEST(PackageWriter, RootAttributesAreWrittenUnlessEmpty)
{
    for (const char* attribute : {"uuid", "version", "author", "organization", "date", "typeVersion", "channel"}) {
        const PackageInfo package = test::packageFrom("<package " + std::string(attribute) + "='x'/>");
        const std::string document = written(package);
        std::string root =
            document.substr(document.find("<package"), document.find(" <contents") - document.find("<package"));
        const std::string expected = std::string(" ") + attribute + "=\"x\"";
        ASSERT_NE(root.find(expected), std::string::npos) << root;
        EXPECT_EQ(root.erase(root.find(expected), expected.size()), "<package installOnlyAtStartup=\"false\">\n");
    }
    PackageInfo package;
    package.setInstallOnlyAtStartup(true);
    EXPECT_THAT(written(package), testing::HasSubstr("<package installOnlyAtStartup=\"true\">"));
}

TEST(PackageWriter, RequirementsAreWrittenWhenThereIsOneOfEitherKind)
{
    PackageInfo robot;
    robot.addRobotRequirement({});
    EXPECT_THAT(written(robot), testing::HasSubstr("<requirements>\n  <robotRequirement/>\n </requirements>"));
    PackageInfo morvo;
    morvo.addMorvoRequirement({});
    EXPECT_THAT(written(morvo), testing::HasSubstr("<requirements>\n  <morvoRequirement/>\n </requirements>"));
    EXPECT_THAT(written(PackageInfo()), testing::Not(testing::HasSubstr("requirements")));
}

TEST(PackageWriter, EveryAttributeOfRequirementsAndServicesIsWritten)
{
    PackageInfo package;
    package.addRobotRequirement({"a", "b", "c", "d", "e"});
    package.addMorvoRequirement({"f", "g"});
    package.addService({"h", "i", true, {{"j", "k"}}});
    EXPECT_EQ(test::describe(test::packageFrom(written(package))), test::describe(package));
}

TEST(PackageWriter, WritingChangesNothing)
{
    PackageInfo package = test::wholePackage();
    const std::string before = test::describe(package);
    package.saveToManifestContent();
    EXPECT_EQ(test::describe(package), before);
}

TEST(PackageWriterFile, ThatCannotBeOpenedIsFalseWithoutARecord)
{
    const test::CapturedLog log;
    const test::TemporaryFolder folder;
    EXPECT_FALSE(PackageInfo().saveToManifestFile((folder.path() / "absent/manifest.xml").string()));
    EXPECT_FALSE(PackageInfo().saveToManifestFile(folder.path().string()));
    QFile open(QString::fromStdString((folder.path() / "open.xml").string()));
    ASSERT_TRUE(open.open(QIODevice::WriteOnly));
    EXPECT_FALSE(PackageInfo().saveToManifestFile(open));
    EXPECT_THAT(log.lines(), testing::IsEmpty());
}

TEST(PackageWriterFile, ReplacesWhatIsThereAndIsClosed)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", std::string(10'000, 'x'));
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(PackageInfo().saveToManifestFile(file));
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(test::readFile(path), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<package installOnlyAtStartup=\"false\">\n"
                                    "  <contents/>\n"
                                    "</package>\n");
}

TEST(PackageWriterFile, AFullDiskIsNotNoticed)
{
    EXPECT_TRUE(test::wholePackage().saveToManifestFile(std::string("/dev/full")));
}

TEST(PackageWriterFile, IsUtf8WhateverTheLocale)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    PackageInfo package;
    package.setName("\xc3\xa9\xe6\x97\xa5\xf0\x9f\xa4\x96", "en");
    QTextCodec* before = QTextCodec::codecForLocale();
    for (const char* codec : {"ISO-8859-1", "US-ASCII"}) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(package.saveToManifestFile(file));
        QTextCodec::setCodecForLocale(before);
        EXPECT_THAT(test::readFile(path), testing::HasSubstr("encoding=\"UTF-8\"")) << codec;
        EXPECT_THAT(test::readFile(path), testing::HasSubstr(">\xc3\xa9\xe6\x97\xa5\xf0\x9f\xa4\x96</name>")) << codec;
    }
}

} // namespace zu
