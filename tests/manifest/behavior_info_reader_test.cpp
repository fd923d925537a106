#include "support/manifests.hpp"

#include <gmock/gmock.h>

namespace zu {

using test::behaviorFrom;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(BehaviorReader, ReadsEveryElement)
{
    const BehaviorInfo behavior = behaviorFrom(R"(
        <permissions><canSitDown/><canRunOnPod/></permissions>
        <autonomous><condition purpose="rest"><![CDATA[a < b && c]]></condition></autonomous>
        <loadingResponses><sentence lang="en">Wait</sentence></loadingResponses>
        <triggerSentences><sentence lang="en">Dance</sentence><sentence lang="fr">Danse</sentence></triggerSentences>
        <tags><tag lang="en">fun</tag><tag lang="en">move</tag></tags>
        <descriptions><description lang="en">It dances</description></descriptions>
        <names><name lang="en">Dance</name></names>
        <nature>interactive</nature>
        <userRequestable/>)");
    EXPECT_EQ(behavior.path(), "b");
    EXPECT_TRUE(behavior.isUserRequestable());
    EXPECT_EQ(behavior.nature(), "interactive");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("en", "Dance")));
    EXPECT_THAT(behavior.descriptions(), ElementsAre(Pair("en", "It dances")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Pair("en", ElementsAre("fun", "move"))));
    EXPECT_THAT(behavior.languagesToTriggerSentences(),
                ElementsAre(Pair("en", ElementsAre("Dance")), Pair("fr", ElementsAre("Danse"))));
    EXPECT_THAT(behavior.languagesToLoadingResponses(), ElementsAre(Pair("en", ElementsAre("Wait"))));
    EXPECT_THAT(behavior.conditions("rest"), ElementsAre("a < b && c"));
    EXPECT_THAT(behavior.permissions(), ElementsAre("canSitDown", "canRunOnPod"));
}

TEST(BehaviorReader, AnEmptyElementLeavesTheDefaults)
{
    const PackageInfo package = test::packageWithContent("<behaviorContent/>");
    EXPECT_EQ(test::dumpOf(package.behaviors().front()), test::dumpOf(BehaviorInfo()));
}

TEST(BehaviorReader, UserRequestableIsAMatterOfPresence)
{
    EXPECT_TRUE(behaviorFrom("<userRequestable>false</userRequestable>").isUserRequestable());
    EXPECT_FALSE(behaviorFrom("<UserRequestable/>").isUserRequestable());
}

TEST(BehaviorReader, UnsupportedRepeatedAndNonElementPermissionsAreRefused)
{
    const BehaviorInfo behavior =
        behaviorFrom("<permissions><canRunOnPod/>text<!-- canSitDown --><canFly/><canRunOnPod/></permissions>");
    EXPECT_THAT(behavior.permissions(), ElementsAre("canRunOnPod"));
}

TEST(BehaviorReader, ConditionsStandUnderAutonomousAndNowhereElse)
{
    const BehaviorInfo behavior = behaviorFrom("<autonomous><condition purpose='p'>x</condition></autonomous>"
                                               "<conditions><condition purpose='q'>y</condition></conditions>");
    EXPECT_THAT(behavior.conditions("p"), ElementsAre("x"));
    EXPECT_THAT(behavior.conditions("q"), IsEmpty());
}

TEST(BehaviorReader, NamesOfGrandchildrenAreNotChecked)
{
    const BehaviorInfo behavior = behaviorFrom("<names><x lang='en'>n</x></names><tags><y lang='en'>t</y></tags>"
                                               "<autonomous><z purpose='p'>c</z></autonomous>");
    EXPECT_EQ(behavior.name("en"), "n");
    EXPECT_THAT(behavior.tags("en"), ElementsAre("t"));
    EXPECT_THAT(behavior.conditions("p"), ElementsAre("c"));
}

TEST(BehaviorReader, ARepeatedLanguageReplacesTextsAndExtendsLists)
{
    const BehaviorInfo behavior =
        behaviorFrom("<names><name lang='en'>a</name><name lang='en'>b</name></names>"
                     "<names><name lang='en'>c</name></names>"
                     "<tags><tag lang='en'>a</tag></tags><tags><tag lang='en'>b</tag></tags>");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("en", "c")));
    EXPECT_THAT(behavior.tags("en"), ElementsAre("a", "b"));
}

TEST(BehaviorReader, EveryKindOfChildNodeCountsInAContainer)
{
    const std::string nodes = "<!-- comment -->loose text<![CDATA[section]]><?instruction?>";
    const BehaviorInfo behavior =
        behaviorFrom("<names>" + nodes + "</names><descriptions>" + nodes + "</descriptions><tags>" + nodes +
                     "</tags><triggerSentences>" + nodes + "</triggerSentences><loadingResponses>" + nodes +
                     "</loadingResponses><autonomous>" + nodes + "</autonomous>");
    const auto fourEmpty = ElementsAre("", "", "", "");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("", "")));
    EXPECT_THAT(behavior.descriptions(), ElementsAre(Pair("", "")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Pair("", fourEmpty)));
    EXPECT_THAT(behavior.languagesToTriggerSentences(), ElementsAre(Pair("", fourEmpty)));
    EXPECT_THAT(behavior.languagesToLoadingResponses(), ElementsAre(Pair("", fourEmpty)));
    EXPECT_THAT(behavior.conditions(""), fourEmpty);
}

TEST(BehaviorReader, EmptyTextsAndKeysAreKept)
{
    const BehaviorInfo behavior = behaviorFrom("<names><name/></names><tags><tag lang='en'/></tags>");
    EXPECT_THAT(behavior.names(), ElementsAre(Pair("", "")));
    EXPECT_THAT(behavior.languagesToTags(), ElementsAre(Pair("en", ElementsAre(""))));
}

TEST(BehaviorReader, TextIsThatOfAllTextAndCDataDescendants)
{
    const BehaviorInfo behavior =
        behaviorFrom("<names><name lang='en'>a<b>c<!-- no --></b><![CDATA[<d>]]>&amp;e</name></names>");
    EXPECT_EQ(behavior.name("en"), "ac<d>&e");
}

TEST(BehaviorReader, NamesAreMatchedExactly)
{
    const BehaviorInfo behavior =
        behaviorFrom("<Names><name lang='en'>n</name></Names><nature Lang='x'>solitary</nature>"
                     "<categories>c</categories>");
    EXPECT_THAT(behavior.names(), IsEmpty());
    EXPECT_EQ(behavior.nature(), "solitary");
}

} // namespace zu
