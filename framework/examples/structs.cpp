// Structs that are known by name and member, and a public class over its private record.
#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>

#include <iostream>
#include <map>
#include <memory>
#include <string>

namespace geometry {

struct Point
{
    int x = 0;
    int y = 0;
};

} // namespace geometry

template <>
struct zu::StructSchema<geometry::Point>
{
    static Schema<geometry::Point> describe()
    {
        return {"::geometry::Point", {{"x", &geometry::Point::x}, {"y", &geometry::Point::y}}};
    }
};

namespace bank {

struct AccountRecord
{
    std::string owner;
    long balance = 0;
};

class Account
{
public:
    Account() : m_record(std::make_unique<AccountRecord>()) {}
    Account(const Account& other) : m_record(std::make_unique<AccountRecord>(*other.m_record)) {}
    Account& operator=(const Account& other)
    {
        *m_record = *other.m_record;
        return *this;
    }
    ~Account() = default;

    const std::string& owner() const { return m_record->owner; }

    static AccountRecord* record(Account* account) { return account->m_record.get(); }

private:
    std::unique_ptr<AccountRecord> m_record;
};

const bool g_recordRegistered = zu::registerStruct<AccountRecord>(
    "::bank::AccountRecord", {{"owner", &AccountRecord::owner}, {"balance", &AccountRecord::balance}});
const bool g_accountRegistered = zu::registerBouncer<Account>("::bank::Account", &Account::record);

} // namespace bank

namespace {

void describeAndFill()
{
    const auto point = zu::AnyValue::from(geometry::Point{1, 2});
    for (const auto& [name, value] : point.to<std::map<std::string, int>>())
        std::cout << name << '=' << value << ' ';
    std::cout << zu::findType("::geometry::Point")->name() << '\n';

    const std::map<std::string, zu::AnyValue> named{{"x", zu::AnyValue::from(7)}, {"y", zu::AnyValue::from("high")}};
    try {
        zu::AnyValue::from(named).to<geometry::Point>();
    } catch (const zu::ConversionError& error) {
        std::cout << error.failure().path << ": " << error.failure().reason << '\n';
    }
}

void writeThroughThePublicClass()
{
    bank::Account account;
    const auto reference = zu::AnyReference::from(account);
    reference._element(0).set("Ada");
    std::cout << reference.type()->name() << " of " << account.owner() << '\n';
}

} // namespace

int main()
{
    describeAndFill();
    writeThroughThePublicClass();
}
