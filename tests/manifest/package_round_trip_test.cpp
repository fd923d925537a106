#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"

namespace zu {

using test::checkProperty;
using test::describe;
using test::k_inputs;
using test::packageFrom;
using test::packages;
using test::written;

TEST(PackageRoundTrip, GeneratedPackagesHaveRecordsOfEveryKind)
{
    std::size_t behaviors = 0;
    std::size_t dialogs = 0;
    std::size_t languages = 0;
    std::size_t requirements = 0;
    std::size_t services = 0;
    const int inputs = checkProperty(200, [&] {
        const PackageInfo package = *packages(test::visibleTexts());
        behaviors += package.behaviors().size();
        dialogs += package.dialogs().size();
        languages += package.languages().size();
        requirements += package.robotRequirements().size() + package.morvoRequirements().size();
        services += package.services().size();
    });
    for (const std::size_t count : {behaviors, dialogs, languages, requirements, services})
        EXPECT_GT(count, std::size_t(inputs) / 2);
}

// What does not survive is stated by the exceptions below; visible texts and empty attributes do.
TEST(PackageRoundTrip, WritingAndReadingGivesTheSamePackage)
{
    checkProperty(k_inputs, [] {
        const PackageInfo package = *packages(test::visibleTexts());
        RC_ASSERT(describe(packageFrom(written(package))) == describe(package));
    });
}

TEST(PackageRoundTrip, WritingWhatWasReadGivesTheSameDocument)
{
    checkProperty(k_inputs, [] {
        const std::string document = written(*packages(test::visibleTexts()));
        RC_ASSERT(written(packageFrom(document)) == document);
    });
}

TEST(PackageRoundTrip, WithEmptyAndBlankTextsItSettlesAfterOneRound)
{
    checkProperty(k_inputs / 10, [] {
        const PackageInfo once = packageFrom(written(*packages(test::texts())));
        const PackageInfo twice = packageFrom(written(once));
        RC_ASSERT(describe(packageFrom(written(twice))) == describe(twice));
    });
}

TEST(PackageRoundTrip, ThroughAFileItIsTheSame)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    checkProperty(k_inputs / 10, [&path] {
        const PackageInfo package = *packages(test::visibleTexts());
        RC_ASSERT(package.saveToManifestFile(path));
        PackageInfo read;
        RC_ASSERT(read.loadFromManifestFile(path));
        RC_ASSERT(describe(read) == describe(package));
    });
}

TEST(PackageRoundTrip, EveryExamplePackageSurvives)
{
    for (const auto& folder : test::examplePackages()) {
        SCOPED_TRACE(folder);
        const test::TemporaryFolder temporary;
        const std::string path = (temporary.path() / "manifest.xml").string();
        PackageInfo package;
        ASSERT_TRUE(package.loadFromManifestFile((folder / "manifest.xml").string()));
        EXPECT_EQ(describe(packageFrom(written(package))), describe(package));
        ASSERT_TRUE(package.saveToManifestFile(path));
        PackageInfo read;
        ASSERT_TRUE(read.loadFromManifestFile(path));
        EXPECT_EQ(describe(read), describe(package));
        EXPECT_EQ(written(read), written(package));
    }
}

TEST(PackageRoundTripException, InstallerAndPathAreNotWritten)
{
    PackageInfo package;
    package.setInstaller("installer");
    package.setPath("path");
    EXPECT_EQ(describe(packageFrom(written(package))), describe(PackageInfo()));
}

TEST(PackageRoundTripException, EmptyTextsAndListsAreLost)
{
    PackageInfo package;
    package.setName("", "en");
    BehaviorInfo behavior;
    behavior.addTag("", "en");
    behavior.triggerSentences("fr"); // creates an empty list
    package.addBehavior(behavior);
    DialogInfo dialog;
    dialog.setTopic("", "path");
    dialog.setTopic("en", "");
    package.addDialog(dialog);
    PackageInfo expected;
    expected.addBehavior({});
    expected.addDialog({});
    EXPECT_EQ(describe(packageFrom(written(package))), describe(expected));
}

TEST(PackageRoundTripException, WhiteSpaceAloneComesBackEmptyExceptInConditionsAndAttributes)
{
    const std::string blank = " \t\n\xc2\xa0";
    PackageInfo package;
    package.setName(blank, "en");
    package.setUuid(blank);
    BehaviorInfo behavior;
    behavior.setNature(blank);
    behavior.addTag(blank, blank);
    behavior.addCondition(blank, "p");
    package.addBehavior(behavior);
    PackageInfo expected;
    expected.setName("", "en");
    expected.setUuid(blank);
    BehaviorInfo expectedBehavior;
    expectedBehavior.addTag("", blank);
    expectedBehavior.addCondition(blank, "p");
    expected.addBehavior(expectedBehavior);
    EXPECT_EQ(describe(packageFrom(written(package))), describe(expected));
}

TEST(PackageRoundTripException, AByteOrderMarkAtTheStartOfATextIsDropped)
{
    PackageInfo package;
    package.setUuid("\xef\xbb\xbfuuid\xef\xbb\xbf");
    EXPECT_EQ(packageFrom(written(package)).uuid(), "uuid\xef\xbb\xbf");
}

} // namespace zu
