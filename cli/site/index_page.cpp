#include "site/index_page.hpp"

#include "site/package_page.hpp"
#include "site/short_text.hpp"

#include <QtCore/QString>

#include <algorithm>

namespace zu::cli {

namespace {

// What a card shows of each facet, and what can be filtered by. More is not a package but an attack, which would spoil
// the list for all others.
constexpr std::size_t k_mostChips = 60;
constexpr std::size_t k_longestChip = 60;
constexpr std::size_t k_longestSummary = 600;
constexpr std::size_t k_longestSearched = 32'000; // bytes

std::set<std::string> robotsOf(const PackageInfo& package)
{
    std::set<std::string> robots;
    for (const RobotRequirement& robot : package.robotRequirements()) {
        if (!robot.model.empty() && robots.size() < k_mostChips)
            robots.insert(shortText(robot.model, k_longestChip));
    }
    return robots;
}

std::set<std::string> permissionsOf(const PackageInfo& package)
{
    std::set<std::string> permissions;
    for (const BehaviorInfo& behavior : package.behaviors()) {
        for (const std::string& permission : behavior.permissions()) {
            if (!permission.empty() && permissions.size() < k_mostChips)
                permissions.insert(shortText(permission, k_longestChip));
        }
    }
    return permissions;
}

std::set<std::string> languagesOf(const SitePackage& package)
{
    std::set<std::string> languages;
    for (const std::string& language : offeredLanguages(package)) {
        if (languages.size() < k_mostChips)
            languages.insert(shortText(language, k_longestChip));
    }
    return languages;
}

/// The facet's values, which the script filters by.
Html chips(const char* facet, std::string_view label, const std::set<std::string>& values)
{
    Html html;
    if (values.empty())
        return html;
    html << "<div><dt>"_html << label << "</dt><dd><ul class=\"chips\" data-facet=\""_html << facet << "\">"_html;
    for (const std::string& value : values)
        html << "<li>"_html << value << "</li>"_html;
    return html << "</ul></dd></div>\n"_html;
}

/// What people may look for beyond what the card shows.
std::string searchedText(const PackageInfo& package)
{
    std::string searched;
    const auto add = [&searched](const std::string& text) {
        if (searched.size() < k_longestSearched)
            searched += (searched.empty() ? "" : " ") + shortText(text);
    };
    for (const std::string& text : {package.uuid(), package.author(), package.organization()})
        add(text);
    for (const auto& [language, name] : package.names())
        add(name);
    for (const BehaviorInfo& behavior : package.behaviors()) {
        for (const auto& [language, name] : behavior.names())
            add(name);
        for (const auto& [language, tags] : behavior.languagesToTags())
            std::for_each(tags.begin(), tags.end(), add);
    }
    return searched;
}

/// The card up to the address of the package's page.
Html cardStart(const SitePackage& package)
{
    Html html;
    return html << "<li class=\"card\" data-search=\""_html << searchedText(package.package)
                << "\">\n<h2><a href=\""_html;
}

Html cardEnd(const SitePackage& package, const Html& facets)
{
    const PackageInfo& info = package.package;
    Html html;
    html << "\""_html;
    if (!package.titleLanguage.empty())
        html << languageAttributes(package.titleLanguage);
    html << ">"_html << package.title << "</a></h2>\n<p class=\"badges\">"_html;
    if (!info.version().empty())
        html << "<span class=\"badge\">"_html << shortText(info.version(), k_longestChip) << "</span> "_html;
    if (!info.channel().empty())
        html << "<span class=\"badge\">"_html << shortText(info.channel(), k_longestChip) << "</span> "_html;
    html << findingsBadge(package.checked) << "</p>\n"_html;
    if (const auto* text = preferredText(info.descriptions(), info))
        html << "<p class=\"summary\""_html << languageAttributes(text->first) << ">"_html
             << shortText(text->second, k_longestSummary) << "</p>\n"_html;
    if (!facets.isEmpty())
        html << "<dl class=\"facets\">\n"_html << facets << "</dl>\n"_html;
    return html << "</li>\n"_html;
}

Html selection(const char* facet, std::string_view label, std::string_view any, const std::set<std::string>& values)
{
    Html html;
    html << "<div><label for=\"filter-"_html << facet << "\">"_html << label << "</label>\n<select id=\"filter-"_html
         << facet << "\" data-filter=\""_html << facet << "\"><option value=\"\">"_html << any << "</option>"_html;
    // Without a value of its own, an option has its text without the blanks that browsers do not show.
    for (const std::string& value : values)
        html << "<option value=\""_html << value << "\">"_html << value << "</option>"_html;
    return html << "</select></div>\n"_html;
}

/// As people look for it: without regard to case.
std::string orderOf(const SitePackage& package)
{
    const QString folded = QString::fromStdString(package.title).toCaseFolded();
    return folded.toStdString() + '\0' + package.package.uuid();
}

} // namespace

IndexEntry IndexEntry::of(const SitePackage& package)
{
    IndexEntry entry;
    entry.order = orderOf(package);
    entry.languages = languagesOf(package);
    entry.robots = robotsOf(package.package);
    entry.permissions = permissionsOf(package.package);
    Html facets;
    facets << chips("language", "Languages", entry.languages) << chips("robot", "Robots", entry.robots)
           << chips("permission", "Permissions", entry.permissions);
    entry.beforeLink = cardStart(package);
    entry.afterLink = cardEnd(package, facets);
    return entry;
}

void IndexPage::add(IndexEntry entry, const std::string& link)
{
    Card& card = m_cards.emplace_back();
    card.order = std::move(entry.order);
    card.html << entry.beforeLink << link << entry.afterLink;
    m_languages.merge(entry.languages);
    m_robots.merge(entry.robots);
    m_permissions.merge(entry.permissions);
}

Html IndexPage::header(const std::string& title) const
{
    Html html;
    return html << "<header class=\"site-head\">\n<h1>"_html << title << "</h1>\n<p>"_html << count()
                << (count() == 1 ? " package" : " packages") << "</p>\n</header>\n"_html;
}

Html IndexPage::content() const
{
    std::vector<const Card*> sorted;
    for (const Card& card : m_cards)
        sorted.push_back(&card);
    std::stable_sort(sorted.begin(), sorted.end(), [](const Card* a, const Card* b) { return a->order < b->order; });

    Html html;
    // Shown by the script alone: without it nothing would happen.
    html << "<form class=\"filters\" role=\"search\" aria-label=\"Packages\" hidden>\n"
            "<div class=\"search\"><label for=\"search\">Search</label>\n"
            "<input id=\"search\" type=\"search\" autocomplete=\"off\" spellcheck=\"false\"></div>\n"_html
         << selection("language", "Language", "Any language", m_languages)
         << selection("robot", "Robot", "Any robot", m_robots)
         << selection("permission", "Permission", "Any permission", m_permissions)
         << "<button type=\"reset\">Clear</button>\n</form>\n"
            "<p class=\"result-count\" role=\"status\" aria-live=\"polite\"></p>\n<ul class=\"cards\">\n"_html;
    for (const Card* card : sorted)
        html << card->html;
    return html << "</ul>\n"_html;
}

} // namespace zu::cli
