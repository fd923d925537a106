#include <zupackage/behavior_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;

using Text = const std::string&;
using Texts = std::list<std::string>;
using TextMap = const std::map<std::string, std::string>&;
using ListMap = const std::map<std::string, std::list<std::string>>&;

// What callers are built against.
template <class Expected, class Member>
constexpr bool has(Member)
{
    return std::is_same_v<Expected, Member>;
}
using B = BehaviorInfo;
static_assert(std::is_same_v<decltype(std::declval<B&>() = std::declval<const B&>()), B>, "assignment gives a copy");
static_assert(has<std::string (B::*)() const>(&B::path) && has<void (B::*)(Text)>(&B::setPath));
static_assert(has<std::string (B::*)() const>(&B::nature) && has<void (B::*)(Text)>(&B::setNature));
static_assert(has<Text (*)()>(&B::natureInteractive) && has<Text (*)()>(&B::natureSolitary));
static_assert(has<bool (B::*)() const>(&B::isUserRequestable) && has<void (B::*)(bool)>(&B::setUserRequestable));
static_assert(has<TextMap (B::*)() const>(&B::names) && has<TextMap (B::*)() const>(&B::descriptions));
static_assert(has<std::string (B::*)(Text) const>(&B::name) && has<std::string (B::*)(Text) const>(&B::description));
static_assert(has<void (B::*)(Text, Text)>(&B::setName) && has<void (B::*)(Text, Text)>(&B::setDescription));
static_assert(has<Texts (B::*)(Text) const>(&B::tags) && has<ListMap (B::*)() const>(&B::languagesToTags));
static_assert(has<Texts (B::*)(Text) const>(&B::triggerSentences));
static_assert(has<ListMap (B::*)() const>(&B::languagesToTriggerSentences));
static_assert(has<Texts (B::*)(Text) const>(&B::loadingResponses));
static_assert(has<ListMap (B::*)() const>(&B::languagesToLoadingResponses));
static_assert(has<Texts (B::*)(Text) const>(&B::conditions));
static_assert(has<Texts (B::*)() const>(&B::permissions) && has<const Texts& (*)()>(&B::supportedPermissions));
static_assert(has<bool (B::*)(Text)>(&B::addPermission) && has<bool (B::*)(Text)>(&B::removePermission));
static_assert(has<bool (B::*)(Text) const>(&B::hasPermission));
static_assert(has<void (B::*)(Texts, Texts)>(&B::trimExtraInfo));

namespace {

/// One of the four families of lists, by its operations.
struct Family
{
    const char* name;
    Texts (B::*get)(Text) const;
    void (B::*add)(Text, Text);
    void (B::*insert)(Text, Text, int);
    bool (B::*remove)(Text, Text);
    bool (B::*update)(Text, Text, Text);
};

class BehaviorList : public testing::TestWithParam<Family>
{
protected:
    Texts get(Text key) const { return (behavior.*GetParam().get)(key); }
    void add(Text value, Text key) { (behavior.*GetParam().add)(value, key); }
    void insert(Text value, Text key, int position) { (behavior.*GetParam().insert)(value, key, position); }
    bool remove(Text value, Text key) { return (behavior.*GetParam().remove)(value, key); }
    bool update(Text oldValue, Text newValue, Text key)
    {
        return (behavior.*GetParam().update)(oldValue, newValue, key);
    }

    BehaviorInfo behavior;
};

} // namespace

TEST_P(BehaviorList, AddingAppendsAndAcceptsDuplicatesAndEmptyTexts)
{
    for (const char* value : {"a", "b", "a", ""})
        add(value, "en");
    EXPECT_THAT(get("en"), ElementsAre("a", "b", "a", ""));
    EXPECT_THAT(get("fr"), IsEmpty());
}

TEST_P(BehaviorList, InsertingAtAnElementPutsTheValueBeforeIt)
{
    add("a", "en");
    add("b", "en");
    insert("first", "en", 0);
    insert("third", "en", 2);
    EXPECT_THAT(get("en"), ElementsAre("first", "a", "third", "b"));
}

TEST_P(BehaviorList, InsertingAtAPositionWithoutElementAppends)
{
    insert("a", "en", 0);
    insert("b", "en", 1);
    insert("c", "en", -1);
    insert("d", "en", 7);
    EXPECT_THAT(get("en"), ElementsAre("a", "b", "c", "d"));
}

TEST_P(BehaviorList, RemovingTakesOneEqualElementAtATimeAndKeepsTheEmptyList)
{
    for (const char* value : {"a", "b", "a"})
        add(value, "en");
    EXPECT_TRUE(remove("a", "en"));
    EXPECT_THAT(get("en"), ElementsAre("b", "a"));
    EXPECT_TRUE(remove("a", "en"));
    EXPECT_THAT(get("en"), ElementsAre("b"));
    EXPECT_FALSE(remove("a", "en"));
    EXPECT_TRUE(remove("b", "en"));
    EXPECT_FALSE(remove("b", "en"));
    EXPECT_THAT(get("en"), IsEmpty());
}

TEST_P(BehaviorList, UpdatingReplacesTheFirstEqualElementWhereItStands)
{
    for (const char* value : {"a", "b", "b"})
        add(value, "en");
    EXPECT_TRUE(update("b", "c", "en"));
    EXPECT_THAT(get("en"), ElementsAre("a", "c", "b"));
    EXPECT_FALSE(update("x", "y", "en"));
    EXPECT_FALSE(update("a", "y", "fr"));
}

INSTANTIATE_TEST_SUITE_P(
    Families, BehaviorList,
    testing::Values(Family{"Tags", &B::tags, &B::addTag, &B::insertTag, &B::removeTag, &B::updateTag},
                    Family{"TriggerSentences", &B::triggerSentences, &B::addTriggerSentence, &B::insertTriggerSentence,
                           &B::removeTriggerSentence, &B::updateTriggerSentence},
                    Family{"LoadingResponses", &B::loadingResponses, &B::addLoadingResponse, &B::insertLoadingResponse,
                           &B::removeLoadingResponse, &B::updateLoadingResponse},
                    Family{"Conditions", &B::conditions, &B::addCondition, &B::insertCondition, &B::removeCondition,
                           &B::updateCondition}),
    [](const auto& instance) { return instance.param.name; });

TEST(BehaviorInfo, StartsEmpty)
{
    const BehaviorInfo behavior;
    EXPECT_EQ(behavior.path(), "");
    EXPECT_EQ(behavior.nature(), "");
    EXPECT_FALSE(behavior.isUserRequestable());
    EXPECT_THAT(behavior.names(), IsEmpty());
    EXPECT_THAT(behavior.descriptions(), IsEmpty());
    EXPECT_THAT(behavior.languagesToTags(), IsEmpty());
    EXPECT_THAT(behavior.languagesToTriggerSentences(), IsEmpty());
    EXPECT_THAT(behavior.languagesToLoadingResponses(), IsEmpty());
    EXPECT_THAT(behavior.permissions(), IsEmpty());
}

TEST(BehaviorInfo, KeepsAnyNature)
{
    BehaviorInfo behavior;
    behavior.setNature("unheard of");
    EXPECT_EQ(behavior.nature(), "unheard of");
    EXPECT_EQ(BehaviorInfo::natureInteractive(), "interactive");
    EXPECT_EQ(BehaviorInfo::natureSolitary(), "solitary");
}

TEST(BehaviorInfo, NamesAndDescriptionsHaveNoFallback)
{
    BehaviorInfo behavior;
    behavior.setName("Dance", "en");
    behavior.setDescription("It dances", "en");
    EXPECT_EQ(behavior.name("en"), "Dance");
    EXPECT_EQ(behavior.name("de"), "");
    EXPECT_EQ(behavior.name("en_US"), "");
    EXPECT_EQ(behavior.description("de"), "");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("en", "Dance")));
    EXPECT_THAT(behavior.descriptions(), ElementsAre(Pair("en", "It dances")));
}

TEST(BehaviorInfo, SettingANameAgainReplacesIt)
{
    BehaviorInfo behavior;
    behavior.setName("Dance", "en");
    behavior.setName("Jump", "en");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("en", "Jump")));
}

TEST(BehaviorInfo, AskingForAbsentTagsCreatesNothing)
{
    const BehaviorInfo behavior;
    EXPECT_THAT(behavior.tags("xx"), IsEmpty());
    EXPECT_THAT(behavior.languagesToTags(), IsEmpty());
}

TEST(BehaviorInfo, AskingForAbsentSentencesOrResponsesCreatesAnEmptyList)
{
    const BehaviorInfo behavior;
    EXPECT_THAT(behavior.triggerSentences("fr"), IsEmpty());
    EXPECT_THAT(behavior.loadingResponses("de"), IsEmpty());
    EXPECT_THAT(behavior.languagesToTriggerSentences(), ElementsAre(Pair("fr", IsEmpty())));
    EXPECT_THAT(behavior.languagesToLoadingResponses(), ElementsAre(Pair("de", IsEmpty())));
}

TEST(BehaviorInfo, RemovingOrUpdatingAbsentListsCreatesNothing)
{
    BehaviorInfo behavior;
    EXPECT_FALSE(behavior.updateTag("x", "y", "fr"));
    EXPECT_FALSE(behavior.removeTriggerSentence("x", "fr"));
    EXPECT_FALSE(behavior.updateLoadingResponse("x", "y", "fr"));
    EXPECT_THAT(behavior.languagesToTags(), IsEmpty());
    EXPECT_THAT(behavior.languagesToTriggerSentences(), IsEmpty());
    EXPECT_THAT(behavior.languagesToLoadingResponses(), IsEmpty());
}

TEST(BehaviorInfo, AListThatBecomesEmptyStays)
{
    BehaviorInfo behavior;
    behavior.addTag("a", "en");
    EXPECT_TRUE(behavior.removeTag("a", "en"));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Pair("en", IsEmpty())));
}

TEST(BehaviorPermissions, SupportedOnesStandInTheirOwnOrder)
{
    EXPECT_THAT(BehaviorInfo::supportedPermissions(),
                ElementsAre("canRunInSleep", "canRunOnPod", "canStandUp", "canSitDown"));
    EXPECT_EQ(BehaviorInfo::k_permCanRunInSleep, "canRunInSleep");
    EXPECT_EQ(BehaviorInfo::k_permCanRunOnPod, "canRunOnPod");
    EXPECT_EQ(BehaviorInfo::k_permCanSitDown, "canSitDown");
    EXPECT_EQ(BehaviorInfo::k_permCanStandUp, "canStandUp");
}

TEST(BehaviorPermissions, EachSupportedOneIsClaimedOnce)
{
    BehaviorInfo behavior;
    EXPECT_TRUE(behavior.addPermission("canSitDown"));
    EXPECT_FALSE(behavior.addPermission("canSitDown"));
    EXPECT_FALSE(behavior.addPermission("canFly"));
    EXPECT_FALSE(behavior.addPermission(""));
    EXPECT_THAT(behavior.permissions(), ElementsAre("canSitDown"));
    EXPECT_TRUE(behavior.hasPermission("canSitDown"));
    EXPECT_FALSE(behavior.hasPermission("canFly"));
}

TEST(BehaviorPermissions, RemovingTellsWhetherItWasClaimed)
{
    BehaviorInfo behavior;
    behavior.addPermission("canStandUp");
    EXPECT_TRUE(behavior.removePermission("canStandUp"));
    EXPECT_FALSE(behavior.removePermission("canStandUp"));
    EXPECT_THAT(behavior.permissions(), IsEmpty());
}

namespace {

/// Has every text map and list in "en", "en_US" and "fr", and a condition.
BehaviorInfo multilingual()
{
    BehaviorInfo behavior;
    for (const char* lang : {"en", "en_US", "fr"}) {
        behavior.setName("name", lang);
        behavior.setDescription("description", lang);
        behavior.addTag("tag", lang);
        behavior.addTriggerSentence("sentence", lang);
        behavior.addLoadingResponse("response", lang);
    }
    behavior.addCondition("x > 1", "en");
    behavior.addPermission("canStandUp");
    return behavior;
}

} // namespace

TEST(BehaviorTrim, DescriptionLanguagesGovernTextsAndSupportedLanguagesGovernSpeech)
{
    BehaviorInfo behavior = multilingual();
    behavior.trimExtraInfo({"fr"}, {"en_US"});
    EXPECT_THAT(behavior.names(), ElementsAre(Key("fr")));
    EXPECT_THAT(behavior.descriptions(), ElementsAre(Key("fr")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Key("en_US")));
    EXPECT_THAT(behavior.languagesToTriggerSentences(), ElementsAre(Key("en_US")));
    EXPECT_THAT(behavior.languagesToLoadingResponses(), ElementsAre(Key("en_US")));
}

TEST(BehaviorTrim, APrefixKeepsItsRegionsInAllFiveMaps)
{
    BehaviorInfo behavior = multilingual();
    behavior.trimExtraInfo({"en"}, {"en"});
    EXPECT_THAT(behavior.names(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(behavior.descriptions(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(behavior.languagesToTriggerSentences(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(behavior.languagesToLoadingResponses(), ElementsAre(Key("en"), Key("en_US")));
}

TEST(BehaviorTrim, AnEmptyListKeepsNothingAndConditionsAndPermissionsStay)
{
    BehaviorInfo behavior = multilingual();
    behavior.trimExtraInfo({"en"}, {});
    EXPECT_THAT(behavior.names(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(behavior.languagesToTags(), IsEmpty());
    EXPECT_THAT(behavior.languagesToTriggerSentences(), IsEmpty());
    EXPECT_THAT(behavior.languagesToLoadingResponses(), IsEmpty());
    EXPECT_THAT(behavior.conditions("en"), ElementsAre("x > 1"));
    EXPECT_THAT(behavior.permissions(), ElementsAre("canStandUp"));
}

TEST(BehaviorTrim, AnEmptyElementKeepsEverythingAndAnEmptyCodeNeedsOne)
{
    BehaviorInfo behavior = multilingual();
    behavior.setName("nameless", "");
    behavior.trimExtraInfo({"", "en"}, {""});
    EXPECT_THAT(behavior.names(), ElementsAre(Key(""), Key("en"), Key("en_US"), Key("fr")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Key("en"), Key("en_US"), Key("fr")));
    behavior.trimExtraInfo({"en"}, {""});
    EXPECT_THAT(behavior.names(), ElementsAre(Key("en"), Key("en_US")));
}

TEST(BehaviorCopy, IsDeep)
{
    const BehaviorInfo source = multilingual();
    BehaviorInfo copy(source);
    copy.setName("changed", "en");
    copy.addTag("added", "en");
    EXPECT_EQ(source.name("en"), "name");
    EXPECT_THAT(source.tags("en"), ElementsAre("tag"));
    EXPECT_THAT(copy.conditions("en"), ElementsAre("x > 1"));
}

TEST(BehaviorAssignment, KeepsReferencesAndReturnsAFurtherCopy)
{
    BehaviorInfo target;
    const auto& names = target.names();
    BehaviorInfo result = (target = multilingual());
    EXPECT_EQ(&names, &target.names());
    EXPECT_EQ(names.size(), 3u);
    result.setName("changed", "en");
    EXPECT_EQ(target.name("en"), "name");
}

TEST(BehaviorAssignment, ToItselfChangesNothing)
{
    BehaviorInfo behavior = multilingual();
    const BehaviorInfo& same = behavior;
    behavior = same;
    EXPECT_EQ(behavior.names().size(), 3u);
    EXPECT_THAT(behavior.tags("fr"), ElementsAre("tag"));
}

} // namespace zu
