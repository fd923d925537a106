#pragma once

#include <zupackage/package_info.hpp>

#include <string>

/// Generated manifests, to be called in a property.
namespace zu::test {

/// The manifest of a package, which reads alike or nearly so, written as oddly as it may be: comments, instructions,
/// unknown elements and attributes, repeated and reordered entries, references, CDATA sections, white space, line ends
/// and encodings of every kind.
std::string oddManifest(PackageInfo package);

/// Changes, adds or removes one thing of a behavior.
void changeBehavior(BehaviorInfo& behavior);

/// A copy of the package with one to four things changed, added, removed or moved.
PackageInfo changedPackage(PackageInfo package);

} // namespace zu::test
