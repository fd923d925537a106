#include <zupackage/behavior_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;

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
