#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

TEST(PackageInfo, StartsEmpty)
{
    const PackageInfo package;
    for (const std::string& text :
         {package.uuid(), package.version(), package.author(), package.channel(), package.organization(),
          package.date(), package.typeVersion(), package.installer(), package.path()})
        EXPECT_EQ(text, "");
    EXPECT_FALSE(package.installOnlyAtStartup());
    EXPECT_THAT(package.names(), IsEmpty());
    EXPECT_THAT(package.descriptions(), IsEmpty());
    EXPECT_THAT(package.supportedLanguages(), IsEmpty());
    EXPECT_THAT(package.descriptionLanguages(), IsEmpty());
    EXPECT_THAT(package.behaviors(), IsEmpty());
    EXPECT_THAT(package.dialogs(), IsEmpty());
    EXPECT_THAT(package.languages(), IsEmpty());
    EXPECT_THAT(package.robotRequirements(), IsEmpty());
    EXPECT_THAT(package.morvoRequirements(), IsEmpty());
    EXPECT_THAT(package.services(), IsEmpty());
    EXPECT_THAT(package.executableFiles(), IsEmpty());
}

TEST(PackageInfo, EachSetterSetsItsOwnField)
{
    PackageInfo package;
    package.setUuid("uuid");
    package.setVersion("version");
    package.setAuthor("author");
    package.setChannel("channel");
    package.setOrganization("organization");
    package.setDate("date");
    package.setTypeVersion("typeVersion");
    package.setInstaller("installer");
    package.setPath("path");
    package.setInstallOnlyAtStartup(true);
    EXPECT_EQ(package.uuid(), "uuid");
    EXPECT_EQ(package.version(), "version");
    EXPECT_EQ(package.author(), "author");
    EXPECT_EQ(package.channel(), "channel");
    EXPECT_EQ(package.organization(), "organization");
    EXPECT_EQ(package.date(), "date");
    EXPECT_EQ(package.typeVersion(), "typeVersion");
    EXPECT_EQ(package.installer(), "installer");
    EXPECT_EQ(package.path(), "path");
    EXPECT_TRUE(package.installOnlyAtStartup());
    package.setUuid(package.uuid());
    EXPECT_EQ(package.uuid(), "uuid");
}

TEST(PackageTexts, TakeTheTextFirstAndReplace)
{
    PackageInfo package;
    package.setName("Story", "en");
    package.setName("Tale", "en");
    package.setDescription("Tells", "en");
    package.setDescription("Reads", "en");
    EXPECT_EQ(package.name("en"), "Tale");
    EXPECT_EQ(package.description("en"), "Reads");
    EXPECT_THAT(package.names(), ElementsAre(Pair("en", "Tale")));
    EXPECT_THAT(package.descriptions(), ElementsAre(Pair("en", "Reads")));
}

TEST(PackageTexts, AMissingLanguageIsEmptyAndCreatesNothing)
{
    PackageInfo package;
    package.setName("Story", "en");
    EXPECT_EQ(package.name("en_US"), "");
    EXPECT_EQ(package.description("en"), "");
    EXPECT_THAT(package.names(), SizeIs(1));
    EXPECT_THAT(package.descriptions(), IsEmpty());
}

TEST(PackageTexts, TheEmptyTextsOfMissesAreTwoAndOutliveThePackage)
{
    const std::string* name = nullptr;
    const std::string* description = nullptr;
    {
        const PackageInfo package;
        name = &package.name("xx");
        description = &package.description("xx");
    }
    EXPECT_EQ(*name, "");
    EXPECT_EQ(name, &PackageInfo().name("yy"));
    EXPECT_EQ(description, &PackageInfo().description("yy"));
    EXPECT_NE(name, description);
}

TEST(PackageTexts, ClearingTheNamesKeepsTheDescriptions)
{
    PackageInfo package;
    package.setName("Story", "en");
    package.setDescription("Tells", "en");
    package.clearNames();
    EXPECT_THAT(package.names(), IsEmpty());
    EXPECT_THAT(package.descriptions(), SizeIs(1));
}

TEST(PackageLanguages, AreKeptOnceInOrder)
{
    PackageInfo package;
    for (const char* lang : {"fr", "en", "fr", "", ""}) {
        package.addSupportedLanguage(lang);
        package.addDescriptionLanguage(lang);
    }
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("fr", "en", ""));
    EXPECT_THAT(package.descriptionLanguages(), ElementsAre("fr", "en", ""));
}

TEST(PackageLanguages, RemovingAnAbsentOneChangesNothing)
{
    PackageInfo package;
    package.addSupportedLanguage("en");
    package.addDescriptionLanguage("fr");
    package.removeSupportedLanguage("fr");
    package.removeDescriptionLanguage("en");
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("en"));
    EXPECT_THAT(package.descriptionLanguages(), ElementsAre("fr"));
    package.removeSupportedLanguage(package.supportedLanguages().front());
    package.removeDescriptionLanguage("fr");
    EXPECT_THAT(package.supportedLanguages(), IsEmpty());
    EXPECT_THAT(package.descriptionLanguages(), IsEmpty());
}

TEST(PackageLanguages, ClearEmptiesOneListOnly)
{
    PackageInfo package;
    package.addSupportedLanguage("en");
    package.addDescriptionLanguage("en");
    package.clearSupportedLanguages();
    EXPECT_THAT(package.supportedLanguages(), IsEmpty());
    EXPECT_THAT(package.descriptionLanguages(), SizeIs(1));
    package.clearDescriptionLanguages();
    EXPECT_THAT(package.descriptionLanguages(), IsEmpty());
}

TEST(PackageLists, AddingAppendsACopyAndKeepsDuplicates)
{
    PackageInfo package;
    BehaviorInfo behavior;
    behavior.setPath("b");
    for (int i = 0; i < 2; ++i) {
        package.addBehavior(behavior);
        package.addDialog({});
        package.addLanguage({});
        package.addRobotRequirement({});
        package.addMorvoRequirement({});
        package.addService({});
        package.addExecutableFile("bin/run");
    }
    behavior.setPath("changed");
    EXPECT_EQ(package.behaviors().front().path(), "b");
    EXPECT_THAT(package.behaviors(), SizeIs(2));
    EXPECT_THAT(package.dialogs(), SizeIs(2));
    EXPECT_THAT(package.languages(), SizeIs(2));
    EXPECT_THAT(package.robotRequirements(), SizeIs(2));
    EXPECT_THAT(package.morvoRequirements(), SizeIs(2));
    EXPECT_THAT(package.services(), SizeIs(2));
    EXPECT_THAT(package.executableFiles(), ElementsAre("bin/run", "bin/run"));
}

TEST(PackageLists, EachClearEmptiesItsOwnList)
{
    PackageInfo package;
    package.addBehavior({});
    package.addDialog({});
    package.addRobotRequirement({});
    package.addMorvoRequirement({});
    package.addService({});
    package.clearBehaviors();
    EXPECT_THAT(package.behaviors(), IsEmpty());
    EXPECT_THAT(package.dialogs(), SizeIs(1));
    package.clearDialogs();
    EXPECT_THAT(package.dialogs(), IsEmpty());
    EXPECT_THAT(package.robotRequirements(), SizeIs(1));
    package.clearRobotRequirements();
    EXPECT_THAT(package.robotRequirements(), IsEmpty());
    EXPECT_THAT(package.morvoRequirements(), SizeIs(1));
    package.clearMorvoRequirements();
    EXPECT_THAT(package.morvoRequirements(), IsEmpty());
    EXPECT_THAT(package.services(), SizeIs(1));
    package.clearServices();
    EXPECT_THAT(package.services(), IsEmpty());
}

TEST(PackageLists, RequirementsAreMutableThroughAConstPackage)
{
    const PackageInfo package;
    package.robotRequirements().push_back({"m", {}, {}, {}, {}});
    package.morvoRequirements().push_back({"1", "2"});
    EXPECT_EQ(package.robotRequirements().front().model, "m");
    EXPECT_EQ(package.morvoRequirements().front().maxVersion, "2");
}

TEST(PackageLists, BehaviorsAreMutableThroughANonConstPackage)
{
    PackageInfo package;
    EXPECT_FALSE(package.hasBehavior());
    package.addBehavior({});
    EXPECT_TRUE(package.hasBehavior());
    package.behaviors().front().setPath("changed");
    EXPECT_EQ(std::as_const(package).behaviors().front().path(), "changed");
}

namespace {

PackageInfo described(const char* lang)
{
    PackageInfo package;
    package.setName("name", lang);
    package.setDescription("description", lang);
    return package;
}

} // namespace

TEST(PackageCopy, IsDeep)
{
    PackageInfo source = described("en");
    source.addBehavior({});
    source.addSupportedLanguage("en");
    PackageInfo copy(source);
    copy.setUuid("changed");
    copy.setName("changed", "en");
    copy.behaviors().front().setPath("changed");
    copy.addSupportedLanguage("fr");
    EXPECT_EQ(source.uuid(), "");
    EXPECT_EQ(source.name("en"), "name");
    EXPECT_EQ(source.behaviors().front().path(), "");
    EXPECT_THAT(source.supportedLanguages(), SizeIs(1));
}

TEST(PackageAssignment, KeepsReferencesAndReturnsAFurtherCopy)
{
    PackageInfo target = described("fr");
    const auto& names = target.names();
    PackageInfo result = (target = described("en"));
    EXPECT_EQ(&names, &target.names());
    EXPECT_THAT(names, ElementsAre(Pair("en", "name")));
    result.clearNames();
    EXPECT_THAT(target.names(), SizeIs(1));
}

TEST(PackageAssignment, ToItselfChangesNothing)
{
    PackageInfo package = described("en");
    package.addBehavior({});
    const PackageInfo& same = package;
    package = same;
    EXPECT_THAT(package.names(), SizeIs(1));
    EXPECT_THAT(package.behaviors(), SizeIs(1));
}

} // namespace zu
