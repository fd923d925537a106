#pragma once

#include <zupackage/package_info.hpp>

namespace zu::test {

/// A behavior with every field filled, each with a text of its own.
BehaviorInfo wholeBehavior();
DialogInfo wholeDialog();
LanguageInfo wholeLanguage();

/// A package with every field filled, each with texts of its own, some of them empty; of every kind of record a whole
/// one and an empty one.
PackageInfo wholePackage();

} // namespace zu::test
