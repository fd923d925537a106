#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/manifests.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/json.hpp>

#include <gmock/gmock.h>

namespace zu {

using log::Level;
using test::CapturedLog;
using test::LogLine;
using test::manifest;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;
using testing::StartsWith;

namespace {

using TextsByLanguage = std::map<std::string, std::string>;
using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;

PackageInfo2 loaded(const std::string& document)
{
    const test::TemporaryFolder folder;
    return loadManifest(folder.file("manifest.xml", document));
}

/// What stands under `key`, which must be exactly a T.
template <class T>
T element(const PackageInfo2& package, const std::string& key)
{
    const T* held = package.elements.at(key).getIf<T>();
    EXPECT_NE(held, nullptr) << package.elements.at(key).type()->name();
    return held ? *held : T();
}

/// Expects loading to throw `message` and to log it.
void expectFailure(const std::string& path, const std::string& message)
{
    const CapturedLog log;
    try {
        loadManifest(path);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), message);
    }
    EXPECT_THAT(log.lines(),
                ElementsAre(LogLine{Level::Error, "zu.package.info", "src/package_info", "zu::loadManifest", message}));
}

} // namespace

TEST(LoadManifest, ReadsTheAttributesOfARootOfAnyName)
{
    const PackageInfo2 package =
        loaded("<anything uuid='u' version='v' author='a' channel='c' organization='o' date='d' typeVersion='t'"
               " installer='i' path='p'/>");
    EXPECT_EQ(package.uuid, "u");
    EXPECT_EQ(package.version, "v");
    EXPECT_EQ(package.author, "a");
    EXPECT_EQ(package.channel, "c");
    EXPECT_EQ(package.organization, "o");
    EXPECT_EQ(package.date, "d");
    EXPECT_EQ(package.typeVersion, "t");
    EXPECT_EQ(package.installer, "");
    EXPECT_EQ(package.path, "");
    EXPECT_THAT(package.elements, IsEmpty());
}

TEST(LoadManifest, ListsHaveRoomForTheirEntriesAlone)
{
    const auto five = [](const std::string& entry) { return entry + entry + entry + entry + entry; };
    const PackageInfo2 package =
        loaded(manifest("<services>" + five("<service/><other/>") + "</services><executableFiles>" + five("<file/>") +
                        "</executableFiles><requirements>" + five("<robotRequirement/><morvoRequirement/>") +
                        "</requirements><supportedLanguages>" + five("<l>en</l>") + "</supportedLanguages>"));
    const auto& elements = package.elements;
    EXPECT_EQ(elements.at("services").getIf<std::vector<PackageService>>()->capacity(), 5u);
    EXPECT_EQ(elements.at("executableFiles").getIf<std::vector<std::string>>()->capacity(), 5u);
    EXPECT_EQ(elements.at("requirements").getIf<Requirements>()->first.capacity(), 5u);
    EXPECT_EQ(elements.at("requirements").getIf<Requirements>()->second.capacity(), 5u);
    EXPECT_EQ(elements.at("supportedLanguages").getIf<std::vector<std::string>>()->capacity(), 5u);
}

TEST(LoadManifest, TrueAndOneAloneSetTheStartupFlag)
{
    for (const char* text : {"true", "1"})
        EXPECT_TRUE(loaded(manifest("", std::string("installOnlyAtStartup='") + text + "'")).installOnlyAtStartup);
    for (const char* text : {"TRUE", "yes", "", "0", " 1"})
        EXPECT_FALSE(loaded(manifest("", std::string("installOnlyAtStartup='") + text + "'")).installOnlyAtStartup);
    EXPECT_FALSE(loaded(manifest("")).installOnlyAtStartup);
}

TEST(LoadManifest, StoresTextsByLanguage)
{
    const PackageInfo2 package =
        loaded(manifest("<names><name lang='en'>first</name><any lang='en'>sec<b>on</b>d</any><!-- c --></names>"
                        "<descriptions><description lang='日'>本</description></descriptions>"));
    EXPECT_THAT(element<TextsByLanguage>(package, "names"), ElementsAre(Pair("", ""), Pair("en", "second")));
    EXPECT_THAT(element<TextsByLanguage>(package, "descriptions"), ElementsAre(Pair("日", "本")));
}

TEST(LoadManifest, StoresServicesAndWarnsOfRepeatedVariables)
{
    const CapturedLog log;
    const PackageInfo2 package =
        loaded(manifest("<services><service name='n' execStart='e' autorun='1'><envVar name='A' value='1'/>"
                        "<envVar name='A' value='2'/></service><other/><service/></services>"));
    const auto services = element<std::vector<PackageService>>(package, "services");
    ASSERT_EQ(services.size(), 2u);
    EXPECT_EQ(services[0].name, "n");
    EXPECT_EQ(services[0].execStart, "e");
    EXPECT_TRUE(services[0].autoRun);
    EXPECT_THAT(services[0].envVars, ElementsAre(Pair("A", "1")));
    EXPECT_EQ(services[1].name, "");
    EXPECT_THAT(log.lines(),
                ElementsAre(LogLine{Level::Warning, "zu.package.info", "src/package_info", "zu::_fillPackageService",
                                    "A assignement skipped because it has already been set"}));
}

TEST(LoadManifest, StoresExecutableFiles)
{
    const PackageInfo2 package =
        loaded(manifest("<executableFiles><file path='b'/><other path='x'/><file/><file path='a'/></executableFiles>"));
    EXPECT_THAT(element<std::vector<std::string>>(package, "executableFiles"), ElementsAre("b", "", "a"));
}

TEST(LoadManifest, StoresRequirements)
{
    const PackageInfo2 package = loaded(manifest(
        "<requirements><morvoRequirement minVersion='1' maxVersion='2'/><robotRequirement model='m' minHeadVersion='3' "
        "maxHeadVersion='4' minBodyVersion='5' maxBodyVersion='6'/><other/><morvoRequirement/></requirements>"));
    const auto [robots, morvos] = element<Requirements>(package, "requirements");
    ASSERT_EQ(robots.size(), 1u);
    EXPECT_EQ(robots[0].model, "m");
    EXPECT_EQ(robots[0].minHeadVersion, "3");
    EXPECT_EQ(robots[0].maxHeadVersion, "4");
    EXPECT_EQ(robots[0].minBodyVersion, "5");
    EXPECT_EQ(robots[0].maxBodyVersion, "6");
    ASSERT_EQ(morvos.size(), 2u);
    EXPECT_EQ(morvos[0].minVersion, "1");
    EXPECT_EQ(morvos[0].maxVersion, "2");
    EXPECT_EQ(morvos[1].minVersion, "");
}

TEST(LoadManifest, StoresEverySupportedLanguageAsOftenAsItIsThere)
{
    const PackageInfo2 package = loaded(manifest("<supportedLanguages><language>en</language><any>fr</"
                                                 "any><language>en</language><!-- c --></supportedLanguages>"));
    EXPECT_THAT(element<std::vector<std::string>>(package, "supportedLanguages"), ElementsAre("en", "fr", "en", ""));
}

TEST(LoadManifest, StoresContentsOfEachKindInDocumentOrder)
{
    PackageInfo2 package =
        loaded(manifest("<contents><languageContent path='l'/><behaviorContent path='b'><nature>solitary</nature>"
                        "</behaviorContent><webContent path='w1'/><dialogContent topicName='d'/><other/>"
                        "<behaviorContent path='a'/><webContent path='w2'/></contents>"));
    EXPECT_THAT(package.contents(), ElementsAre(Key("behaviors"), Key("dialogs"), Key("languages"), Key("web")));
    ASSERT_EQ(package.behaviors().size(), 2u);
    EXPECT_EQ(package.behaviors()[0].path(), "b");
    EXPECT_EQ(package.behaviors()[0].nature(), "solitary");
    EXPECT_EQ(package.behaviors()[1].path(), "a");
    ASSERT_EQ(package.dialogs().size(), 1u);
    EXPECT_EQ(package.dialogs()[0].topicName(), "d");
    ASSERT_EQ(package.languages().size(), 1u);
    EXPECT_EQ(package.languages()[0].path(), "l");
    EXPECT_EQ(package.web().path, "w2");
}

TEST(LoadManifest, WebContentAloneMakesNoOtherKey)
{
    PackageInfo2 package = loaded(manifest("<contents><webContent/></contents>"));
    EXPECT_THAT(package.contents(), ElementsAre(Key("web")));
    EXPECT_EQ(package.web().path, "");
}

TEST(LoadManifest, WithoutContentsThereIsNoKey)
{
    const PackageInfo2 package = loaded(manifest("<names/><descriptionLanguages/><unknown/>"));
    EXPECT_THAT(package.elements, ElementsAre(Key("names")));
    EXPECT_THAT(package.behaviors(), IsEmpty());
    EXPECT_EQ(package.web().path, "");
}

TEST(LoadManifest, WithoutWebContentThereIsNoWebToWriteTo)
{
    PackageInfo2 package = loaded(manifest("<contents><behaviorContent/></contents>"));
    EXPECT_THROW(package.web(), std::runtime_error);
}

TEST(LoadManifest, AnInstructionIsNoSection)
{
    const PackageInfo2 package =
        loaded(manifest("<names><name lang='en'>n</name></names><?names x?><?services x?><!-- names -->"));
    EXPECT_THAT(package.elements, ElementsAre(Key("names")));
    EXPECT_THAT(element<TextsByLanguage>(package, "names"), ElementsAre(Pair("en", "n")));
}

TEST(LoadManifest, EmptySectionsAreStoredEmpty)
{
    const PackageInfo2 package = loaded(manifest(
        "<names/><descriptions/><services/><executableFiles/><requirements/><supportedLanguages/><contents/>"));
    EXPECT_THAT(package.elements,
                ElementsAre(Key("contents"), Key("descriptions"), Key("executableFiles"), Key("names"),
                            Key("requirements"), Key("services"), Key("supportedLanguages")));
    EXPECT_THAT(element<TextsByLanguage>(package, "names"), IsEmpty());
    EXPECT_THAT(package.contents(), IsEmpty());
}

TEST(LoadManifest, ALaterSectionOfTheSameNameReplacesTheEarlier)
{
    const PackageInfo2 package =
        loaded(manifest("<names><name lang='en'>1</name></names><executableFiles><file path='1'/></executableFiles>"
                        "<contents><behaviorContent path='1'/></contents><names><name lang='fr'>2</name></names>"
                        "<executableFiles/><contents><webContent path='2'/></contents>"));
    EXPECT_THAT(element<TextsByLanguage>(package, "names"), ElementsAre(Pair("fr", "2")));
    EXPECT_THAT(element<std::vector<std::string>>(package, "executableFiles"), IsEmpty());
    EXPECT_THAT(package.contents(), ElementsAre(Key("web")));
}

TEST(LoadManifestFailure, AnAbsentFileIsNamedAsItWasGiven)
{
    expectFailure("no/such/../mänifest.xml", "Could not open no/such/../mänifest.xml for reading.");
    expectFailure("", "Could not open  for reading.");
}

TEST(LoadManifestFailure, AMalformedFileIsNamedWithThePlace)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("bäd.xml", "<package>\n  <names></package>");
    expectFailure(path, "Syntax error in " + path + ":2:19: tag mismatch");
}

TEST(LoadManifestFailure, ADocumentBeyondTheLimitsIsRefusedAlike)
{
    const test::TemporaryFolder folder;
    std::string deep;
    for (int i = 0; i < 300; ++i)
        deep += "<a>";
    const std::string path = folder.file("deep.xml", deep);
    try {
        loadManifest(path);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_THAT(error.what(), StartsWith("Syntax error in " + path + ":1:"));
        EXPECT_THAT(error.what(), testing::HasSubstr("256"));
    }
}

TEST(LoadManifestFailure, ASilencedCategoryThrowsAllTheSame)
{
    const CapturedLog log;
    log::Category& category = log::addCategory("zu.package.info");
    const Level threshold = category.threshold();
    category.setThreshold(Level::Fatal);
    EXPECT_THROW(loadManifest("absent"), std::runtime_error);
    category.setThreshold(threshold);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(LoadManifest, WhatWasReadBecomesJsonByItsTypesAlone)
{
    const PackageInfo2 package =
        loaded("<package uuid='u'><names><name lang='en'>N</name></names><contents>"
               "<behaviorContent path='b'><tags><tag lang='en'>t</tag></tags></behaviorContent></contents></package>");
    const std::string json = toJson(AnyReference::from(package));
    EXPECT_THAT(json, testing::HasSubstr(R"("uuid":"u")"));
    EXPECT_THAT(json, testing::HasSubstr(R"({"en":"N"})"));
    EXPECT_THAT(json, testing::HasSubstr(R"({"path":"b","nature":"","langToName":{},"langToDesc":{})"));
    EXPECT_THAT(json, testing::HasSubstr(R"("langToTags":{"en":["t"]})"));
}

} // namespace zu
