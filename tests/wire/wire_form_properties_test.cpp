#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"
#include "support/variants.hpp"

#include <zupackage/package_info.hpp>
#include <zupackage/vxvalue.hpp>

namespace zu {

using test::anyVariant;
using test::checkProperty;
using test::describe;
using test::dumpOf;
using test::k_inputs;
using test::layout;
using test::mutated;
using test::packages;
using test::texts;
using VX::VXValue;

namespace {

/// A package of all kinds of records, however small the input is, with installer and path, which the generator leaves
/// empty.
PackageInfo anyPackage()
{
    PackageInfo package = *rc::gen::resize(rc::kNominalSize, packages(texts()));
    package.setInstaller(*texts());
    package.setPath(*texts());
    return package;
}

PackageInfo anyPackageWithUuid()
{
    PackageInfo package = anyPackage();
    if (package.uuid().empty())
        package.setUuid("uuid");
    return package;
}

template <class Record>
VXValue encoded(Record record)
{
    VXValue value;
    record.toVXValue(value);
    return value;
}

VXValue encoded(const DialogInfo& dialog) { return dialog.toVXValue(); }

/// What the wire form carries of a package.
PackageInfo carried(const PackageInfo& package)
{
    if (package.uuid().empty())
        return {};
    PackageInfo result = package;
    result.setInstallOnlyAtStartup(false);
    return result;
}

/// Keeps what is printed to itself: a Binary that is read as a text warns each time.
class SilencedOutput
{
public:
    SilencedOutput() { testing::internal::CaptureStdout(); }
    ~SilencedOutput() { testing::internal::GetCapturedStdout(); }
    SilencedOutput(const SilencedOutput&) = delete;
    SilencedOutput& operator=(const SilencedOutput&) = delete;
};

/// Whether the value decodes. A record that it gives can be used; an exception other than VXError gets through.
template <class Record>
bool decodes(const VXValue& value)
{
    try {
        const Record record(value);
        dumpOf(record);
        // What was read once is written and read again: decoding settles.
        const VXValue again = encoded(record);
        RC_ASSERT(layout(encoded(Record(again))) == layout(again));
        return true;
    } catch (const VX::VXError&) {
        return false;
    }
}

/// Decodes `value` as every record.
/// @return how many records it gave
int decodeAsEveryRecord(const VXValue& value)
{
    const SilencedOutput silenced;
    const std::string text = value.dump(3);
    RC_ASSERT(!text.empty());
    return int(decodes<BehaviorInfo>(value)) + int(decodes<DialogInfo>(value)) + int(decodes<LanguageInfo>(value)) +
           int(decodes<PackageInfo>(value));
}

template <class Records>
VXValue encodingOfOne(const Records& records)
{
    return records.empty() ? encoded(typename Records::value_type()) : encoded(records.front());
}

/// The encoding of a package, or of one of its records.
VXValue anyEncoding()
{
    const PackageInfo package = anyPackageWithUuid();
    switch (*rc::gen::element(0, 1, 2, 3, 3, 3)) {
    case 0:
        return encodingOfOne(package.behaviors());
    case 1:
        return encodingOfOne(package.dialogs());
    case 2:
        return encodingOfOne(package.languages());
    default:
        return encoded(package);
    }
}

} // namespace

TEST(WireForm, EncodingAndDecodingGivesTheSamePackage)
{
    std::size_t records = 0;
    const int inputs = checkProperty(k_inputs, [&records] {
        const PackageInfo package = anyPackage();
        RC_ASSERT(describe(PackageInfo(encoded(package))) == describe(carried(package)));
        records += package.behaviors().size() + package.dialogs().size() + package.languages().size();
    });
    EXPECT_GT(records, std::size_t(inputs)) << "what is checked must be there";
}

TEST(WireForm, DecodingAndEncodingGivesTheSameVariant)
{
    checkProperty(k_inputs, [] {
        const VXValue value = encoded(anyPackage());
        RC_ASSERT(layout(encoded(PackageInfo(value))) == layout(value));
    });
}

TEST(WireForm, CarriesBehaviorsDialogsAndLanguagesAlone)
{
    checkProperty(k_inputs, [] {
        const PackageInfo package = anyPackage();
        for (const BehaviorInfo& behavior : package.behaviors())
            RC_ASSERT(dumpOf(BehaviorInfo(encoded(behavior))) == dumpOf(behavior));
        for (const DialogInfo& dialog : package.dialogs())
            RC_ASSERT(DialogInfo(encoded(dialog)) == dialog);
        for (const LanguageInfo& language : package.languages())
            RC_ASSERT(dumpOf(LanguageInfo(encoded(language))) == dumpOf(language));
    });
}

TEST(WireForm, TheShorterFormsLackWhatTheirPairsHold)
{
    checkProperty(k_inputs, [] {
        PackageInfo package = anyPackageWithUuid();
        VXValue value = encoded(package);
        package = carried(package);
        value.resizeArray(19);
        package.clearDescriptionLanguages();
        RC_ASSERT(describe(PackageInfo(value)) == describe(package));
        value.resizeArray(18);
        package.clearDialogs();
        RC_ASSERT(describe(PackageInfo(value)) == describe(package));
    });
}

TEST(WireForm, WritingOverAnythingGivesWhatWritingAfreshGives)
{
    checkProperty(k_inputs, [] {
        PackageInfo package = anyPackageWithUuid();
        VXValue value = anyVariant();
        if (value.type() != VXValue::Type::Array)
            value = VXValue();
        package.toVXValue(value);
        RC_ASSERT(layout(value) == layout(encoded(package)));
    });
}

TEST(WireForm, DecodingAnyVariantGivesARecordOrAVXError)
{
    int records = 0;
    const int inputs = checkProperty(k_inputs, [&records] { records += decodeAsEveryRecord(anyVariant()); });
    EXPECT_GT(records, inputs / 2);
    EXPECT_LT(records, inputs * 3) << "some must be refused";
}

TEST(WireForm, DecodingADamagedEncodingGivesARecordOrAVXError)
{
    int records = 0;
    const int inputs = checkProperty(k_inputs, [&records] { records += decodeAsEveryRecord(mutated(anyEncoding())); });
    EXPECT_GT(records, inputs / 2);
    EXPECT_LT(records, inputs * 3) << "some must be refused";
}

} // namespace zu
