#include "site/package_page.hpp"

#include <algorithm>

namespace zu::cli {

namespace {

Html titleLine(const SitePackage& package, const PagePlace& place)
{
    Html title;
    title << "<span"_html;
    if (!package.titleLanguage.empty())
        title << languageAttributes(package.titleLanguage);
    title << ">"_html << package.title << "</span>"_html;
    Html html;
    html << "<header class=\"package-head\">\n"_html << heading(0, title, place) << "<p class=\"badges\">"_html;
    if (!package.package.version().empty())
        html << "<span class=\"badge\">"_html << package.package.version() << "</span> "_html;
    if (!package.package.channel().empty())
        html << "<span class=\"badge\">"_html << package.package.channel() << "</span> "_html;
    html << findingsBadge(package.checked) << "</p>\n"_html;
    if (const auto* text = preferredText(package.package.descriptions(), package.package))
        html << "<p class=\"lead\""_html << languageAttributes(text->first) << ">"_html << text->second
             << "</p>\n"_html;
    if (!package.refusal.empty())
        html << "<p class=\"refusal\">The manifest cannot be read: "_html << package.refusal << "</p>\n"_html;
    return html << "</header>\n"_html;
}

Html facts(const SitePackage& shown)
{
    const PackageInfo& package = shown.package;
    Html rows;
    rows << fact("Identifier", package.uuid()) << fact("Author", package.author())
         << fact("Organization", package.organization()) << fact("Date", package.date())
         << fact("Manifest format", package.typeVersion())
         << fact("Installation", package.installOnlyAtStartup() ? "only when the robot starts" : "at any time");
    Html html;
    return html << "<dl class=\"facts\">\n"_html << rows << "</dl>\n"_html;
}

struct Section
{
    const char* id;
    std::string_view name;
    Html (*make)(const SitePackage&, const PagePlace&);
};

constexpr Section k_sections[] = {
    {"descriptions", "Descriptions", descriptionsSection},
    {"behaviors", "Behaviors", behaviorsSection},
    {"dialogs", "Dialogs", dialogsSection},
    {"speech", "Speech languages", speechLanguagesSection},
    {"requirements", "Requirements", requirementsSection},
    {"services", "Services", servicesSection},
    {"matrix", "Languages", matrixSection},
    {"findings", "Findings", findingsSection},
};

} // namespace

Html heading(std::size_t below, const Html& content, const PagePlace& place)
{
    constexpr std::size_t k_lowest = 6;
    const std::size_t level = std::min(place.headingLevel + below, k_lowest);
    Html html;
    return html << "<h"_html << level << ">"_html << content << "</h"_html << level << ">\n"_html;
}

Html sectionStart(const char* id, std::string_view name, const PagePlace& place)
{
    const std::size_t level = place.headingLevel + 1;
    const std::string wholeId = place.idPrefix + id;
    Html html;
    html << "<section"_html;
    // Among many packages the sections of all would have the same names to those who go from one to the next.
    if (place.idPrefix.empty())
        html << " aria-labelledby=\""_html << wholeId << "\""_html;
    return html << ">\n<h"_html << level << " id=\""_html << wholeId << "\">"_html << name << "</h"_html << level
                << ">\n"_html;
}

Html fact(std::string_view name, std::string_view value)
{
    Html html;
    if (!value.empty())
        html << "<div><dt>"_html << name << "</dt><dd><bdi>"_html << value << "</bdi></dd></div>\n"_html;
    return html;
}

Html packageArticle(const SitePackage& package, const PagePlace& place)
{
    Html contents;
    Html links;
    for (const Section& section : k_sections) {
        const Html content = section.make(package, place);
        if (content.isEmpty())
            continue;
        contents << content;
        links << "<li><a href=\"#"_html << place.idPrefix << section.id << "\">"_html << section.name
              << "</a></li>\n"_html;
    }
    Html html;
    html << "<article class=\"package\">\n"_html << titleLine(package, place)
         << "<nav class=\"contents\" aria-label=\""_html
         << "On " << package.title << "\"><ul>\n"_html << links << "</ul></nav>\n"_html << facts(package) << contents;
    return html << "</article>\n"_html;
}

} // namespace zu::cli
