#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/source_document.hpp>
#include <zupackage/package_info.hpp>

#include <stdexcept>
#include <string>
#include <vector>

namespace zu::authoring {

/// A field or an entry of which two sides made two things, so that people have to choose.
struct MergeConflict
{
    /// Where, in the notation of PackageChange::path; as on our side, of what we removed as in the base.
    std::string path;
    /// What it says in the base: its text, or the XML of an entry of more than a text; empty where it is not there.
    std::string base;
    std::string ours;   ///< the same on our side
    std::string theirs; ///< the same on their side
};

/// What two sides made of one package, put together.
struct PackageMerge
{
    PackageInfo ours;   ///< with our side of every conflict
    PackageInfo theirs; ///< with their side of every conflict, and else the same
    /// In the order in which manifests are written; empty when `ours` is all.
    std::vector<MergeConflict> conflicts;
};

/// Puts together what two sides made of `base`, field by field and entry by entry, which are the same by what
/// differences() knows them by. What one side changed, added, removed or moved is so in the merge; so is what both did
/// alike. A conflict is only what both changed to different texts (or added with different ones), and an entry that one
/// side removed while the other changed something in it. Of two orders ours stands; what both added in one place comes
/// from our side first. The sides change places without a difference, but for that.
///
/// Merged is what a manifest carries: PackageInfo::installer() and the like are empty in the result. Throws
/// std::runtime_error when the result would exceed what manifests can hold. May be called by several threads at once.
ZUPACKAGE_AUTHORING_EXPORT PackageMerge mergePackages(const PackageInfo& base, const PackageInfo& ours,
                                                      const PackageInfo& theirs);

/// What they added or removed that is no part of a package: a comment, an instruction, an unknown element or attribute,
/// web content.
struct UnmergedText
{
    std::string text;       ///< as it stands in their manifest or, when they removed it, in the base
    bool isRemoved = false; ///< whether they removed it; else they added it
};

/// What two sides made of one manifest, put together.
struct ManifestMerge
{
    std::string ours;   ///< the bytes of our manifest with what they changed, and our side of every conflict
    std::string theirs; ///< the same with their side of every conflict; what it has in common with `ours` are its bytes
    std::vector<MergeConflict> conflicts; ///< as PackageMerge has them; without any, `theirs` equals `ours`
    /// What they changed that is no part of a package, and that `ours` does not have, or still has: what they removed,
    /// then what they added, each sorted by the texts, of which one that came or went several times stands there once.
    /// What stands in an unknown element is part of its text.
    std::vector<UnmergedText> leftBehind;
};

/// Merges packages as mergePackages() does, in the text of our manifest: every byte of it stays that their changes do
/// not touch, as ManifestEditor has it. Of the text of the other manifests nothing counts but the packages that they
/// hold. A base without bytes is an empty package, for a manifest that both sides added.
///
/// Throws ManifestEditError when one of the others cannot be read, when our manifest cannot be edited, or when the
/// result would exceed what manifests can hold.
ZUPACKAGE_AUTHORING_EXPORT ManifestMerge mergeManifests(const std::string& base, const std::string& ours,
                                                        const std::string& theirs);

} // namespace zu::authoring
