#include "support/manifests.hpp"

#include <gmock/gmock.h>

namespace zu {

using testing::HasSubstr;
using testing::Not;

namespace {

/// The lines that a behavior becomes, without the document around them.
std::string written(const BehaviorInfo& behavior)
{
    PackageInfo package;
    package.addBehavior(behavior);
    const std::string document = package.saveToManifestContent();
    const std::string before = " <contents>\n";
    const std::size_t begin = document.find(before) + before.size();
    return document.substr(begin, document.find(" </contents>") - begin);
}

} // namespace

TEST(BehaviorWriter, OfADefaultBehaviorHasPathNatureAndPermissions)
{
    EXPECT_EQ(written(BehaviorInfo()), "  <behaviorContent path=\"\">\n"
                                       "   <nature></nature>\n"
                                       "   <permissions/>\n"
                                       "  </behaviorContent>\n");
}

TEST(BehaviorWriter, OfAFullBehaviorKeepsTheOrderOfElements)
{
    BehaviorInfo behavior;
    behavior.setPath("b/x");
    behavior.setUserRequestable(true);
    behavior.setNature("interactive");
    behavior.setName("Dance", "en");
    behavior.setDescription("It dances", "en");
    behavior.addTag("fun", "fr");
    behavior.addTag("b", "en");
    behavior.addTag("a", "en");
    behavior.addTriggerSentence("Dance!", "en");
    behavior.addLoadingResponse("Wait", "en");
    behavior.addCondition("a < b", "p");
    behavior.addPermission("canStandUp");
    behavior.addPermission("canRunOnPod");
    EXPECT_EQ(written(behavior), "  <behaviorContent path=\"b/x\">\n"
                                 "   <userRequestable/>\n"
                                 "   <nature>interactive</nature>\n"
                                 "   <names>\n"
                                 "    <name lang=\"en\">Dance</name>\n"
                                 "   </names>\n"
                                 "   <descriptions>\n"
                                 "    <description lang=\"en\">It dances</description>\n"
                                 "   </descriptions>\n"
                                 "   <tags>\n"
                                 "    <tag lang=\"en\">b</tag>\n"
                                 "    <tag lang=\"en\">a</tag>\n"
                                 "    <tag lang=\"fr\">fun</tag>\n"
                                 "   </tags>\n"
                                 "   <triggerSentences>\n"
                                 "    <sentence lang=\"en\">Dance!</sentence>\n"
                                 "   </triggerSentences>\n"
                                 "   <loadingResponses>\n"
                                 "    <sentence lang=\"en\">Wait</sentence>\n"
                                 "   </loadingResponses>\n"
                                 "   <autonomous>\n"
                                 "    <condition purpose=\"p\"><![CDATA[a < b]]></condition>\n"
                                 "   </autonomous>\n"
                                 "   <permissions>\n"
                                 "    <canStandUp/>\n"
                                 "    <canRunOnPod/>\n"
                                 "   </permissions>\n"
                                 "  </behaviorContent>\n");
}

TEST(BehaviorWriter, MapsOfEmptyTextsLeaveAnEmptyContainer)
{
    BehaviorInfo behavior;
    behavior.setName("", "en");
    behavior.addTag("", "en");
    behavior.triggerSentences("fr"); // creates an empty list
    const std::string lines = written(behavior);
    EXPECT_THAT(lines, HasSubstr("   <names/>\n"));
    EXPECT_THAT(lines, HasSubstr("   <tags/>\n"));
    EXPECT_THAT(lines, HasSubstr("   <triggerSentences/>\n"));
    EXPECT_THAT(lines, Not(HasSubstr("loadingResponses")));
    EXPECT_THAT(lines, Not(HasSubstr("autonomous")));
}

TEST(BehaviorWriter, AnEmptyKeyIsWrittenWithoutItsAttribute)
{
    BehaviorInfo behavior;
    behavior.setName("Dance", "");
    behavior.addCondition("x", "");
    EXPECT_THAT(written(behavior), HasSubstr("<name>Dance</name>"));
    EXPECT_THAT(written(behavior), HasSubstr("<condition><![CDATA[x]]></condition>"));
}

TEST(BehaviorWriter, AConditionWithTheEndMarkIsSplitAndReadsBackWhole)
{
    BehaviorInfo behavior;
    behavior.addCondition("a[b[0]]>1", "p");
    EXPECT_THAT(written(behavior), HasSubstr("<condition purpose=\"p\"><![CDATA[a[b[0]]]]><![CDATA[>1]]></condition>"));
    for (const char* condition : {"]]>", "]]>]]>", "]]]>", "a]]", ">", "<![CDATA[x]]>", "]]>\n]]>"}) {
        BehaviorInfo other;
        other.addCondition(condition, "p");
        PackageInfo package;
        package.addBehavior(other);
        const PackageInfo read = test::packageFrom(package.saveToManifestContent());
        EXPECT_THAT(read.behaviors().front().conditions("p"), testing::ElementsAre(condition));
    }
}

} // namespace zu
