#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/package_info.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// What became of a field or an entry of a package.
enum class ChangeKind
{
    Added,   ///< it is not in the package before, or empty there
    Removed, ///< it is not in the package after, or empty there
    Changed, ///< its text is another one
    Moved,   ///< it stands in another order among the others of its list
};

/// The kind as reports name it: `added`, `removed`, `changed`, `moved`.
ZUPACKAGE_AUTHORING_EXPORT std::string_view nameOf(ChangeKind kind);

/// One difference between two packages.
struct PackageChange
{
    /// Where, in XPath notation relative to the root element: `@version`, ``names/name[@lang='fr']``,
    /// ``contents/behaviorContent[@path='stories']/nature``, `requirements/morvoRequirement[2]`. As in the package
    /// after; of what was removed as in the one before. What a text identifies badly (an empty one, one with quotes of
    /// both kinds or with control characters) is told by its number.
    std::string path;
    ChangeKind kind; ///< tells which of the texts below are there
    /// The text of the field or entry in the package before; empty for what was added, and for an entry that says
    /// nothing beyond its path (a permission, an executable file).
    std::string before;
    std::string after; ///< the same in the package after; empty for what was removed
    /// The texts are XML, for an entry of more than a text: the element, in lines without an end after the last.
    bool isMarkup = false;
};

/// Equal when all members are, the texts byte by byte.
/// @{
inline bool operator==(const PackageChange& left, const PackageChange& right)
{
    return left.path == right.path && left.kind == right.kind && left.before == right.before &&
           left.after == right.after && left.isMarkup == right.isMarkup;
}
inline bool operator!=(const PackageChange& left, const PackageChange& right) { return !(left == right); }
/// @}

/// What makes one package the other, in the order in which manifests are written. Empty exactly when the two are the
/// same as a manifest carries them: what PackageInfo::saveToManifestContent() leaves out (installer, path, empty texts)
/// does not count, and neither does the order of what the package keeps sorted.
///
/// Entries are the same by what identifies them: texts by their language, behaviors, speech languages and executable
/// files by path (speech languages also by locale), dialogs by topic name, services, variables and permissions by
/// name, robots by model. Tags, sentences and conditions are the same by their text; one that stands where another
/// stood before is a changed one, as are requirements of the middleware. An entry that is new or gone is one change,
/// whatever it holds; one that moved and changed is several.
///
/// Moved are as few entries as possible, where no text repeats. Takes time in proportion to the packages, times the
/// logarithm of their longest list. Throws nothing (but std::bad_alloc); may be called by several threads at once, on
/// packages of their own.
ZUPACKAGE_AUTHORING_EXPORT std::vector<PackageChange> differences(const PackageInfo& before, const PackageInfo& after);

} // namespace zu::authoring
