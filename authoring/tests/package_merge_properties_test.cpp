#include "support/edited_packages.hpp"
#include "support/property.hpp"
#include "support/records.hpp"

#include <zupackage/authoring/package_difference.hpp>
#include <zupackage/authoring/package_merge.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <list>
#include <sstream>

namespace zu::authoring {

namespace {

using test::asManifestsCarry;

PackageInfo editedCopy(const PackageInfo& package)
{
    PackageInfo copy = package;
    test::editAnything(copy, 4);
    return copy;
}

using Tags = std::vector<std::string>;

constexpr const char* k_tags[] = {"a", "b", "c", "d"};

Tags anyTags()
{
    const auto tag = rc::gen::map(rc::gen::inRange(0, 4), [](int i) { return std::string(k_tags[i]); });
    const auto size = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::size_t>(0, 5));
    return *rc::gen::container<Tags>(size, rc::gen::resize(rc::kNominalSize, tag));
}

/// A package with one behavior that has these tags.
PackageInfo packageWith(const Tags& tags)
{
    PackageInfo package;
    package.addBehavior(test::behaviorAt("b"));
    for (const std::string& tag : tags)
        package.behaviors().front().addTag(tag, "en");
    return package;
}

/// The words of a text in an order of their own.
std::vector<std::string> sortedWords(std::string text)
{
    std::replace(text.begin(), text.end(), ',', ' ');
    std::istringstream in(text);
    std::vector<std::string> words{std::istream_iterator<std::string>(in), {}};
    std::sort(words.begin(), words.end());
    return words;
}

constexpr std::size_t k_sections = 9;

/// A package that has each of its sections from another one.
PackageInfo composed(const std::array<const PackageInfo*, k_sections>& from)
{
    PackageInfo package;
    package.setVersion(from[0]->version());
    package.setInstallOnlyAtStartup(from[0]->installOnlyAtStartup());
    for (const auto& [lang, name] : from[1]->names())
        package.setName(name, lang);
    for (const auto& [lang, description] : from[2]->descriptions())
        package.setDescription(description, lang);
    for (const std::string& lang : from[3]->supportedLanguages())
        package.addSupportedLanguage(lang);
    package.behaviors() = from[4]->behaviors();
    for (const DialogInfo& dialog : from[5]->dialogs())
        package.addDialog(dialog);
    for (const LanguageInfo& language : from[6]->languages())
        package.addLanguage(language);
    package.robotRequirements() = from[7]->robotRequirements();
    package.morvoRequirements() = from[7]->morvoRequirements();
    for (const PackageService& service : from[8]->services())
        package.addService(service);
    return package;
}

} // namespace

TEST(PackageMergeProperties, WhatOneSideAloneDidIsTheMerge)
{
    test::checkProperty(test::k_inputs, [] {
        const PackageInfo base = test::anySmallPackage();
        const PackageInfo side = editedCopy(base);
        const int form = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 3));
        const PackageMerge merged = mergePackages(base, form == 0 ? base : side, form == 1 ? base : side);
        RC_ASSERT(merged.conflicts.empty());
        RC_ASSERT(asManifestsCarry(merged.ours) == asManifestsCarry(side));
    });
}

TEST(PackageMergeProperties, SidesThatChangePlacesMakeTheSameUpToOrder)
{
    int conflicts = 0;
    const int count = test::checkProperty(test::k_inputs, [&conflicts] {
        const PackageInfo base = test::anySmallPackage();
        const PackageInfo ours = editedCopy(base);
        const PackageInfo theirs = editedCopy(base);
        const PackageMerge merged = mergePackages(base, ours, theirs);
        const PackageMerge mirrored = mergePackages(base, theirs, ours);
        RC_ASSERT(merged.conflicts.size() == mirrored.conflicts.size());
        RC_ASSERT(sortedWords(asManifestsCarry(merged.ours)) == sortedWords(asManifestsCarry(mirrored.theirs)));
        if (merged.conflicts.empty())
            return;
        RC_ASSERT(!differences(merged.ours, merged.theirs).empty());
        ++conflicts;
    });
    if (count >= 2'000) { // few inputs may have none by chance
        EXPECT_GT(conflicts, count / 1'000);
    }
}

TEST(PackageMergeProperties, NoTagIsThereMoreOftenThanOnASideAndWhatOneRemovedAndTheOtherLeftIsGone)
{
    test::checkProperty(test::k_inputs, [] {
        const Tags base = anyTags();
        const Tags ours = anyTags();
        const Tags theirs = anyTags();
        const PackageMerge merged = mergePackages(packageWith(base), packageWith(ours), packageWith(theirs));
        for (const PackageInfo* side : {&merged.ours, &merged.theirs}) {
            const std::list<std::string> tags = side->behaviors().front().tags("en");
            for (const char* tag : k_tags) {
                const auto inBase = std::count(base.begin(), base.end(), tag);
                const auto inOurs = std::count(ours.begin(), ours.end(), tag);
                const auto inTheirs = std::count(theirs.begin(), theirs.end(), tag);
                const auto count = std::count(tags.begin(), tags.end(), tag);
                RC_ASSERT(count <= std::max(inOurs, inTheirs));
                RC_ASSERT(inBase != inTheirs || inOurs > inBase || count <= inOurs);
                RC_ASSERT(inBase != inOurs || inTheirs > inBase || count <= inTheirs);
            }
        }
    });
}

TEST(PackageMergeProperties, EditsOfDifferentSectionsAreBothThere)
{
    test::checkProperty(test::k_inputs, [] {
        const PackageInfo base = test::anySmallPackage();
        const PackageInfo ourSource = test::anySmallPackage();
        const PackageInfo theirSource = test::anySmallPackage();
        const auto masks = *rc::gen::pair(rc::gen::arbitrary<unsigned>(), rc::gen::arbitrary<unsigned>());
        std::array<const PackageInfo*, k_sections> ours{};
        std::array<const PackageInfo*, k_sections> theirs{};
        std::array<const PackageInfo*, k_sections> both{};
        for (std::size_t i = 0; i < k_sections; ++i) {
            const bool isOurs = (masks.first >> i & 1U) != 0;
            const bool isTheirs = !isOurs && (masks.second >> i & 1U) != 0;
            ours[i] = isOurs ? &ourSource : &base;
            theirs[i] = isTheirs ? &theirSource : &base;
            both[i] = isOurs ? &ourSource : isTheirs ? &theirSource : &base;
        }
        const PackageMerge merged = mergePackages(base, composed(ours), composed(theirs));
        RC_ASSERT(merged.conflicts.empty());
        RC_ASSERT(asManifestsCarry(merged.ours) == asManifestsCarry(composed(both)));
    });
}

} // namespace zu::authoring
