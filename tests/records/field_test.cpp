// A new field of a record that someone forgot to write, read, print, encode, convert or generate fails here.
#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"

#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/conversion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace zupackage {

using testing::UnorderedElementsAre;

namespace {

/// Becomes whatever a field is initialised with.
struct Anything
{
    template <class Value>
    operator Value() const; // NOLINT(google-explicit-constructor): that is what it is for
};

// Too few values is what is asked about.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
template <class Record, class... Values>
auto isMadeOf(int) -> decltype(Record{std::declval<Values>()...}, std::true_type());
template <class Record, class... Values>
std::false_type isMadeOf(long);
#pragma GCC diagnostic pop

/// How many fields a plain structure has.
template <class Record, class... Values>
constexpr std::size_t fieldCount()
{
    if constexpr (decltype(isMadeOf<Record, Values..., Anything>(0))::value)
        return fieldCount<Record, Values..., Anything>();
    else
        return sizeof...(Values);
}

template <class Record>
constexpr auto k_allFields = std::tuple_cat(k_fields<Record>, k_localFields<Record>);

template <class Record>
constexpr bool
    k_everyFieldIsInTheTable = fieldCount<Record>() == std::tuple_size_v<std::decay_t<decltype(k_allFields<Record>)>>;

static_assert(k_everyFieldIsInTheTable<zu::PackageInfoPrivate>);
static_assert(k_everyFieldIsInTheTable<zu::BehaviorInfoPrivate>);
static_assert(k_everyFieldIsInTheTable<zu::DialogInfoPrivate>);
static_assert(k_everyFieldIsInTheTable<zu::LanguageInfoPrivate>);
static_assert(k_everyFieldIsInTheTable<zu::RobotRequirement>);
static_assert(k_everyFieldIsInTheTable<zu::MorvoRequirement>);
static_assert(k_everyFieldIsInTheTable<zu::PackageService>);

/// Calls `use` with each field of a record, those that stay behind when it travels included.
template <class Record, class Use>
void forEachField(Use use)
{
    std::apply([&use](const auto&... field) { (use(field), ...); }, k_allFields<Record>);
}

/// What a value consists of: the private record of a handle, anything else itself.
template <class Value>
auto& content(Value& value)
{
    if constexpr (std::is_constructible_v<std::remove_const_t<Value>, const VX::VXValue&>)
        return zu::PrivateRecord::of(value);
    else
        return value;
}

template <class Element>
using RecordOf = std::remove_const_t<std::remove_reference_t<decltype(content(std::declval<Element&>()))>>;

constexpr char k_text[] = "canStandUp"; // one that a list of permissions takes

void fill(std::string& text) { text = k_text; }
void fill(bool& flag) { flag = true; }
void fill(std::list<std::string>& texts) { texts = {k_text}; }
void fill(std::map<std::string, std::string>& texts) { texts = {{"en", k_text}}; }
void fill(std::map<std::string, std::list<std::string>>& texts) { texts = {{"en", {k_text}}}; }

template <class Element>
void fill(std::list<Element>& records)
{
    using Record = RecordOf<Element>;
    forEachField<Record>([&record = content(records.emplace_back())](const auto& field) {
        if (!field.isReserved)
            fill(record.*field.pointer);
    });
}

template <class Value>
bool isSame(const Value& left, const Value& right)
{
    return left == right;
}

template <class Record>
bool isSameRecord(const Record& left, const Record& right);

template <class Element>
bool isSame(const std::list<Element>& left, const std::list<Element>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const Element& l, const Element& r) {
        if constexpr (std::is_same_v<Element, std::string>)
            return l == r;
        else
            return isSameRecord(content(l), content(r));
    });
}

template <class Record>
bool isSameRecord(const Record& left, const Record& right)
{
    bool same = true;
    forEachField<Record>([&](const auto& field) { same = same && isSame(left.*field.pointer, right.*field.pointer); });
    return same;
}

bool isSamePackage(const zu::PackageInfo& left, const zu::PackageInfo& right)
{
    return isSameRecord(content(left), content(right));
}

using Use = std::function<void(const std::string& field, const zu::PackageInfo& package)>;

/// Calls `use` with a package for each field of the records in one of its lists, which holds one record with that field
/// alone.
template <class Element>
void withEachFieldOf(std::list<Element> zu::PackageInfoPrivate::*list, const std::string& recordName, const Use& use)
{
    forEachField<RecordOf<Element>>([&](const auto& field) {
        if (field.isReserved)
            return;
        zu::PackageInfo package;
        fill(content((content(package).*list).emplace_back()).*field.pointer);
        use(recordName + "." + field.member, package);
    });
}

/// Calls `use` with a package for each field of each record, with that field alone.
void withEachField(const Use& use)
{
    using Package = zu::PackageInfoPrivate;
    forEachField<Package>([&use](const auto& field) {
        zu::PackageInfo package;
        fill(content(package).*field.pointer);
        use(field.member, package);
    });
    withEachFieldOf(&Package::behaviors, "behavior", use);
    withEachFieldOf(&Package::dialogs, "dialog", use);
    withEachFieldOf(&Package::languages, "language", use);
    withEachFieldOf(&Package::robotRequirements, "robotRequirement", use);
    withEachFieldOf(&Package::morvoRequirements, "morvoRequirement", use);
    withEachFieldOf(&Package::services, "service", use);
}

/// The fields that are lost when a package goes a way and comes back.
template <class Way>
std::set<std::string> lostOn(Way way)
{
    std::set<std::string> lost;
    withEachField([&](const std::string& field, const zu::PackageInfo& package) {
        if (!isSamePackage(way(package), package))
            lost.insert(field);
    });
    return lost;
}

} // namespace

TEST(EveryField, IsCopied)
{
    EXPECT_THAT(lostOn([](const zu::PackageInfo& package) {
                    zu::PackageInfo assigned;
                    assigned = package;
                    return assigned;
                }),
                UnorderedElementsAre());
}

TEST(EveryField, IsWrittenToAManifestAndRead)
{
    EXPECT_THAT(lostOn([](zu::PackageInfo package) { return zu::test::packageFrom(package.saveToManifestContent()); }),
                UnorderedElementsAre("installer", "path"));
}

TEST(EveryField, IsReadIntoTheValueModelAndConverted)
{
    const zu::test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    EXPECT_THAT(lostOn([&path](const zu::PackageInfo& package) -> zu::PackageInfo {
                    EXPECT_TRUE(package.saveToManifestFile(path));
                    return zu::loadManifest(path);
                }),
                UnorderedElementsAre("installer", "path", "descriptionLanguages"));
}

TEST(EveryField, IsEncodedAndDecoded)
{
    std::set<std::string> lost;
    withEachField([&lost](const std::string& field, zu::PackageInfo package) {
        package.setUuid(k_text); // without, nothing is encoded
        VX::VXValue value;
        package.toVXValue(value);
        if (!isSamePackage(value, package))
            lost.insert(field);
    });
    EXPECT_THAT(lost, UnorderedElementsAre("installOnlyAtStartup"));
}

TEST(EveryField, GoesThroughTheTypeSystem)
{
    using Values = std::map<std::string, zu::AnyValue>;
    EXPECT_THAT(lostOn([](const zu::PackageInfo& package) {
                    const auto named = zu::AnyValue::from(package).to<Values>();
                    return zu::AnyValue::from(named).to<zu::PackageInfo>();
                }),
                UnorderedElementsAre("installOnlyAtStartup"));
}

TEST(EveryField, IsPrinted)
{
    std::set<std::string> unprinted;
    withEachField([&unprinted](const std::string& field, const zu::PackageInfo& package) {
        if (zu::test::dumpOf(package).find(k_text) == std::string::npos)
            unprinted.insert(field);
    });
    EXPECT_THAT(unprinted, UnorderedElementsAre(
                               // Flags print as 1.
                               "installOnlyAtStartup", "behavior.userRequestable",
                               // Left out, and so are the fields of the services.
                               "installer", "executableFiles", "descriptionLanguages", "services", "service.execStart",
                               "service.name", "service.autoRun", "service.envVars"));
}

TEST(EveryField, IsFilledByTheGeneratorOfTheProperties)
{
    std::set<std::string> unfilled;
    withEachField([&unfilled](const std::string& field, const zu::PackageInfo&) { unfilled.insert(field); });
    const auto strike = [&unfilled](const std::string& prefix, const auto& record) {
        using Record = std::decay_t<decltype(record)>;
        forEachField<Record>([&](const auto& field) {
            if (!isSame(record.*field.pointer, Record().*field.pointer))
                unfilled.erase(prefix + field.member);
        });
    };
    const auto strikeAll = [&strike](const std::string& prefix, const auto& records) {
        for (const auto& record : records)
            strike(prefix, content(record));
    };
    zu::test::checkProperty(200, [&] {
        const zu::PackageInfo package = *zu::test::packages(zu::test::texts());
        strike("", content(package));
        strikeAll("behavior.", package.behaviors());
        strikeAll("dialog.", package.dialogs());
        strikeAll("language.", package.languages());
        strikeAll("robotRequirement.", package.robotRequirements());
        strikeAll("morvoRequirement.", package.morvoRequirements());
        strikeAll("service.", package.services());
    });
    EXPECT_THAT(unfilled, UnorderedElementsAre("installer", "path"));
}

} // namespace zupackage
