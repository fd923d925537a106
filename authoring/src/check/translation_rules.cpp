#include "check/findings.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"

#include <array>
#include <set>

namespace zupackage::check {

namespace {

using zu::authoring::ExampleFrame;
using zu::authoring::Severity;

using Languages = std::set<std::string, std::less<>>;

/// The languages that one of the two lists of the package declares.
Languages declared(const Outline& outline, std::string_view list)
{
    Languages languages;
    for (const SourceNode language : outline.elements("/package/" + std::string(list) + "/language"))
        languages.insert(edit::readText(language));
    return languages;
}

constexpr std::string_view k_description = "descriptionLanguages";
constexpr std::string_view k_supported = "supportedLanguages";

/// Entries in languages, and the list that declares these.
struct Translated
{
    std::string_view container; ///< the path of the element that holds one for each language
    std::string_view entry;
    std::string_view language; ///< the attribute
    std::string_view declaredBy;
};

constexpr std::array<Translated, 2> k_names = {
    {{"/package/names", "name", "lang", k_description},
     {"/package/contents/behaviorContent/names", "name", "lang", k_description}}};
constexpr std::array<Translated, 2> k_descriptions = {
    {{"/package/descriptions", "description", "lang", k_description},
     {"/package/contents/behaviorContent/descriptions", "description", "lang", k_description}}};
constexpr std::array<Translated, 1> k_sentences = {
    {{"/package/contents/behaviorContent/triggerSentences", "sentence", "lang", k_supported}}};
constexpr std::array<Translated, 1> k_topics = {
    {{"/package/contents/dialogContent", "topic", "language", k_supported}}};

/// Reports the declared languages that a container with entries in others has none in.
void reportMissing(const Checked& checked, Findings& findings, const Translated& translated)
{
    const Languages languages = declared(checked.outline, translated.declaredBy);
    for (const SourceNode container : checked.outline.elements(translated.container)) {
        Languages present;
        for (const SourceNode entry : childrenNamed(container, translated.entry))
            present.insert(std::string(plainValue(entry, translated.language)));
        if (present.empty())
            continue;
        for (const std::string& language : languages) {
            if (findings.isFull())
                return;
            if (!isBlank(language) && present.count(language) == 0)
                findings.at(container, "no " + std::string(translated.entry) + " in " + inQuotes(language) +
                                           ", which is one of the " + std::string(translated.declaredBy));
        }
    }
}

template <typename Table>
void reportMissing(const Checked& checked, Findings& findings, const Table& table)
{
    // A part of the document that was not understood may hold what seems to be missing.
    if (!checked.document.isComplete())
        return;
    for (const Translated& translated : table)
        reportMissing(checked, findings, translated);
}

void findMissingNames(const Checked& checked, Findings& findings) { reportMissing(checked, findings, k_names); }

void findMissingDescriptions(const Checked& checked, Findings& findings)
{
    reportMissing(checked, findings, k_descriptions);
}

void findMissingSentences(const Checked& checked, Findings& findings) { reportMissing(checked, findings, k_sentences); }

void findMissingTopics(const Checked& checked, Findings& findings) { reportMissing(checked, findings, k_topics); }

/// What trimming a package to its declared languages looks at.
constexpr std::array<Translated, 7> k_trimmed = {
    {k_names[0],
     k_descriptions[0],
     k_names[1],
     k_descriptions[1],
     k_sentences[0],
     {"/package/contents/behaviorContent/tags", "tag", "lang", k_supported},
     {"/package/contents/behaviorContent/loadingResponses", "sentence", "lang", k_supported}}};

/// Whether one of the languages is a prefix of the code.
bool isKept(std::string_view code, const Languages& languages)
{
    for (std::size_t length = 0; length <= code.size(); ++length) {
        if (languages.find(code.substr(0, length)) != languages.end())
            return true;
    }
    return false;
}

/// Calls `visit(attribute, declaring list, whether one of its languages is a prefix)` for the languages of entries that
/// are not declared as they stand.
template <typename Table, typename Visit>
void forEachUndeclared(const Outline& outline, const Table& table, Visit visit)
{
    constexpr std::size_t k_longestCode = 64; // longer ones are reported as malformed
    for (const Translated& translated : table) {
        const Languages languages = declared(outline, translated.declaredBy);
        if (languages.empty())
            continue;
        const std::string path = std::string(translated.container) + "/" + std::string(translated.entry);
        for (const SourceNode entry : outline.elements(path)) {
            const SourceAttribute language = plainAttribute(entry, translated.language);
            const std::string_view code = language.value();
            if (!code.empty() && code.size() <= k_longestCode && languages.find(code) == languages.end())
                visit(language, translated.declaredBy, isKept(code, languages));
        }
    }
}

void findTrimmedTexts(const Checked& checked, Findings& findings)
{
    forEachUndeclared(
        checked.outline, k_trimmed, [&](SourceAttribute language, std::string_view list, bool isKeptByPrefix) {
            if (!isKeptByPrefix)
                findings.at(language, inQuotes(language.value()) + " is not one of the " + std::string(list) +
                                          ", so that trimming the package drops the text");
        });
}

void findUndeclaredLanguages(const Checked& checked, Findings& findings)
{
    forEachUndeclared(checked.outline, k_trimmed,
                      [&](SourceAttribute language, std::string_view list, bool isKeptByPrefix) {
                          if (isKeptByPrefix)
                              findings.at(language, inQuotes(language.value()) + " is not one of the " +
                                                        std::string(list) + "; trimming keeps it for a shorter one");
                      });
}

void findUndeclaredTopics(const Checked& checked, Findings& findings)
{
    forEachUndeclared(checked.outline, k_topics, [&](SourceAttribute language, std::string_view list, bool isPrefixed) {
        if (!isPrefixed)
            findings.at(language,
                        "a topic in " + inQuotes(language.value()) + ", which is not one of the " + std::string(list));
    });
}

void findMissingDeclarations(const Checked& checked, Findings& findings)
{
    if (!checked.document.isComplete())
        return;
    Languages reported;
    for (const Translated& translated : k_trimmed) {
        const auto& containers = checked.outline.elements(translated.container);
        if (!containers.empty() && declared(checked.outline, translated.declaredBy).empty() &&
            reported.insert(std::string(translated.declaredBy)).second)
            findings.at(containers.front(), "the package has no " + std::string(translated.declaredBy) +
                                                ", so that trimming it drops these texts");
    }
}

} // namespace

const std::vector<RuleRow>& translationRules()
{
    static const std::vector<RuleRow> rules = {
        {{"missing-languages", Severity::Warning, "Texts in a package that declares no languages",
          "Installers trim a package to the languages that it declares. Names and descriptions stay for the "
          "descriptionLanguages, tags, sentences and responses for the supportedLanguages; without these all of them "
          "go.",
          ExampleFrame::Languages, "", "<descriptionLanguages><language>en</language></descriptionLanguages>", ""},
         findMissingDeclarations},
        {{"missing-name", Severity::Warning, "A description language without a name",
          "Robots look for the name in exactly the language that they are set to and show nothing when there is none. "
          "Behaviors without any name are left alone.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description><description lang=\"fr\">Salue</description>"
          "</descriptions>\n"
          "  <descriptionLanguages><language>en</language><language>fr</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name><name lang=\"fr\">Bonjour</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description><description lang=\"fr\">Salue</description>"
          "</descriptions>\n"
          "  <descriptionLanguages><language>en</language><language>fr</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findMissingNames},
        {{"missing-description", Severity::Warning, "A description language without a description",
          "Stores show the description in exactly the language that they are set to and nothing when there is none. "
          "Behaviors without any description are left alone.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name><name lang=\"fr\">Bonjour</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language><language>fr</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name><name lang=\"fr\">Bonjour</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description><description lang=\"fr\">Salue</description>"
          "</descriptions>\n"
          "  <descriptionLanguages><language>en</language><language>fr</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findMissingDescriptions},
        {{"missing-sentences", Severity::Warning, "A supported language in which no sentence starts the behavior",
          "The robot listens in the language that it is set to. A behavior without any trigger sentence is found as an "
          "unasked one.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <supportedLanguages><language>en</language><language>fr</language></supportedLanguages>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents>\n"
          "    <behaviorContent path=\"hello\">\n"
          "      <userRequestable/>\n"
          "      <nature>interactive</nature>\n"
          "      <triggerSentences><sentence lang=\"en\">Say hello</sentence></triggerSentences>\n"
          "    </behaviorContent>\n"
          "  </contents>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <supportedLanguages><language>en</language><language>fr</language></supportedLanguages>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents>\n"
          "    <behaviorContent path=\"hello\">\n"
          "      <userRequestable/>\n"
          "      <nature>interactive</nature>\n"
          "      <triggerSentences><sentence lang=\"en\">Say hello</sentence><sentence lang=\"fr\">Dis "
          "bonjour</sentence>"
          "</triggerSentences>\n"
          "    </behaviorContent>\n"
          "  </contents>\n"
          "</package>",
          ""},
         findMissingSentences},
        {{"missing-topic", Severity::Warning, "A supported language without the topic of a dialog",
          "The robot cannot talk about the topic when it is set to that language. Dialogs without any topic are an "
          "empty section.",
          ExampleFrame::Contents,
          "<dialogContent topicName=\"food\"><topic language=\"en_GB\" path=\"food.en.talk\"/></dialogContent>",
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"food.en.talk\"/></dialogContent>", ""},
         findMissingTopics},
        {{"trimmed-text", Severity::Warning, "A text that trimming to the declared languages drops",
          "Installers trim a package to the languages that it declares, so that nobody ever sees such a text. Declare "
          "its language, or remove it.",
          ExampleFrame::Behavior,
          "<descriptions><description lang=\"en\">Greets</description><description lang=\"fr\">Salue</description>"
          "</descriptions>",
          "<descriptions><description lang=\"en\">Greets</description></descriptions>", ""},
         findTrimmedTexts},
        {{"undeclared-language", Severity::Info, "A text in a language that is declared in a shorter form only",
          "Trimming keeps it, for the declared code is the beginning of its own. Whoever lists the languages of the "
          "package does not see it.",
          ExampleFrame::Behavior,
          "<descriptions><description lang=\"en\">Greets</description><description lang=\"en_GB\">Greets</description>"
          "</descriptions>",
          "<descriptions><description lang=\"en\">Greets</description></descriptions>", ""},
         findUndeclaredLanguages},
        {{"undeclared-topic", Severity::Warning, "A topic in a language that the package does not support",
          "The robot never talks about it in that language: stores and settings offer the supportedLanguages alone. "
          "Trimming keeps it, so that it is installed for nobody.",
          ExampleFrame::Contents,
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"food.en.talk\"/>"
          "<topic language=\"fr\" path=\"food.fr.talk\"/></dialogContent>",
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"food.en.talk\"/></dialogContent>", ""},
         findUndeclaredTopics},
    };
    return rules;
}

} // namespace zupackage::check
