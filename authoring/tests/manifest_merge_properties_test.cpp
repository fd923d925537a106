#include "support/captured_log.hpp"
#include "support/edited_packages.hpp"
#include "support/odd_manifests.hpp"
#include "support/property.hpp"

#include <zupackage/authoring/package_difference.hpp>
#include <zupackage/authoring/package_merge.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

PackageInfo packageRead(const std::string& manifest)
{
    PackageInfo package;
    RC_ASSERT(readManifest(manifest, package));
    return package;
}

std::string oddlyEdited(PackageInfo package)
{
    test::editAnything(package, 4);
    return test::oddManifest(package);
}

} // namespace

TEST(ManifestMergeProperties, TheResultReadsAsTheMergeOfThePackages)
{
    const test::CapturedLog log; // of variables that stand twice
    int conflicts = 0;
    const int count = test::checkProperty(2'000, [&conflicts] {
        const PackageInfo package = test::anySmallPackage();
        const std::string base = test::oddManifest(package);
        const std::string ours = oddlyEdited(package);
        const std::string theirs = oddlyEdited(package);
        const ManifestMerge merged = mergeManifests(base, ours, theirs);
        const PackageMerge expected = mergePackages(packageRead(base), packageRead(ours), packageRead(theirs));
        RC_ASSERT(merged.conflicts.size() == expected.conflicts.size());
        RC_ASSERT(differences(packageRead(merged.ours), expected.ours).empty());
        RC_ASSERT(differences(packageRead(merged.theirs), expected.theirs).empty());
        conflicts += merged.conflicts.empty() ? 0 : 1;
    });
    if (count >= 2'000) { // few inputs may have none by chance
        EXPECT_GT(conflicts, count / 1'000);
    }
}

TEST(ManifestMergeProperties, WithoutTheirChangesNoByteOfOursChanges)
{
    const test::CapturedLog log; // of variables that stand twice
    test::checkProperty(3'000, [] {
        const PackageInfo package = test::anySmallPackage();
        const std::string base = test::oddManifest(package);
        const std::string ours = oddlyEdited(package);
        const ManifestMerge merged = mergeManifests(base, ours, *rc::gen::element(base, ours));
        RC_ASSERT(merged.ours == ours);
        RC_ASSERT(merged.conflicts.empty());
    });
}

} // namespace zu::authoring
