#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/manifests.hpp"

#include <QtXml/QDomDocument>
#include <gmock/gmock.h>

#include <algorithm>

namespace zu {

namespace fs = std::filesystem;

namespace {

class ExamplePackage : public testing::TestWithParam<fs::path>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(package.loadFromManifestFile((GetParam() / "manifest.xml").string()));
        EXPECT_THAT(log.lines(), testing::IsEmpty());
    }

    test::CapturedLog log;
    PackageInfo package;
};

/// Every file or folder that a package's manifest names, but for its web content.
std::vector<std::string> namedPaths(const PackageInfo& package)
{
    std::vector<std::string> paths(package.executableFiles().begin(), package.executableFiles().end());
    for (const BehaviorInfo& behavior : package.behaviors())
        paths.push_back(behavior.path());
    for (const DialogInfo& dialog : package.dialogs())
        for (const auto& [lang, path] : dialog.topics())
            paths.push_back(path);
    for (const LanguageInfo& language : package.languages())
        paths.push_back(language.path());
    for (const PackageService& service : package.services())
        paths.push_back(service.execStart.substr(0, service.execStart.find(' ')));
    return paths;
}

std::vector<std::string> webPaths(const fs::path& manifest)
{
    QDomDocument document;
    EXPECT_TRUE(document.setContent(QByteArray::fromStdString(test::readFile(manifest))));
    std::vector<std::string> paths;
    const QDomNodeList elements = document.elementsByTagName("webContent");
    for (int i = 0; i < elements.size(); ++i)
        paths.push_back(elements.at(i).toElement().attribute("path").toStdString());
    return paths;
}

} // namespace

TEST_P(ExamplePackage, DumpsToItsGoldenText)
{
    test::expectGolden(test::dumpOf(package), GetParam().filename().string() + ".txt");
}

TEST_P(ExamplePackage, HoldsEveryFileThatItsManifestNames)
{
    for (const std::string& path : namedPaths(package))
        EXPECT_TRUE(!path.empty() && fs::exists(GetParam() / path)) << path;
    for (const std::string& path : webPaths(GetParam() / "manifest.xml"))
        EXPECT_TRUE(fs::exists(GetParam() / path)) << path;
}

TEST_P(ExamplePackage, ItsExecutableFilesAreExecutable)
{
    for (const std::string& path : package.executableFiles())
        EXPECT_NE(fs::status(GetParam() / path).permissions() & fs::perms::owner_exec, fs::perms::none) << path;
}

INSTANTIATE_TEST_SUITE_P(All, ExamplePackage, testing::ValuesIn(test::examplePackages()), [](const auto& instance) {
    std::string name = instance.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST(ExamplePackages, ThereAreThree) { EXPECT_EQ(test::examplePackages().size(), 3u); }

} // namespace zu
