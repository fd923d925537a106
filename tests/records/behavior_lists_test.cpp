#include <zupackage/behavior_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;

using B = BehaviorInfo;
using Text = const std::string&;
using Texts = std::list<std::string>;

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

} // namespace zu
