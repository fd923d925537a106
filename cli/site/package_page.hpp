#pragma once

#include "site/html.hpp"
#include "site/site_package.hpp"

namespace zu::cli {

/// Where a package stands: on a page of its own, or among others on one.
struct PagePlace
{
    std::string idPrefix;         ///< before each id of the package
    std::size_t headingLevel = 1; ///< of its title
};

/// Everything about a package.
Html packageArticle(const SitePackage& package, const PagePlace& place);

/// @name Its parts; nothing where the package has none of it
/// @{
Html descriptionsSection(const SitePackage& package, const PagePlace& place);
Html behaviorsSection(const SitePackage& package, const PagePlace& place);
Html dialogsSection(const SitePackage& package, const PagePlace& place);
Html speechLanguagesSection(const SitePackage& package, const PagePlace& place);
Html requirementsSection(const SitePackage& package, const PagePlace& place);
Html servicesSection(const SitePackage& package, const PagePlace& place);
Html matrixSection(const SitePackage& package, const PagePlace& place);
Html findingsSection(const SitePackage& package, const PagePlace& place);
/// @}

/// The beginning of a section with a heading one level below the title; it ends with `</section>`.
Html sectionStart(const char* id, std::string_view name, const PagePlace& place);

/// A heading so many levels below the title.
Html heading(std::size_t below, const Html& content, const PagePlace& place);

/// How many findings there are, as a badge: "2 errors", or of the worst severity that there is.
Html findingsBadge(const CheckedManifest& checked);

/// A row of a list of facts, nothing for an empty value.
Html fact(std::string_view name, std::string_view value);

} // namespace zu::cli
