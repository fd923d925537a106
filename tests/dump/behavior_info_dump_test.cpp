#include "support/manifests.hpp"

namespace zu {

using test::dumpOf;

TEST(BehaviorDump, OfAnEmptyBehaviorHasEveryHeading)
{
    EXPECT_EQ(dumpOf(BehaviorInfo()), "Path: \n"
                                      "Nature: \n"
                                      "UserRequestable0\n"
                                      "Names: \n"
                                      "Descriptions:\n"
                                      "Tags:\n"
                                      "Trigger sentences:\n"
                                      "Loading responses:\n"
                                      "Conditions:\n"
                                      "Permissions:\n"
                                      "\n");
}

TEST(BehaviorDump, TheTagSeparatorCarriesOverAndAnEmptyListDoesNotUseItUp)
{
    BehaviorInfo behavior;
    behavior.addTag("gone", "de");
    behavior.removeTag("gone", "de");
    behavior.addTag("x", "en");
    behavior.addTag("y", "fr");
    behavior.addTag("z", "fr");
    EXPECT_NE(dumpOf(behavior).find("Tags:\n  de -> \n  en -> x\n  fr -> , y, z\nTrigger"), std::string::npos);
}

TEST(BehaviorDump, QuotesInsideSentencesAreNotEscaped)
{
    BehaviorInfo behavior;
    behavior.addTriggerSentence("say \"hi\"", "en");
    EXPECT_NE(dumpOf(behavior).find("  en -> \"say \"hi\"\"\n"), std::string::npos);
}

TEST(BehaviorDump, ListsThatGettersCreatedShowUp)
{
    const BehaviorInfo behavior;
    behavior.triggerSentences("fr");
    behavior.conditions("p");
    EXPECT_NE(dumpOf(behavior).find("Trigger sentences:\n  fr -> \nLoading"), std::string::npos);
    EXPECT_NE(dumpOf(behavior).find("Conditions:\n  p -> \nPermissions"), std::string::npos);
}

TEST(BehaviorDump, ReturnsItsStream)
{
    std::ostringstream out;
    EXPECT_EQ(&(out << BehaviorInfo()), &out);
}

} // namespace zu
