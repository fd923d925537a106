#include "site/package_page.hpp"
#include "site/short_text.hpp"

namespace zu::cli {

namespace {

using Texts = std::map<std::string, std::string>;
using TextLists = std::map<std::string, std::list<std::string>>;

std::string shownLanguage(const std::string& code) { return code.empty() ? "no language" : code; }

/// Each language with its text, side by side.
Html translations(const Texts& names, const Texts& descriptions)
{
    Texts languages = names;
    languages.insert(descriptions.begin(), descriptions.end());
    Html html;
    for (const auto& [language, unused] : languages) {
        const auto name = names.find(language);
        const auto description = descriptions.find(language);
        html << "<div class=\"translation\"><dt>"_html << shownLanguage(language) << "</dt><dd"_html
             << languageAttributes(language) << ">"_html;
        if (name != names.end())
            html << "<strong>"_html << name->second << "</strong>"_html;
        if (description != descriptions.end())
            html << "<p>"_html << description->second << "</p>"_html;
        html << "</dd></div>\n"_html;
    }
    return html;
}

/// A list for each language, folded away.
Html textLists(std::string_view what, const TextLists& lists)
{
    std::size_t count = 0;
    Html rows;
    for (const auto& [language, texts] : lists) {
        if (texts.empty())
            continue;
        count += texts.size();
        rows << "<div class=\"translation\"><dt>"_html << shownLanguage(language) << "</dt><dd><ul"_html
             << languageAttributes(language) << ">"_html;
        for (const std::string& text : texts)
            rows << "<li>"_html << text << "</li>"_html;
        rows << "</ul></dd></div>\n"_html;
    }
    Html html;
    if (!rows.isEmpty())
        html << "<details><summary>"_html << what << " <span class=\"count\">"_html << count
             << "</span></summary>\n<dl>\n"_html << rows << "</dl>\n</details>\n"_html;
    return html;
}

Html chips(const std::list<std::string>& texts, std::string_view label)
{
    Html html;
    if (texts.empty())
        return html;
    html << "<ul class=\"chips\" aria-label=\""_html << label << "\">"_html;
    for (const std::string& text : texts)
        html << "<li>"_html << text << "</li>"_html;
    return html << "</ul>\n"_html;
}

/// What a heading has the beginning of alone.
Html factIfCut(std::string_view name, const std::string& value)
{
    return shortText(value) == value ? Html() : fact(name, value);
}

Html behaviorItem(const BehaviorInfo& behavior, const SitePackage& package, const PagePlace& place)
{
    Html title;
    const auto* name = preferredText(behavior.names(), package.package);
    if (name)
        title << "<span"_html << languageAttributes(name->first) << ">"_html << shortText(name->second)
              << "</span>"_html;
    else
        title << (behavior.path().empty() ? std::string("A behavior without a path") : shortText(behavior.path()));
    Html html;
    html << "<li class=\"item\">\n"_html << heading(2, title, place) << "<p class=\"path\"><code>"_html
         << behavior.path() << "</code></p>\n<p class=\"badges\">"_html;
    if (!behavior.nature().empty())
        html << "<span class=\"badge\">"_html << behavior.nature() << "</span> "_html;
    html << "<span class=\"badge\">"_html
         << (behavior.isUserRequestable() ? "can be asked for" : "starts by itself alone") << "</span></p>\n"_html
         << chips(behavior.permissions(), "Permissions");
    const Html translated = translations(behavior.names(), behavior.descriptions());
    if (!translated.isEmpty())
        html << "<details><summary>Names and descriptions</summary>\n<dl>\n"_html << translated
             << "</dl>\n</details>\n"_html;
    return html << textLists("Sentences that start it", behavior.languagesToTriggerSentences())
                << textLists("Said while it loads", behavior.languagesToLoadingResponses())
                << textLists("Tags", behavior.languagesToTags()) << "</li>\n"_html;
}

} // namespace

Html descriptionsSection(const SitePackage& package, const PagePlace& place)
{
    const Html rows = translations(package.package.names(), package.package.descriptions());
    Html html;
    if (!rows.isEmpty())
        html << sectionStart("descriptions", "Descriptions", place) << "<dl class=\"translations\">\n"_html << rows
             << "</dl>\n</section>\n"_html;
    return html;
}

Html behaviorsSection(const SitePackage& package, const PagePlace& place)
{
    Html html;
    if (!package.package.hasBehavior())
        return html;
    html << sectionStart("behaviors", "Behaviors", place) << "<ul class=\"items\">\n"_html;
    for (const BehaviorInfo& behavior : package.package.behaviors())
        html << behaviorItem(behavior, package, place);
    return html << "</ul>\n</section>\n"_html;
}

Html dialogsSection(const SitePackage& package, const PagePlace& place)
{
    Html html;
    if (package.package.dialogs().empty())
        return html;
    html << sectionStart("dialogs", "Dialogs", place) << "<ul class=\"items\">\n"_html;
    for (const DialogInfo& dialog : package.package.dialogs()) {
        Html title;
        title << (dialog.topicName().empty() ? std::string("A dialog without a name") : shortText(dialog.topicName()));
        html << "<li class=\"item\">\n"_html << heading(2, title, place) << "<dl>\n"_html
             << factIfCut("Topic", dialog.topicName()) << fact("Version of the topic files", dialog.typeVersion());
        for (const auto& [language, path] : dialog.topics())
            html << "<div class=\"translation\"><dt>"_html << shownLanguage(language) << "</dt><dd><code>"_html << path
                 << "</code></dd></div>\n"_html;
        html << "</dl>\n</li>\n"_html;
    }
    return html << "</ul>\n</section>\n"_html;
}

Html speechLanguagesSection(const SitePackage& package, const PagePlace& place)
{
    Html html;
    if (package.package.languages().empty())
        return html;
    html << sectionStart("speech", "Speech languages", place) << "<ul class=\"items\">\n"_html;
    for (const LanguageInfo& language : package.package.languages()) {
        Html title;
        title << (language.locale().empty() ? std::string("A language without a code") : shortText(language.locale()));
        Html rows;
        rows << factIfCut("Language", language.locale()) << fact("Speech engine", language.engineName())
             << fact("Version of the engine", language.engineVersion()) << fact("Folder", language.path());
        html << "<li class=\"item\">\n"_html << heading(2, title, place);
        if (!rows.isEmpty())
            html << "<dl>\n"_html << rows << "</dl>\n"_html;
        html << "</li>\n"_html;
    }
    return html << "</ul>\n</section>\n"_html;
}

} // namespace zu::cli
