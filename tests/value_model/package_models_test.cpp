// Where the two models of a package agree, and each difference between them.
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"

#include <zupackage/package_info2.hpp>

#include <gmock/gmock.h>

namespace zu {

using test::checkProperty;
using test::describe;
using test::manifest;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

namespace {

/// One manifest, read into either model.
struct BothModels
{
    explicit BothModels(const std::string& document)
    {
        const test::TemporaryFolder folder;
        const std::string path = folder.file("manifest.xml", document);
        EXPECT_TRUE(direct.loadFromManifestFile(path)) << document;
        byValue = loadManifest(path);
    }

    PackageInfo direct;
    PackageInfo2 byValue;
};

PackageInfo withoutDescriptionLanguages(PackageInfo package)
{
    package.clearDescriptionLanguages();
    return package;
}

} // namespace

TEST(PackageModels, AgreeOnEveryExamplePackageButForItsDescriptionLanguages)
{
    for (const auto& folder : test::examplePackages()) {
        SCOPED_TRACE(folder);
        const std::string path = (folder / "manifest.xml").string();
        PackageInfo direct;
        ASSERT_TRUE(direct.loadFromManifestFile(path));
        EXPECT_EQ(describe(loadManifest(path)), describe(withoutDescriptionLanguages(direct)));
    }
}

TEST(PackageModels, AgreeOnGeneratedManifestsButForTheirDescriptionLanguages)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    checkProperty(2000, [&path] {
        const PackageInfo package = *test::packages(test::texts());
        RC_ASSERT(package.saveToManifestFile(path));
        PackageInfo direct;
        RC_ASSERT(direct.loadFromManifestFile(path));
        const PackageInfo converted = loadManifest(path);
        RC_ASSERT(describe(converted) == describe(withoutDescriptionLanguages(direct)));
        RC_ASSERT(converted.installOnlyAtStartup() == direct.installOnlyAtStartup());
    });
}

TEST(PackageModelsDifference, DescriptionLanguagesAreReadIntoTheListBasedModelAlone)
{
    const BothModels models(manifest("<descriptionLanguages><language>en</language></descriptionLanguages>"));
    EXPECT_THAT(models.direct.descriptionLanguages(), ElementsAre("en"));
    EXPECT_THAT(models.byValue.elements, IsEmpty());
    EXPECT_THAT(PackageInfo(models.byValue).descriptionLanguages(), IsEmpty());
}

TEST(PackageModelsDifference, ARepeatedSectionAddsToTheListBasedModelAndReplacesInTheOther)
{
    const BothModels models(manifest(
        "<names><name lang='en'>1</name></names><names><name lang='fr'>2</name></names>"
        "<executableFiles><file path='1'/></executableFiles><executableFiles><file path='2'/></executableFiles>"
        "<contents><behaviorContent/></contents><contents><dialogContent/></contents>"));
    EXPECT_THAT(models.direct.names(), ElementsAre(Pair("en", "1"), Pair("fr", "2")));
    EXPECT_THAT(models.direct.executableFiles(), ElementsAre("1", "2"));
    EXPECT_THAT(models.direct.behaviors(), SizeIs(1));
    EXPECT_THAT(models.direct.dialogs(), SizeIs(1));
    const PackageInfo converted = models.byValue;
    EXPECT_THAT(converted.names(), ElementsAre(Pair("fr", "2")));
    EXPECT_THAT(converted.executableFiles(), ElementsAre("2"));
    EXPECT_THAT(converted.behaviors(), IsEmpty());
    EXPECT_THAT(converted.dialogs(), SizeIs(1));
}

TEST(PackageModelsDifference, ARepeatedSupportedLanguageIsThereTwiceUntilItIsConverted)
{
    const BothModels models(manifest("<supportedLanguages><language>en</language><language>fr</language><language>en</"
                                     "language></supportedLanguages>"));
    EXPECT_THAT(models.direct.supportedLanguages(), ElementsAre("en", "fr"));
    EXPECT_THAT(models.byValue.elements.at("supportedLanguages").to<std::vector<std::string>>(),
                ElementsAre("en", "fr", "en"));
    EXPECT_THAT(PackageInfo(models.byValue).supportedLanguages(), ElementsAre("en", "fr"));
}

TEST(PackageModelsDifference, ARepeatedSectionOfSupportedLanguagesReplacesInTheValueModel)
{
    const BothModels models(manifest("<supportedLanguages><language>en</language></supportedLanguages>"
                                     "<supportedLanguages><language>fr</language></supportedLanguages>"));
    EXPECT_THAT(models.direct.supportedLanguages(), ElementsAre("en", "fr"));
    EXPECT_THAT(PackageInfo(models.byValue).supportedLanguages(), ElementsAre("fr"));
}

TEST(PackageModelsDifference, WebContentIsReadIntoTheValueModelAlone)
{
    const BothModels models(manifest("<contents><webContent path='html'/></contents>"));
    EXPECT_EQ(models.byValue.web().path, "html");
    EXPECT_EQ(describe(models.byValue), describe(models.direct));
}

} // namespace zu
