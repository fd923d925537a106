#include "support/records.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using test::behaviorAt;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;

static_assert(std::is_nothrow_move_constructible_v<WebInfo> && std::is_copy_constructible_v<WebInfo>);
static_assert(std::is_same_v<decltype(std::declval<WebInfo&>() = std::declval<const WebInfo&>()), WebInfo&>);
static_assert(std::is_same_v<decltype(std::declval<WebInfo&>() = std::declval<WebInfo&&>()), WebInfo&>);

static_assert(std::is_nothrow_move_constructible_v<PackageInfo2> && std::is_nothrow_move_assignable_v<PackageInfo2>);
static_assert(
    std::is_same_v<decltype(std::declval<PackageInfo2&>() = std::declval<const PackageInfo2&>()), PackageInfo2&>);
static_assert(std::is_same_v<decltype(std::declval<PackageInfo2&>() = std::declval<PackageInfo2&&>()), PackageInfo2&>);
static_assert(std::is_same_v<decltype(std::declval<PackageInfo2&>().web()), WebInfo&>);
static_assert(std::is_same_v<decltype(std::declval<const PackageInfo2&>().web()), WebInfo>);
static_assert(std::is_same_v<decltype(PackageInfo2::elements), std::map<std::string, AnyValue>>);

namespace {

using Values = std::map<std::string, AnyValue>;

/// Calls each accessor that makes or demands an entry of the contents map.
template <class Use>
void eachContentAccessor(PackageInfo2& package, Use use)
{
    use("behaviors", [&package] { package.behaviors(); });
    use("dialogs", [&package] { package.dialogs(); });
    use("languages", [&package] { package.languages(); });
    use("web", [&package] { package.web(); });
}

template <class Call>
void expectTypeMismatch(Call call)
{
    try {
        call();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Type mismatch");
    }
}

} // namespace

TEST(WebInfo, StartsEmpty) { EXPECT_EQ(WebInfo().path, ""); }

TEST(PackageInfo2, StartsEmpty)
{
    const PackageInfo2 package;
    for (const std::string* text :
         {&package.uuid, &package.version, &package.author, &package.channel, &package.organization, &package.date,
          &package.typeVersion, &package.installer, &package.path})
        EXPECT_EQ(*text, "");
    EXPECT_FALSE(package.installOnlyAtStartup);
    EXPECT_THAT(package.elements, IsEmpty());
}

TEST(PackageInfo2, ACopyIsDeep)
{
    PackageInfo2 package;
    package.behaviors().push_back(behaviorAt("first"));
    PackageInfo2 copy(package);
    PackageInfo2 assigned;
    assigned = package;
    package.behaviors()[0].setPath("second");
    EXPECT_EQ(copy.behaviors()[0].path(), "first");
    EXPECT_EQ(assigned.behaviors()[0].path(), "first");
}

TEST(PackageInfo2, ACopyOfContentNestedWithoutEndIsRefused)
{
    PackageInfo2 package;
    AnyValue& value = package.contents()["deep"];
    for (int i = 0; i < 2000; ++i) {
        AnyValue outer(typeOf<AnyValue>());
        outer.getIf<AnyValue>()->swap(value);
        value = std::move(outer);
    }
    EXPECT_THROW(PackageInfo2{package}, std::length_error);
}

TEST(PackageInfo2, AMoveTakesTheContentAlong)
{
    PackageInfo2 package;
    package.uuid = "u";
    const BehaviorInfo* held = &package.behaviors().emplace_back();
    PackageInfo2 moved(std::move(package));
    EXPECT_EQ(&moved.behaviors()[0], held);
    PackageInfo2 assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.uuid, "u");
    EXPECT_EQ(&assigned.behaviors()[0], held);
}

TEST(PackageInfo2Contents, AreMadeOnFirstUse)
{
    PackageInfo2 package;
    EXPECT_THAT(package.behaviors(), IsEmpty());
    EXPECT_THAT(package.elements, ElementsAre(Key("contents")));
    const Values* contents = package.elements.at("contents").getIf<Values>();
    ASSERT_NE(contents, nullptr);
    EXPECT_THAT(*contents, ElementsAre(Key("behaviors")));
    EXPECT_TRUE(contents->at("behaviors").holds<std::vector<BehaviorInfo>>());
    package.dialogs();
    package.languages();
    EXPECT_THAT(*contents, ElementsAre(Key("behaviors"), Key("dialogs"), Key("languages")));
}

TEST(PackageInfo2Contents, AreTheStoredValuesThemselves)
{
    PackageInfo2 package;
    package.behaviors().push_back(behaviorAt("b"));
    package.dialogs().emplace_back().setTopicName("d");
    package.languages().emplace_back().setLocale("l");
    package.contents()["web"] = AnyValue::from(WebInfo{"w"});
    package.web().path += "eb";
    EXPECT_EQ(package.behaviors()[0].path(), "b");
    EXPECT_EQ(package.dialogs()[0].topicName(), "d");
    EXPECT_EQ(package.languages()[0].locale(), "l");
    EXPECT_EQ(package.web().path, "web");
    EXPECT_EQ(&package.contents(), package.elements["contents"].getIf<Values>());
}

TEST(PackageInfo2Contents, ContentsOfAnotherTypeAreAMismatchAndStay)
{
    PackageInfo2 package;
    package.elements["contents"] = AnyValue::from(1);
    expectTypeMismatch([&package] { package.contents(); });
    eachContentAccessor(package, [](const char*, auto call) { expectTypeMismatch(call); });
    EXPECT_EQ(*package.elements["contents"].getIf<int>(), 1);
}

TEST(PackageInfo2Contents, AnEntryOfAnotherTypeIsAMismatchAndStays)
{
    PackageInfo2 package;
    eachContentAccessor(package, [&package](const char* key, auto call) {
        SCOPED_TRACE(key);
        package.contents()[key] = AnyValue::from(1);
        expectTypeMismatch(call);
        EXPECT_EQ(*package.contents()[key].template getIf<int>(), 1);
        package.contents()[key].reset();
        expectTypeMismatch(call);
        EXPECT_TRUE(package.contents()[key].isEmpty());
    });
}

TEST(PackageInfo2Contents, NothingIsConvertedToWriteTo)
{
    PackageInfo2 package;
    package.contents()["behaviors"] = AnyValue::from(std::list<BehaviorInfo>{behaviorAt("b")});
    expectTypeMismatch([&package] { package.behaviors(); });
}

TEST(PackageInfo2Contents, WebIsNotMadeButLeavesAnEmptyValue)
{
    PackageInfo2 package;
    expectTypeMismatch([&package] { package.web(); });
    ASSERT_THAT(package.contents(), ElementsAre(Key("web")));
    EXPECT_TRUE(package.contents()["web"].isEmpty());
    expectTypeMismatch([&package] { package.web(); });
    EXPECT_THROW(std::as_const(package).web(), ConversionError);
    package.contents()["web"] = AnyValue::from(WebInfo{"w"});
    EXPECT_EQ(package.web().path, "w");
}

TEST(PackageInfo2ConstContents, AreEmptyWhereAbsentAndChangeNothing)
{
    const PackageInfo2 package;
    EXPECT_THAT(package.contents(), IsEmpty());
    EXPECT_THAT(package.behaviors(), IsEmpty());
    EXPECT_THAT(package.dialogs(), IsEmpty());
    EXPECT_THAT(package.languages(), IsEmpty());
    EXPECT_EQ(package.web().path, "");
    EXPECT_THAT(package.elements, IsEmpty());
}

TEST(PackageInfo2ConstContents, AreCopies)
{
    PackageInfo2 package;
    package.behaviors().push_back(behaviorAt("b"));
    std::as_const(package).behaviors()[0].setPath("changed");
    std::as_const(package).contents().clear();
    EXPECT_EQ(package.behaviors()[0].path(), "b");
}

TEST(PackageInfo2ConstContents, AreConverted)
{
    PackageInfo2 package;
    package.elements["contents"] =
        AnyValue::from(std::map<std::string, std::list<BehaviorInfo>>{{"behaviors", {behaviorAt("b")}}});
    EXPECT_EQ(std::as_const(package).behaviors().at(0).path(), "b");
    EXPECT_TRUE(std::as_const(package).contents().at("behaviors").holds<std::list<BehaviorInfo>>());
    package.elements["contents"] =
        AnyValue::from(Values{{"web", AnyValue::from(std::map<std::string, std::string>{{"path", "w"}})}});
    EXPECT_EQ(std::as_const(package).web().path, "w");
}

TEST(PackageInfo2ConstContents, WhatDoesNotConvertIsTheFrameworksError)
{
    PackageInfo2 package;
    package.contents()["behaviors"] = AnyValue::from(1);
    try {
        std::as_const(package).behaviors();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ConversionError& error) {
        EXPECT_EQ(error.failure().sourceType, typeOf<int>()->name());
        EXPECT_EQ(error.failure().targetType, typeOf<std::vector<BehaviorInfo>>()->name());
        EXPECT_EQ(error.failure().reason, "");
    }
    package.elements["contents"].reset();
    EXPECT_THROW(std::as_const(package).contents(), ConversionError);
    EXPECT_THROW(std::as_const(package).web(), ConversionError);
}

} // namespace zu
