// What can be done with records through the type system alone.
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"
#include "support/records.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/struct.hpp>

#include <gmock/gmock.h>

#include <algorithm>

namespace zu {

using test::checkProperty;
using test::describe;
using test::dumpOf;
using testing::ElementsAre;

namespace {

using Values = std::map<std::string, AnyValue>;

/// A member by its name; empty when there is none.
AnyReference memberOf(const AnyReferenceBase& object, const std::string& name)
{
    const auto& names = static_cast<const StructTypeInterface&>(*object.type()).elementsName();
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? AnyReference() : object._element(static_cast<std::size_t>(found - names.begin()));
}

/// Sets every member that is a text, or a list of texts, or a map of either, to its own name, under "key" in a map.
void setTextsToTheirNames(const AnyReference& object)
{
    for (const std::string& name : static_cast<const StructTypeInterface&>(*object.type()).elementsName()) {
        const AnyReference member = memberOf(object, name);
        const std::list<std::string> list{name};
        if (member.holds<std::string>())
            member.set(name);
        else if (member.holds<std::list<std::string>>())
            member.set(list);
        else if (member.holds<std::map<std::string, std::string>>())
            member.set(std::map<std::string, std::string>{{"key", name}});
        else if (member.holds<std::map<std::string, std::list<std::string>>>())
            member.set(std::map<std::string, std::list<std::string>>{{"key", list}});
    }
}

BehaviorInfo taggedBehavior(const std::string& path)
{
    BehaviorInfo behavior = test::behaviorAt(path);
    behavior.addTag("tag", "en");
    return behavior;
}

} // namespace

TEST(RegisteredValue, WritingAMemberOfAPackageChangesThePackage)
{
    PackageInfo package;
    const AnyReference reference = AnyReference::from(package);
    memberOf(reference, "installer").set("store");
    memberOf(reference, "langToName").set(std::map<std::string, std::string>{{"en", "Name"}});
    memberOf(reference, "behaviors").set(std::vector<BehaviorInfo>{taggedBehavior("b")});
    EXPECT_EQ(package.installer(), "store");
    EXPECT_EQ(package.name("en"), "Name");
    ASSERT_EQ(package.behaviors().size(), 1u);
    EXPECT_EQ(package.behaviors().front().tags("en").front(), "tag");
}

TEST(RegisteredValue, WritingIntoARecordInsideAPackageChangesThePackage)
{
    PackageInfo package;
    package.addBehavior(taggedBehavior("old"));
    package.addService({"run", "service", false, {}});
    const AnyReference reference = AnyReference::from(package);
    for (const AnyReference inner : memberOf(reference, "behaviors"))
        memberOf(inner, "path").set("new");
    for (const AnyReference inner : memberOf(reference, "services"))
        memberOf(inner, "autoRun").set(true);
    EXPECT_EQ(package.behaviors().front().path(), "new");
    EXPECT_TRUE(package.services().front().autoRun);
}

TEST(RegisteredValue, EveryMemberOfAPackageIsItsFieldOfThatName)
{
    PackageInfo package;
    const AnyReference reference = AnyReference::from(package);
    setTextsToTheirNames(reference);
    EXPECT_EQ(package.uuid(), "uuid");
    EXPECT_EQ(package.path(), "path");
    EXPECT_EQ(package.version(), "version");
    EXPECT_EQ(package.channel(), "channel");
    EXPECT_EQ(package.author(), "author");
    EXPECT_EQ(package.organization(), "organization");
    EXPECT_EQ(package.date(), "date");
    EXPECT_EQ(package.typeVersion(), "typeVersion");
    EXPECT_EQ(package.installer(), "installer");
    EXPECT_EQ(package.name("key"), "langToName");
    EXPECT_EQ(package.description("key"), "langToDesc");
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("supportedLanguages"));
    EXPECT_THAT(package.executableFiles(), ElementsAre("executableFiles"));
    EXPECT_THAT(package.descriptionLanguages(), ElementsAre("descriptionLanguages"));
    EXPECT_TRUE(memberOf(reference, "installOnlyAtStartup").isEmpty());
}

TEST(RegisteredValue, EveryMemberOfABehaviorIsItsFieldOfThatName)
{
    BehaviorInfo behavior;
    const AnyReference reference = AnyReference::from(behavior);
    setTextsToTheirNames(reference);
    memberOf(reference, "userRequestable").set(true);
    EXPECT_EQ(behavior.path(), "path");
    EXPECT_EQ(behavior.nature(), "nature");
    EXPECT_EQ(behavior.name("key"), "langToName");
    EXPECT_EQ(behavior.description("key"), "langToDesc");
    EXPECT_THAT(behavior.tags("key"), ElementsAre("langToTags"));
    EXPECT_THAT(behavior.triggerSentences("key"), ElementsAre("langToTriggerSentences"));
    EXPECT_THAT(behavior.loadingResponses("key"), ElementsAre("langToLoadingResponses"));
    EXPECT_THAT(behavior.conditions("key"), ElementsAre("purposeToCondition"));
    EXPECT_THAT(behavior.permissions(), ElementsAre("permissions"));
    EXPECT_TRUE(behavior.isUserRequestable());
}

TEST(RegisteredValue, EveryMemberOfADialogOrALanguageIsItsFieldOfThatName)
{
    DialogInfo dialog;
    setTextsToTheirNames(AnyReference::from(dialog));
    EXPECT_EQ(dialog.topicName(), "topicName");
    EXPECT_EQ(dialog.typeVersion(), "typeVersion");
    EXPECT_EQ(dialog.topic("key"), "topics");
    LanguageInfo language;
    setTextsToTheirNames(AnyReference::from(language));
    EXPECT_EQ(language.path(), "path");
    EXPECT_EQ(language.engineName(), "engineName");
    EXPECT_EQ(language.engineVersion(), "engineVersion");
    EXPECT_EQ(language.locale(), "locale");
    EXPECT_EQ(language.name("key"), "langToName");
}

TEST(RegisteredValue, EveryMemberOfASmallRecordIsItsFieldOfThatName)
{
    RobotRequirement robot;
    setTextsToTheirNames(AnyReference::from(robot));
    EXPECT_EQ(robot.model, "model");
    EXPECT_EQ(robot.minHeadVersion, "minHeadVersion");
    EXPECT_EQ(robot.maxHeadVersion, "maxHeadVersion");
    EXPECT_EQ(robot.minBodyVersion, "minBodyVersion");
    EXPECT_EQ(robot.maxBodyVersion, "maxBodyVersion");
    MorvoRequirement morvo;
    setTextsToTheirNames(AnyReference::from(morvo));
    EXPECT_EQ(morvo.minVersion, "minVersion");
    EXPECT_EQ(morvo.maxVersion, "maxVersion");
    PackageService service;
    setTextsToTheirNames(AnyReference::from(service));
    EXPECT_EQ(service.execStart, "execStart");
    EXPECT_EQ(service.name, "name");
    EXPECT_EQ(service.envVars.at("key"), "envVars");
    WebInfo web;
    setTextsToTheirNames(AnyReference::from(web));
    EXPECT_EQ(web.path, "path");
}

TEST(RegisteredValue, SettingAPackageLeavesWhatIsNoMemberAsItWas)
{
    PackageInfo package;
    package.setInstallOnlyAtStartup(true);
    const AnyReference reference = AnyReference::from(package);
    auto values = reference.to<Values>();
    values["uuid"] = AnyValue::from("u");
    reference.set(values);
    EXPECT_EQ(package.uuid(), "u");
    EXPECT_TRUE(package.installOnlyAtStartup());
    values["uuid"] = AnyValue::from(1);
    values["path"] = AnyValue::from("p");
    EXPECT_FALSE(tryConvert(AnyReference::from(values), reference));
    EXPECT_EQ(package.path(), "");
    EXPECT_TRUE(package.installOnlyAtStartup());
}

TEST(RegisteredValue, AConstPackageIsForReadingOnly)
{
    const PackageInfo package;
    EXPECT_THROW(memberOf(AnyReference::from(package), "uuid").set("u"), std::runtime_error);
    EXPECT_EQ(package.uuid(), "");
}

TEST(RegisteredValue, AValueOfARegisteredNameCanBeMade)
{
    AnyValue value(findType("::zu::PackageInfo"));
    memberOf(value.reference(), "uuid").set("u");
    ASSERT_NE(value.getIf<PackageInfo>(), nullptr);
    EXPECT_EQ(value.getIf<PackageInfo>()->uuid(), "u");
}

TEST(RegisteredValue, ACopyIsDeep)
{
    AnyValue value = AnyValue::from(taggedBehavior("first"));
    const AnyValue copy = value;
    value.getIf<BehaviorInfo>()->setPath("second");
    EXPECT_EQ(copy.getIf<BehaviorInfo>()->path(), "first");
}

TEST(RegisteredValue, ABehaviorGoesToAMapOfNamedValuesAndBack)
{
    checkProperty(1000, [] {
        const PackageInfo package = *test::packages(test::texts());
        for (const BehaviorInfo& original : package.behaviors()) {
            const auto named = AnyValue::from(original).to<Values>();
            RC_ASSERT(named.at("path").to<std::string>() == original.path());
            RC_ASSERT(dumpOf(AnyValue::from(named).to<BehaviorInfo>()) == dumpOf(original));
        }
    });
}

TEST(RegisteredValue, APackageGoesToAMapOfNamedValuesAndBackWithoutInstallOnlyAtStartup)
{
    checkProperty(1000, [] {
        PackageInfo package = *test::packages(test::texts());
        package.setInstaller(*test::texts());
        package.setPath(*test::texts());
        const auto named = AnyValue::from(package).to<Values>();
        const auto back = AnyValue::from(named).to<PackageInfo>();
        RC_ASSERT(!back.installOnlyAtStartup());
        package.setInstallOnlyAtStartup(false);
        RC_ASSERT(describe(back) == describe(package));
    });
}

TEST(RegisteredValue, AMapThatDoesNotFitLeavesTheBehaviorAsItWas)
{
    BehaviorInfo target = taggedBehavior("kept");
    const auto whole = AnyValue::from(taggedBehavior("new")).to<Values>();
    Values missing = whole;
    missing.erase("categories");
    Values unknown = whole;
    unknown["unknown"] = AnyValue::from(1);
    Values mistyped = whole;
    mistyped["userRequestable"] = AnyValue::from("yes");
    for (const Values& values : {missing, unknown, mistyped})
        EXPECT_THROW(AnyReference::from(target).set(AnyValue::from(values)), ConversionError);
    EXPECT_EQ(dumpOf(target), dumpOf(taggedBehavior("kept")));
}

TEST(RegisteredValue, VectorsBecomeListsAndBack)
{
    const std::vector<BehaviorInfo> behaviors{taggedBehavior("a"), taggedBehavior("b")};
    const auto list = AnyValue::from(behaviors).to<std::list<BehaviorInfo>>();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(dumpOf(list.back()), dumpOf(behaviors.back()));
    const auto vector = AnyValue::from(list).to<std::vector<BehaviorInfo>>();
    EXPECT_EQ(dumpOf(vector.front()), dumpOf(behaviors.front()));
}

TEST(RegisteredValue, TheRequirementsPairTravels)
{
    using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;
    const AnyValue value = AnyValue::from(Requirements{{{"model", "1", "2", "3", "4"}}, {{"5", "6"}}});
    EXPECT_EQ(value._element(0)._element(0)._element(4).text(), "4");
    const auto lists = value.to<std::pair<std::list<RobotRequirement>, std::list<MorvoRequirement>>>();
    EXPECT_EQ(lists.first.front().maxBodyVersion, "4");
    EXPECT_EQ(lists.second.front().minVersion, "5");
    EXPECT_EQ(AnyValue::from(lists).to<Requirements>().second[0].maxVersion, "6");
}

TEST(RegisteredValue, MapsOfDynamicValuesTravel)
{
    const AnyValue value =
        AnyValue::from(Values{{"web", AnyValue::from(WebInfo{"html"})},
                              {"behaviors", AnyValue::from(std::list<BehaviorInfo>{taggedBehavior("b")})}});
    const auto values = value.to<Values>();
    EXPECT_EQ(values.at("web").to<WebInfo>().path, "html");
    EXPECT_EQ(values.at("behaviors").to<std::vector<BehaviorInfo>>()[0].path(), "b");
    using Tags = std::map<std::string, std::list<std::string>>;
    const auto tags =
        AnyValue::from(taggedBehavior("b").languagesToTags()).to<std::map<std::string, std::vector<std::string>>>();
    EXPECT_EQ(AnyValue::from(tags).to<Tags>(), taggedBehavior("b").languagesToTags());
}

} // namespace zu
