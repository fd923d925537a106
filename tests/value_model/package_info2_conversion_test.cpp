#include "support/generated_packages.hpp"
#include "support/records.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>

#include <gmock/gmock.h>

namespace zu {

using test::behaviorAt;
using test::describe;
using testing::ElementsAre;

namespace {

using TextsByLanguage = std::map<std::string, std::string>;
using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;

} // namespace

TEST(PackageFromValue, OfAnEmptyRecordIsEmpty)
{
    EXPECT_EQ(describe(PackageInfo(PackageInfo2())), describe(PackageInfo()));
}

TEST(PackageFromValue, TakesEveryField)
{
    PackageInfo2 source;
    source.uuid = "u";
    source.version = "v";
    source.author = "a";
    source.channel = "c";
    source.organization = "o";
    source.date = "d";
    source.typeVersion = "t";
    source.installer = "i";
    source.installOnlyAtStartup = true;
    source.path = "p";
    PackageInfo expected;
    expected.setUuid("u");
    expected.setVersion("v");
    expected.setAuthor("a");
    expected.setChannel("c");
    expected.setOrganization("o");
    expected.setDate("d");
    expected.setTypeVersion("t");
    expected.setInstaller("i");
    expected.setInstallOnlyAtStartup(true);
    expected.setPath("p");
    const PackageInfo package = source;
    EXPECT_EQ(describe(package), describe(expected));
    EXPECT_EQ(package.path(), "p");
}

TEST(PackageFromValue, TakesEveryElementInOrder)
{
    PackageInfo2 source;
    source.elements["names"] = AnyValue::from(TextsByLanguage{{"en", "name"}, {"fr", "nom"}});
    source.elements["descriptions"] = AnyValue::from(TextsByLanguage{{"en", "description"}});
    source.elements["services"] = AnyValue::from(
        std::vector<PackageService>{{"run", "first", true, {{"A", "1"}}}, {"stop", "second", false, {}}});
    source.elements["executableFiles"] = AnyValue::from(std::vector<std::string>{"b", "a", "b"});
    source.elements["requirements"] =
        AnyValue::from(Requirements{{{"m", "1", "2", "3", "4"}, {"n", "", "", "", ""}}, {{"5", "6"}, {"7", ""}}});
    source.elements["supportedLanguages"] = AnyValue::from(std::vector<std::string>{"fr", "en"});
    PackageInfo expected;
    expected.setName("name", "en");
    expected.setName("nom", "fr");
    expected.setDescription("description", "en");
    expected.addService({"run", "first", true, {{"A", "1"}}});
    expected.addService({"stop", "second", false, {}});
    for (const char* path : {"b", "a", "b"})
        expected.addExecutableFile(path);
    expected.addRobotRequirement({"m", "1", "2", "3", "4"});
    expected.addRobotRequirement({"n", "", "", "", ""});
    expected.addMorvoRequirement({"5", "6"});
    expected.addMorvoRequirement({"7", ""});
    expected.addSupportedLanguage("fr");
    expected.addSupportedLanguage("en");
    EXPECT_EQ(describe(source), describe(expected));
}

TEST(PackageFromValue, TakesTheContentsWithoutTheWeb)
{
    PackageInfo2 source;
    source.behaviors() = {behaviorAt("b"), behaviorAt("a")};
    source.dialogs().emplace_back().setTopicName("d");
    source.languages().emplace_back().setLocale("l");
    source.contents()["web"] = AnyValue::from(WebInfo{"w"});
    PackageInfo expected;
    expected.addBehavior(behaviorAt("b"));
    expected.addBehavior(behaviorAt("a"));
    DialogInfo dialog;
    dialog.setTopicName("d");
    expected.addDialog(dialog);
    LanguageInfo language;
    language.setLocale("l");
    expected.addLanguage(language);
    EXPECT_EQ(describe(source), describe(expected));
}

TEST(PackageFromValue, KeepsALanguageThatIsSupportedTwiceOnce)
{
    PackageInfo2 source;
    source.elements["supportedLanguages"] = AnyValue::from(std::vector<std::string>{"en", "fr", "en", ""});
    EXPECT_THAT(PackageInfo(source).supportedLanguages(), ElementsAre("en", "fr", ""));
}

TEST(PackageFromValue, ConvertsWhatIsOfAnotherType)
{
    PackageInfo2 source;
    source.elements["names"] = AnyValue::from(std::map<std::string, AnyValue>{{"en", AnyValue::from("name")}});
    source.elements["executableFiles"] = AnyValue::from(std::list<std::string>{"a"});
    source.elements["requirements"] =
        AnyValue::from(std::pair<std::list<RobotRequirement>, std::vector<std::map<std::string, std::string>>>{
            {{"m", "", "", "", ""}}, {{{"minVersion", "1"}, {"maxVersion", "2"}}}});
    source.contents()["behaviors"] = AnyValue::from(std::list<BehaviorInfo>{behaviorAt("b")});
    const PackageInfo package = source;
    EXPECT_EQ(package.name("en"), "name");
    EXPECT_THAT(package.executableFiles(), ElementsAre("a"));
    EXPECT_EQ(package.robotRequirements().front().model, "m");
    EXPECT_EQ(package.morvoRequirements().front().maxVersion, "2");
    EXPECT_EQ(package.behaviors().front().path(), "b");
}

TEST(PackageFromValue, LeavesUnknownKeysAlone)
{
    PackageInfo2 source;
    source.elements["mine"] = AnyValue::from(1);
    source.contents()["mine"] = AnyValue::from(1);
    source.contents()["web"]; // empty, as PackageInfo2::web() leaves it
    EXPECT_EQ(describe(source), describe(PackageInfo()));
}

TEST(PackageFromValue, FailsForEveryElementThatDoesNotConvert)
{
    for (const char* key :
         {"names", "descriptions", "services", "executableFiles", "requirements", "supportedLanguages", "contents"}) {
        SCOPED_TRACE(key);
        PackageInfo2 source;
        source.elements[key] = AnyValue::from(1);
        EXPECT_THROW(PackageInfo{source}, ConversionError);
        source.elements[key].reset();
        EXPECT_THROW(PackageInfo{source}, ConversionError);
    }
    for (const char* key : {"behaviors", "dialogs", "languages"}) {
        SCOPED_TRACE(key);
        PackageInfo2 source;
        source.contents()[key] = AnyValue::from("text");
        EXPECT_THROW(PackageInfo{source}, ConversionError);
    }
}

TEST(PackageFromValue, TellsTheWayToWhatDoesNotConvert)
{
    const auto errorOf = [](const PackageInfo2& source) {
        try {
            const PackageInfo package(source);
        } catch (const ConversionError& error) {
            return std::string(error.what());
        }
        return std::string("nothing was thrown");
    };
    PackageInfo2 source;
    source.elements["services"] = AnyValue::from(1);
    EXPECT_EQ(errorOf(source), "Cannot convert int to std::vector<zu::PackageService> at [\"services\"]");
    source.elements["services"] = AnyValue::from(std::vector<AnyValue>{AnyValue::from(PackageService()), AnyValue()});
    EXPECT_EQ(errorOf(source), "Cannot convert std::vector<zu::AnyValue> to std::vector<zu::PackageService> at "
                               "[\"services\"][1]: there is no value");
    source.elements.clear();
    source.contents()["dialogs"] = AnyValue::from(std::vector<std::map<std::string, std::string>>(1));
    EXPECT_EQ(errorOf(source), "Cannot convert std::vector<std::map<std::string, std::string>> to "
                               "std::vector<zu::DialogInfo> at [\"contents\"][\"dialogs\"][0]: there is no value for "
                               "the member topicName");
    EXPECT_THROW(source.dialogs(), std::runtime_error);
    try {
        std::as_const(source).dialogs();
        FAIL();
    } catch (const ConversionError& error) {
        EXPECT_EQ(error.failure().path, "");
        EXPECT_EQ(error.failure().reason, "");
    }
}

} // namespace zu
