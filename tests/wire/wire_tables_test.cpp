#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zupackage {

namespace {

std::string encodingOf(const std::string& /*text*/) { return "text"; }
std::string encodingOf(bool /*flag*/) { return "flag"; }
std::string encodingOf(const std::list<std::string>& /*list*/) { return "string list"; }
std::string encodingOf(const std::map<std::string, std::string>& /*map*/) { return "string map"; }
std::string encodingOf(const std::map<std::string, std::list<std::string>>& /*map*/) { return "map of string lists"; }

/// One for each record that has keys, the values in order for one that has none.
template <class Record>
std::string encodingOf(const std::list<Record>& /*list*/)
{
    if constexpr (std::tuple_size_v<decltype(k_fields<Record>)> == 0)
        return "record list";
    std::string values;
    std::apply(
        [&values](const auto&... field) {
            ((values += std::string(values.empty() ? "" : ", ") + field.member + " (" +
                        encodingOf(Record().*field.pointer) + ")"),
             ...);
        },
        k_fields<Record>);
    return "Array of Arrays of " + values;
}

template <class Record>
std::string wireTable()
{
    std::string table = "| # | key | value |\n|---|---|---|\n";
    int index = 0;
    const auto addRow = [&](const auto& field) {
        table += "| " + std::to_string(index++) + " | " + field.key + " | " +
                 (field.isReserved ? "Invalid, always" : encodingOf(Record().*field.pointer)) + " |\n";
    };
    std::apply([&addRow](const auto&... field) { (addRow(field), ...); }, k_fields<Record>);
    return table + '\n';
}

} // namespace

// Programs on the other side are written by these tables.
TEST(WireTables, OfTheGuideAreThoseOfTheCode)
{
    const std::string guide = zu::test::readFile(zu::test::sourcePath("docs/guide/variant.md"));
    for (const std::string& table : {wireTable<zu::PackageInfoPrivate>(), wireTable<zu::BehaviorInfoPrivate>(),
                                     wireTable<zu::DialogInfoPrivate>(), wireTable<zu::LanguageInfoPrivate>()})
        EXPECT_THAT(guide, testing::HasSubstr(table));
}

} // namespace zupackage
