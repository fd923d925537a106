#include "support/log_capture.hpp"
#include "support/samples.hpp"
#include "support/struct_of.hpp"

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace zu {

namespace structtest {

struct AccountRecord
{
    std::string owner;
    long balance = 0;
};

/// A public class over a private record.
class Account
{
public:
    Account() : m_record(std::make_unique<AccountRecord>()) {}
    Account(const Account& other) : m_record(std::make_unique<AccountRecord>(*other.m_record)) {}
    Account operator=(const Account& other) // gives a further copy
    {
        *m_record = *other.m_record;
        return *this;
    }
    ~Account() = default;

    const std::string& owner() const { return m_record->owner; }
    void drop() { m_record.reset(); }

    static AccountRecord* record(Account* account) { return account->m_record.get(); }

private:
    std::unique_ptr<AccountRecord> m_record;
};

const bool g_recordRegistered = registerStruct<AccountRecord>(
    "::bank::AccountRecord", {{"owner", &AccountRecord::owner}, {"balance", &AccountRecord::balance}});
const bool g_accountRegistered = registerBouncer<Account>("::bank::Account", &Account::record);

struct Base
{
    int inherited = 1;
};

struct Derived : Base
{
    const int fixed = 2;
    int own = 3;
};

const bool g_derivedRegistered = registerStruct<Derived>(
    "::Derived", {{"inherited", &Derived::inherited}, {"fixed", &Derived::fixed}, {"own", &Derived::own}});

struct Hollow
{
};

struct UnregisteredRecord
{
    int a = 0;
};

struct Orphan
{
    UnregisteredRecord record;
};

const bool g_orphanRegistered = registerBouncer<Orphan>("::Orphan", [](Orphan* orphan) { return &orphan->record; });

} // namespace structtest

using structtest::Account;
using structtest::AccountRecord;

namespace {

template <class Call>
std::string errorOf(Call call)
{
    try {
        call();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "nothing was thrown";
}

} // namespace

TEST(Struct, TellsItsNamesAndTypesInOrder)
{
    const auto& type = structOf(typeOf<sample::Line>());
    EXPECT_EQ(type.className(), "::sample::Line");
    EXPECT_EQ(type.name(), "::sample::Line");
    EXPECT_THAT(type.elementsName(), testing::ElementsAre("name", "points", "notes"));
    EXPECT_THAT(type.memberTypes(), testing::ElementsAre(typeOf<std::string>(), typeOf<std::vector<sample::Point>>(),
                                                         typeOf<std::map<std::string, AnyValue>>()));
}

TEST(Struct, HandsOutTheMembersThemselves)
{
    sample::Point point{1, 2};
    const auto& type = structOf(typeOf<sample::Point>());
    EXPECT_EQ(type.element(&point, 1).address(), &point.y);
    type.element(&point, 0).set(9);
    EXPECT_EQ(point.x, 9);
    const std::vector<AnyReference> values = type.values(&point);
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values[0].address(), &point.x);
}

TEST(Struct, RegisteringMakesItKnownAtOnce)
{
    EXPECT_TRUE(structtest::g_recordRegistered);
    EXPECT_EQ(getType(TypeInfo::of<AccountRecord>()), typeOf<AccountRecord>());
    EXPECT_EQ(findType("::bank::AccountRecord"), typeOf<AccountRecord>());
    EXPECT_FALSE((registerStruct<AccountRecord>("::bank::AccountRecord", {{"owner", &AccountRecord::owner}})));
}

TEST(Struct, CanBeMadeWithoutBeingRegistered)
{
    const auto type = makeStruct<std::pair<int, int>>("::sample::Range", {{"from", &std::pair<int, int>::first}});
    EXPECT_EQ(type->className(), "::sample::Range");
    EXPECT_EQ(findType("::sample::Range"), nullptr);
    EXPECT_EQ(getType(type->info()), nullptr);
}

TEST(Struct, MembersOfBasesCountAndConstOnesAreForReadingOnly)
{
    structtest::Derived object;
    const auto& type = structOf(typeOf<structtest::Derived>());
    EXPECT_EQ(type.element(&object, 0).toInt(), 1);
    EXPECT_TRUE(type.element(&object, 1).isReadOnly());
    EXPECT_EQ(errorOf([&] { type.setValues(&object, type.values(&object)); }),
              "Cannot convert a list of values to ::Derived at .fixed: the target is for reading only");
}

TEST(Struct, NamesMustBeThereAndDiffer)
{
    using structtest::Hollow;
    EXPECT_EQ(errorOf([] { registerStruct<Hollow>("", {}); }), "a struct needs a class name");
    EXPECT_EQ(errorOf([] {
                  registerStruct<sample::Point>("::P", {{"", &sample::Point::x}});
              }),
              "a member of ::P has no name");
    EXPECT_EQ(errorOf([] {
                  registerStruct<sample::Point>("::P", {{"x", &sample::Point::x}, {"x", &sample::Point::y}});
              }),
              "the member x of ::P is there twice");
    EXPECT_TRUE(registerStruct<Hollow>("::Hollow", {}));
    EXPECT_EQ(AnyValue::from(Hollow()).size(), 0u);
}

TEST(Struct, AllMembersAreSetFromAListOrNone)
{
    sample::Point point{1, 2};
    const auto& type = structOf(typeOf<sample::Point>());
    long ten = 10;
    std::string text = "text";
    type.setValues(&point, {AnyReference::from(ten), AnyReference::from(point.x)});
    EXPECT_EQ(point, (sample::Point{10, 1}));
    EXPECT_EQ(errorOf([&] {
                  type.setValues(&point, {AnyReference::from(ten), AnyReference::from(text)});
              }),
              "Cannot convert a list of values to ::sample::Point at .y: std::string does not convert to int");
    EXPECT_EQ(
        errorOf([&] { type.setValues(&point, {AnyReference::from(ten)}); }),
        "Cannot convert a list of values to ::sample::Point: 1 values do not make the 2 members of ::sample::Point");
    EXPECT_EQ(errorOf([&] {
                  type.setValues(&point, {AnyReference(), AnyReference()});
              }),
              "Cannot convert a list of values to ::sample::Point at .x: there is no value");
    EXPECT_EQ(point, (sample::Point{10, 1}));
}

TEST(Struct, GoesToAndFromAMapOfNamedValues)
{
    sample::Point point{1, 2};
    const auto& type = structOf(typeOf<sample::Point>());
    std::map<std::string, AnyValue> values = type.toMap(&point);
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(*values.at("x").getIf<int>(), 1);
    values["y"] = AnyValue::from(7.0);
    type.fromMap(&point, values);
    EXPECT_EQ(point, (sample::Point{1, 7}));
}

TEST(Struct, MissingAndStrangeNamesAreRefused)
{
    sample::Point point{1, 2};
    const auto& type = structOf(typeOf<sample::Point>());
    std::map<std::string, AnyValue> values{{"x", AnyValue::from(5)}};
    EXPECT_THAT(errorOf([&] { type.fromMap(&point, values); }),
                testing::EndsWith(": there is no value for the member y"));
    values["y"] = AnyValue::from(6);
    values["z"] = AnyValue::from(7);
    EXPECT_THAT(errorOf([&] { type.fromMap(&point, values); }),
                testing::EndsWith(": there is no member for the value z"));
    EXPECT_EQ(point, (sample::Point{1, 2}));
}

TEST(Struct, GivesAMemberByItsName)
{
    sample::Point point{1, 2};
    AnyReference::from(point).member("y").set(7);
    EXPECT_EQ(point.y, 7);
    const sample::Point sealed{1, 2};
    EXPECT_EQ(AnyReference::from(sealed).member("x").toInt(), 1);
    EXPECT_TRUE(AnyReference::from(sealed).member("x").isReadOnly());
    Account account;
    AnyReference::from(account).member("owner").set("Ada");
    EXPECT_EQ(account.owner(), "Ada");
}

TEST(Struct, AMemberThatIsNotThereIsAnErrorThatListsThose)
{
    const sample::Line line;
    const std::pair<int, int> pair;
    EXPECT_EQ(errorOf([&] { AnyReference::from(line).member("point"); }),
              "member(\"point\") of ::sample::Line: its members are name, points, notes");
    EXPECT_EQ(errorOf([&] { AnyReference::from(pair).member("first"); }),
              "member(\"first\") of std::pair<int, int>: its members have no names");
    EXPECT_EQ(errorOf([&] { AnyReference::from(line.name).member("x"); }),
              "member() of std::string: a struct is needed");
}

TEST(StructBouncer, ReportsItsOwnNameAndTheRecordsMembers)
{
    EXPECT_TRUE(structtest::g_accountRegistered);
    const auto& type = structOf(typeOf<Account>());
    EXPECT_EQ(type.className(), "::bank::Account");
    EXPECT_EQ(findType("::bank::Account"), &type);
    EXPECT_THAT(type.elementsName(), testing::ElementsAre("owner", "balance"));
    EXPECT_THAT(type.memberTypes(), testing::ElementsAre(typeOf<std::string>(), typeOf<long>()));
}

TEST(StructBouncer, WritesThroughToTheRecord)
{
    Account account;
    const AnyReference reference = AnyReference::from(account);
    reference._element(0).set("Ada");
    EXPECT_EQ(account.owner(), "Ada");
    structOf(reference.type()).fromMap(&account, {{"owner", AnyValue::from("Grace")}, {"balance", AnyValue::from(3)}});
    EXPECT_EQ(account.owner(), "Grace");
    EXPECT_EQ(structOf(reference.type()).toMap(&account).at("balance").toInt(), 3);
}

TEST(StructBouncer, ValuesAreCopiesOfThePublicClass)
{
    Account account;
    AnyReference::from(account)._element(0).set("Ada");
    AnyValue value = AnyValue::from(std::vector<Account>{account});
    AnyReference::from(account)._element(0).set("Grace");
    EXPECT_EQ(value.getIf<std::vector<Account>>()->front().owner(), "Ada");
    EXPECT_EQ(value._element(0)._element(0).text(), "Ada");
    EXPECT_EQ(value.to<std::vector<AccountRecord>>().front().owner, "Ada");
}

TEST(StructBouncer, AMissingRecordAndARecordThatIsNoStructAreErrors)
{
    Account account;
    account.drop();
    EXPECT_EQ(errorOf([&] { AnyReference::from(account)._element(0); }), "an object of ::bank::Account has no record");
    structtest::Orphan orphan;
    EXPECT_EQ(errorOf([&] { AnyReference::from(orphan).size(); }),
              "zu::structtest::UnregisteredRecord is not registered as a struct");
    EXPECT_FALSE(AnyReference::from(orphan).tryTo<sample::Point>());
}

} // namespace zu
