#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;
using testing::SizeIs;

using P = PackageInfo;
using Text = const std::string&;
using Texts = const std::list<std::string>&;
using TextMap = const std::map<std::string, std::string>&;

// What callers are built against.
template <class Expected, class Member>
constexpr bool has(Member)
{
    return std::is_same_v<Expected, Member>;
}
static_assert(std::is_same_v<decltype(std::declval<P&>() = std::declval<const P&>()), P>, "assignment gives a copy");
static_assert(has<Text (P::*)() const>(&P::uuid) && has<void (P::*)(Text)>(&P::setUuid));
static_assert(has<Text (P::*)() const>(&P::version) && has<void (P::*)(Text)>(&P::setVersion));
static_assert(has<Text (P::*)() const>(&P::author) && has<void (P::*)(Text)>(&P::setAuthor));
static_assert(has<Text (P::*)() const>(&P::channel) && has<void (P::*)(Text)>(&P::setChannel));
static_assert(has<Text (P::*)() const>(&P::organization) && has<void (P::*)(Text)>(&P::setOrganization));
static_assert(has<Text (P::*)() const>(&P::date) && has<void (P::*)(Text)>(&P::setDate));
static_assert(has<Text (P::*)() const>(&P::typeVersion) && has<void (P::*)(Text)>(&P::setTypeVersion));
static_assert(has<Text (P::*)() const>(&P::installer) && has<void (P::*)(Text)>(&P::setInstaller));
static_assert(has<Text (P::*)() const>(&P::path) && has<void (P::*)(Text)>(&P::setPath));
static_assert(has<const bool& (P::*)() const>(&P::installOnlyAtStartup));
static_assert(has<void (P::*)(const bool&)>(&P::setInstallOnlyAtStartup));
static_assert(has<Text (P::*)(Text) const>(&P::name) && has<Text (P::*)(Text) const>(&P::description));
static_assert(has<void (P::*)(Text, Text)>(&P::setName) && has<void (P::*)(std::string, Text)>(&P::setDescription));
static_assert(has<TextMap (P::*)() const>(&P::names) && has<TextMap (P::*)() const>(&P::descriptions));
static_assert(has<Texts (P::*)() const>(&P::supportedLanguages) && has<Texts (P::*)() const>(&P::descriptionLanguages));
static_assert(std::is_same_v<decltype(std::declval<const P&>().behaviors()), const std::list<BehaviorInfo>&>);
static_assert(std::is_same_v<decltype(std::declval<P&>().behaviors()), std::list<BehaviorInfo>&>);
static_assert(has<const std::list<DialogInfo>& (P::*)() const>(&P::dialogs));
static_assert(has<const std::list<LanguageInfo>& (P::*)() const>(&P::languages));
static_assert(has<std::list<RobotRequirement>& (P::*)() const>(&P::robotRequirements), "mutable from a const package");
static_assert(has<std::list<MorvoRequirement>& (P::*)() const>(&P::morvoRequirements), "mutable from a const package");
static_assert(has<const std::list<PackageService>& (P::*)() const>(&P::services));
static_assert(has<Texts (P::*)() const>(&P::executableFiles));
static_assert(has<bool (P::*)() const>(&P::hasBehavior));
static_assert(has<bool (P::*)(Text)>(&P::loadFromManifestContent));
static_assert(has<bool (P::*)(QFile&)>(static_cast<bool (P::*)(QFile&)>(&P::loadFromManifestFile)));
static_assert(has<bool (P::*)(Text)>(static_cast<bool (P::*)(Text)>(&P::loadFromManifestFile)));

template <class T, class = void>
constexpr bool clearsDescriptions = false;
template <class T>
constexpr bool clearsDescriptions<T, std::void_t<decltype(&T::clearDescriptions)>> = true;
template <class T, class = void>
constexpr bool clearsLanguages = false;
template <class T>
constexpr bool clearsLanguages<T, std::void_t<decltype(&T::clearLanguages)>> = true;
template <class T, class = void>
constexpr bool clearsExecutableFiles = false;
template <class T>
constexpr bool clearsExecutableFiles<T, std::void_t<decltype(&T::clearExecutableFiles)>> = true;
static_assert(!clearsDescriptions<P> && !clearsLanguages<P> && !clearsExecutableFiles<P>);

// The small records are open structures with the special members of their fields.
template <class Record>
constexpr bool isOpenRecord =
    std::is_aggregate_v<Record>&& std::is_nothrow_move_constructible_v<Record>&& std::is_copy_constructible_v<Record>&&
        std::is_same_v<decltype(std::declval<Record&>() = std::declval<const Record&>()), Record&>&&
            std::is_same_v<decltype(std::declval<Record&>() = std::declval<Record&&>()), Record&>;
static_assert(isOpenRecord<RobotRequirement> && isOpenRecord<MorvoRequirement> && isOpenRecord<PackageService>);

TEST(RobotRequirement, FieldsStandInDeclarationOrder)
{
    const auto& [model, minHead, maxHead, minBody, maxBody] = RobotRequirement{"m", "1", "2", "3", "4"};
    EXPECT_THAT((std::list<std::string>{model, minHead, maxHead, minBody, maxBody}),
                ElementsAre("m", "1", "2", "3", "4"));
    const RobotRequirement empty;
    EXPECT_EQ(empty.model + empty.minHeadVersion + empty.maxHeadVersion + empty.minBodyVersion + empty.maxBodyVersion,
              "");
}

TEST(MorvoRequirement, StartsEmpty)
{
    const MorvoRequirement empty;
    EXPECT_EQ(empty.minVersion + empty.maxVersion, "");
    const MorvoRequirement range{"1", "2"};
    EXPECT_EQ(range.minVersion, "1");
    EXPECT_EQ(range.maxVersion, "2");
}

TEST(PackageService, StartsEmptyAndNotAutomatic)
{
    const PackageService service;
    EXPECT_EQ(service.execStart, "");
    EXPECT_EQ(service.name, "");
    EXPECT_FALSE(service.autoRun);
    EXPECT_THAT(service.envVars, IsEmpty());
}

TEST(PackageService, ACopyHasItsOwnEnvironment)
{
    const PackageService service{"run", "name", true, {{"A", "1"}}};
    PackageService copy = service;
    copy.envVars["B"] = "2";
    EXPECT_THAT(service.envVars, ElementsAre(Pair("A", "1")));
    EXPECT_THAT(copy.envVars, SizeIs(2));
}

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

PackageInfo named(std::initializer_list<const char*> languages)
{
    PackageInfo package;
    for (const char* lang : languages) {
        package.setName("name", lang);
        package.setDescription("description", lang);
    }
    return package;
}

} // namespace

TEST(PackageTrim, ADescriptionLanguageKeepsItsRegions)
{
    PackageInfo package = named({"en", "en_US", "fr", "e"});
    package.addDescriptionLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(package.descriptions(), ElementsAre(Key("en"), Key("en_US")));
}

TEST(PackageTrim, WithoutDescriptionLanguagesNothingIsKept)
{
    PackageInfo package = named({"", "en"});
    package.addSupportedLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), IsEmpty());
    EXPECT_THAT(package.descriptions(), IsEmpty());
}

TEST(PackageTrim, AnEmptyDescriptionLanguageKeepsEverything)
{
    PackageInfo package = named({"", "en", "fr"});
    package.addDescriptionLanguage("");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), SizeIs(3));
    EXPECT_THAT(package.descriptions(), SizeIs(3));
}

TEST(PackageTrim, AnEmptyCodeIsKeptByAnEmptyElementAlone)
{
    PackageInfo package = named({"", "en"});
    package.addDescriptionLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), ElementsAre(Key("en")));
}

TEST(PackageTrim, BehaviorsAreTrimmedByBothLists)
{
    PackageInfo package;
    package.addDescriptionLanguage("fr");
    package.addSupportedLanguage("en");
    BehaviorInfo behavior;
    for (const char* lang : {"en", "fr"}) {
        behavior.setName("name", lang);
        behavior.addTag("tag", lang);
    }
    package.addBehavior(behavior);
    package.addBehavior(behavior);
    package.trimExtraInfo();
    for (const BehaviorInfo& trimmed : package.behaviors()) {
        EXPECT_THAT(trimmed.names(), ElementsAre(Key("fr")));
        EXPECT_THAT(trimmed.languagesToTags(), ElementsAre(Key("en")));
    }
}

TEST(PackageTrim, EverythingElseStays)
{
    PackageInfo package;
    package.addSupportedLanguage("en");
    DialogInfo dialog;
    dialog.setTopic("fr", "path");
    package.addDialog(dialog);
    LanguageInfo language;
    language.setName("name", "fr");
    package.addLanguage(language);
    package.addExecutableFile("file");
    package.trimExtraInfo();
    EXPECT_EQ(package.dialogs().front().topic("fr"), "path");
    EXPECT_EQ(package.languages().front().name("fr"), "name");
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("en"));
    EXPECT_THAT(package.executableFiles(), SizeIs(1));
}

TEST(PackageCopy, IsDeep)
{
    PackageInfo source = named({"en"});
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
    PackageInfo target = named({"fr"});
    const auto& names = target.names();
    PackageInfo result = (target = named({"en"}));
    EXPECT_EQ(&names, &target.names());
    EXPECT_THAT(names, ElementsAre(Key("en")));
    result.clearNames();
    EXPECT_THAT(target.names(), SizeIs(1));
}

TEST(PackageAssignment, ToItselfChangesNothing)
{
    PackageInfo package = named({"en"});
    package.addBehavior({});
    const PackageInfo& same = package;
    package = same;
    EXPECT_THAT(package.names(), SizeIs(1));
    EXPECT_THAT(package.behaviors(), SizeIs(1));
}

} // namespace zu
