// What fails for want of memory leaves everything as it was.
#include "failing_allocation.hpp"

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace zu {

namespace allocationtest {

const std::string g_long(100, 'a'); // does not fit into the string object itself

/// Registered under one of these names each.
template <int N>
struct Registered
{
    std::string text;
};

struct Record
{
    std::string text = g_long;
    std::vector<std::string> list{g_long, g_long};
    std::string secret = g_long; ///< no member
};

/// A public class over a private record, whose assignment gives a further copy.
struct Account
{
    Account() : record(std::make_unique<Record>()) {}
    Account(const Account& other) : record(std::make_unique<Record>(*other.record)) {}
    Account operator=(const Account& other) // NOLINT(misc-unconventional-assign-operator)
    {
        *record = *other.record;
        return *this;
    }
    ~Account() = default;

    std::unique_ptr<Record> record;
};

const bool g_recordRegistered =
    registerStruct<Record>("::allocationtest::Record", {{"text", &Record::text}, {"list", &Record::list}});
const bool g_accountRegistered =
    registerBouncer<Account>("::allocationtest::Account", [](Account* account) { return account->record.get(); });

} // namespace allocationtest

using allocationtest::Account;
using allocationtest::g_long;
using allocationtest::Record;
using allocationtest::Registered;
using MemberValues = std::map<std::string, AnyValue>;

namespace {

MemberValues newValues()
{
    return {{"text", AnyValue::from(g_long + "new")},
            {"list", AnyValue::from(std::vector<AnyValue>{AnyValue::from(g_long), AnyValue::from("b")})}};
}

/// Converts `source` into a target that `make()` gives, each allocation failing once.
template <class Make, class Source>
void expectWholeOrNothing(Make make, const Source& source)
{
    auto target = make();
    const AnyReference reference = AnyReference::from(target);
    const auto before = make();
    const auto reset = [&] { reference.set(AnyReference::from(before)); };
    reset(); // makes the interfaces that are needed for it
    tryConvert(AnyReference::from(source), reference);
    const std::size_t failed = withEachAllocationFailing(
        reset, [&] { convert(AnyReference::from(source), reference); },
        [&](bool done) { EXPECT_EQ(AnyReference::from(before) == reference, !done) << reference; });
    EXPECT_GT(failed, 0u);
}

} // namespace

TEST(AllocationFailure, AConversionChangesItsTargetAsAWholeOrNotAtAll)
{
    expectWholeOrNothing([] { return Record(); }, newValues());
    expectWholeOrNothing([] { return Account(); }, newValues());
    expectWholeOrNothing([] { return std::optional<Account>(Account()); }, newValues());
    expectWholeOrNothing([] { return std::optional<Account>(); }, newValues());
    expectWholeOrNothing([] { return std::vector<std::string>{g_long}; }, std::list<std::string>{g_long, g_long});
    expectWholeOrNothing(
        [] {
            return std::map<std::string, std::string>{{g_long, g_long}};
        },
        MemberValues{{"a", AnyValue::from(g_long)}, {"b", AnyValue::from(g_long)}});
    expectWholeOrNothing([] { return std::pair<std::string, Record>(); },
                         std::tuple<std::string, MemberValues>(g_long, newValues()));
}

TEST(AllocationFailure, WhatIsNoMemberOutlivesIt)
{
    Account account;
    withEachAllocationFailing([] {}, [&] { AnyReference::from(account).set(newValues()); },
                              [&](bool) { EXPECT_EQ(account.record->secret, g_long); });
}

TEST(AllocationFailure, ContainersChangeAsAWholeOrNotAtAll)
{
    std::vector<std::string> list;
    std::map<std::string, std::string> map;
    const auto reset = [&] {
        list = {g_long};
        map = {{g_long, g_long}};
    };
    const auto sizes = [&] { return std::pair(list.size(), map.size()); };
    reset();
    AnyReference::from(list).append(g_long);
    AnyReference::from(map).insert(g_long + "b", g_long);
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(list).append(g_long.c_str()); },
        [&](bool done) { EXPECT_EQ(sizes(), std::pair(done ? 2ul : 1ul, 1ul)); });
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(list).insert(0, g_long.c_str()); },
        [&](bool done) { EXPECT_EQ(sizes(), std::pair(done ? 2ul : 1ul, 1ul)); });
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(map).insert("b", g_long.c_str()); },
        [&](bool done) { EXPECT_EQ(sizes(), std::pair(1ul, done ? 2ul : 1ul)); });
}

TEST(AllocationFailure, ListsOfElementsThatCannotMoveChangeAsAWholeOrNotAtAll)
{
    std::vector<Account> list;
    const auto reset = [&] {
        list = std::vector<Account>(3);
        for (std::size_t i = 0; i != list.size(); ++i)
            list[i].record->text = g_long + std::to_string(i);
    };
    reset();
    const std::vector<Account> before = list;
    const auto check = [&](bool done) { EXPECT_EQ(AnyReference::from(list) == AnyReference::from(before), !done); };
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(list).append(before[0]); }, check);
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(list).insert(0, before[1]); }, check);
    withEachAllocationFailing(
        reset, [&] { AnyReference::from(list).erase(0); }, check);
}

TEST(AllocationFailure, AnyValuesAreAsTheyWere)
{
    const AnyValue source = AnyValue::from(newValues());
    AnyValue target;
    withEachAllocationFailing([&] { target = AnyValue::from(1); }, [&] { target = source; },
                              [&](bool done) { EXPECT_EQ(target == source, done) << target; });
    withEachAllocationFailing([&] { target = AnyValue::from(g_long); }, [&] { target.set(g_long + "b"); },
                              [&](bool done) { EXPECT_EQ(target == AnyValue::from(g_long), !done); });
}

TEST(AllocationFailure, ATypeIsFiledUnderIdentityAndNameOrUnderNeither)
{
    const std::string name = "::allocationtest::Registered" + g_long;
    const TypeInfo info = TypeInfo::of<Registered<1>>();
    const std::size_t failed = withEachAllocationFailing(
        [] {},
        [&] {
            EXPECT_TRUE((registerStruct<Registered<1>>(name, {{"text", &Registered<1>::text}})));
        },
        [&](bool done) {
            ASSERT_EQ(getType(info) != nullptr, done);
            ASSERT_EQ(findType(name), getType(info));
            if (done) {
                ASSERT_EQ(getType(info)->name(), name);
            }
        });
    EXPECT_GT(failed, 0u);
}

TEST(AllocationFailure, AnInterfaceIsMadeAgainUntilItIsThere)
{
    withEachAllocationFailing([] {}, [] { typeOf<std::vector<Registered<2>>>(); }, [](bool) {});
    EXPECT_EQ(typeOf<std::vector<Registered<2>>>()->kind(), TypeKind::List);
    EXPECT_EQ(AnyValue::from(std::vector<Registered<2>>(1)).size(), 1u);
}

TEST(AllocationFailure, LeavesComparingAndPrintingHarmless)
{
    const AnyValue value = AnyValue::from(newValues());
    const AnyValue copy = value;
    std::size_t seen = 0;
    withEachAllocationFailing([] {}, [&] { seen += value == copy && value.hash() == copy.hash() ? 1u : 0u; },
                              [&](bool done) { EXPECT_EQ(seen, done ? 1u : 0u); });
    std::ostringstream stream;
    const auto reset = [&] {
        stream.clear();
        stream.str({});
    };
    withEachAllocationFailing(
        reset, [&] { stream << value; }, [&](bool done) { EXPECT_EQ(stream.str().empty(), !done || !stream); });
}

} // namespace zu
