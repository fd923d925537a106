#include <zupackage/dialog_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using D = DialogInfo;
using Text = const std::string&;
static_assert(std::is_same_v<decltype(std::declval<D&>() = std::declval<const D&>()), D>, "assignment gives a copy");
static_assert(std::is_same_v<decltype(&D::topicName), Text (D::*)() const>);
static_assert(std::is_same_v<decltype(&D::setTopicName), void (D::*)(Text)>);
static_assert(std::is_same_v<decltype(&D::typeVersion), Text (D::*)() const>);
static_assert(std::is_same_v<decltype(&D::setTypeVersion), void (D::*)(Text)>);
static_assert(std::is_same_v<decltype(&D::topics), const std::map<std::string, std::string>& (D::*)() const>);
static_assert(std::is_same_v<decltype(&D::topic), std::string (D::*)(Text) const>);
static_assert(std::is_same_v<decltype(&D::setTopic), void (D::*)(Text, Text)>);
static_assert(std::is_same_v<decltype(&D::removeTopic), bool (D::*)(Text)>);
using Compare = bool (*)(const D&, const D&);
static_assert(std::is_same_v<decltype(static_cast<Compare>(&operator==)), Compare>);
static_assert(std::is_same_v<decltype(static_cast<Compare>(&operator!=)), Compare>);
static_assert(std::is_same_v<decltype(&D::loadFromManifest), bool (D::*)(QDomElement&)>);

namespace {

DialogInfo weather()
{
    DialogInfo dialog;
    dialog.setTopicName("weather");
    dialog.setTypeVersion("1.0");
    dialog.setTopic("en", "weather_en.talk");
    return dialog;
}

} // namespace

TEST(DialogInfo, StartsEmpty)
{
    const DialogInfo dialog;
    EXPECT_EQ(dialog.topicName(), "");
    EXPECT_EQ(dialog.typeVersion(), "");
    EXPECT_THAT(dialog.topics(), IsEmpty());
}

TEST(DialogInfo, TopicTakesTheKeyFirst)
{
    EXPECT_THAT(weather().topics(), ElementsAre(Pair("en", "weather_en.talk")));
    EXPECT_EQ(weather().topic("en"), "weather_en.talk");
}

TEST(DialogInfo, AnAbsentTopicIsEmptyAndCreatesNothing)
{
    const DialogInfo dialog = weather();
    EXPECT_EQ(dialog.topic("fr"), "");
    EXPECT_EQ(dialog.topics().size(), 1u);
}

TEST(DialogInfo, SettingATopicAgainReplacesIt)
{
    DialogInfo dialog = weather();
    dialog.setTopic("en", "other.talk");
    dialog.setTopic("", "");
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("", ""), Pair("en", "other.talk")));
}

TEST(DialogInfo, RemovingATopicTellsWhetherItWasThere)
{
    DialogInfo dialog = weather();
    EXPECT_TRUE(dialog.removeTopic("en"));
    EXPECT_FALSE(dialog.removeTopic("en"));
    EXPECT_THAT(dialog.topics(), IsEmpty());
}

TEST(DialogInfo, EqualityComparesEveryField)
{
    EXPECT_TRUE(DialogInfo() == DialogInfo());
    EXPECT_TRUE(weather() == weather());
    EXPECT_FALSE(weather() != weather());
    DialogInfo name = weather();
    name.setTopicName("Weather");
    DialogInfo version = weather();
    version.setTypeVersion("1.1");
    DialogInfo path = weather();
    path.setTopic("en", "other.talk");
    DialogInfo language = weather();
    language.removeTopic("en");
    language.setTopic("fr", "weather_en.talk");
    DialogInfo more = weather();
    more.setTopic("fr", "weather_fr.talk");
    for (const DialogInfo& other : {name, version, path, language, more}) {
        EXPECT_TRUE(weather() != other);
        EXPECT_FALSE(weather() == other);
    }
}

TEST(DialogInfo, ACopyIsDeep)
{
    const DialogInfo source = weather();
    DialogInfo copy(source);
    copy.setTopic("en", "changed");
    EXPECT_EQ(source.topic("en"), "weather_en.talk");
}

TEST(DialogInfo, AssignmentKeepsReferencesAndReturnsAFurtherCopy)
{
    DialogInfo target;
    const std::string& topicName = target.topicName();
    DialogInfo result = (target = weather());
    EXPECT_EQ(&topicName, &target.topicName());
    EXPECT_EQ(topicName, "weather");
    result.setTopicName("changed");
    EXPECT_EQ(target.topicName(), "weather");
    const DialogInfo& same = target;
    target = same;
    EXPECT_TRUE(target == weather());
}

} // namespace zu
