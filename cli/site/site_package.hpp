#pragma once

#include "check/checked_manifest.hpp"

#include <zupackage/authoring/language_matrix.hpp>
#include <zupackage/package_info.hpp>

#include <string>
#include <vector>

namespace zu::cli {

/// A package as pages show it.
struct SitePackage
{
    CheckedManifest checked; ///< with the document that findings quote
    std::string refusal;     ///< why the manifest is read as no package; empty when it is one
    PackageInfo package;
    authoring::LanguageMatrix matrix;
    std::string title;         ///< cut when nobody would read it to its end
    std::string titleLanguage; ///< empty for a title that is no name

    /// What its page is called by: the uuid, or, without one, the title.
    const std::string& identifier() const { return package.uuid().empty() ? title : package.uuid(); }
};

/// Reads and checks a manifest file, or what standard input holds for "-". What cannot be read is told in `checked`.
SitePackage readSitePackage(const std::string& path);

/// A text in the language that most readers of a site know: English, else the first of the declared languages, else
/// any.
/// @return null when there is no text that is not blank.
const std::pair<const std::string, std::string>* preferredText(const std::map<std::string, std::string>& texts,
                                                               const PackageInfo& package);

/// The languages that a package supports or, when it declares none, those that it has texts in.
std::vector<std::string> offeredLanguages(const SitePackage& package);

} // namespace zu::cli
