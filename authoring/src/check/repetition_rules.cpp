#include "check/findings.hpp"
#include "check/repetition.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"

#include <map>
#include <string>
#include <unordered_map>

namespace zupackage::check {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::k_ownText;
using zu::authoring::Severity;

/// Where to look for equal entries, and what tells one from another.
struct Repetition
{
    std::string_view path;
    std::string_view key; ///< an attribute; k_ownText for the text
    Fate fate;
};

std::string keyOf(SourceNode element, std::string_view key)
{
    return key == k_ownText ? edit::readText(element) : edit::readAttribute(element, key);
}

/// Reports the elements of an entry that have one parent and one key. Empty keys have a rule of their own.
void reportEqual(const Checked& checked, Findings& findings, const Repetition& repetition, const std::string& what,
                 bool acrossParents = false)
{
    // By the number of the parent and the key; what is reported of three is first and second, second and third.
    std::map<std::pair<std::size_t, std::string>, SourceNode> seen;
    for (const SourceNode element : checked.outline.elements(repetition.path)) {
        std::string key = keyOf(element, repetition.key);
        if (key.empty())
            continue;
        const std::string subject = what + " " + inQuotes(key);
        const auto [place, isNew] =
            seen.try_emplace({acrossParents ? 0 : element.parent().index(), std::move(key)}, element);
        if (isNew)
            continue;
        reportPair(checked, findings, place->second, element, repetition.fate, subject + " stands here twice");
        if (repetition.fate == Fate::LastCounts)
            place->second = element;
    }
}

void findRepeatedLanguages(const Checked& checked, Findings& findings)
{
    for (const Repetition& repetition :
         {Repetition{"/package/names/name", "lang", Fate::LastCounts},
          Repetition{"/package/descriptions/description", "lang", Fate::LastCounts},
          Repetition{"/package/supportedLanguages/language", k_ownText, Fate::FirstCounts},
          Repetition{"/package/descriptionLanguages/language", k_ownText, Fate::FirstCounts},
          Repetition{"/package/contents/behaviorContent/names/name", "lang", Fate::LastCounts},
          Repetition{"/package/contents/behaviorContent/descriptions/description", "lang", Fate::LastCounts},
          Repetition{"/package/contents/dialogContent/topic", "language", Fate::LastCounts},
          Repetition{"/package/contents/languageContent/names/name", "lang", Fate::LastCounts}})
        reportEqual(checked, findings, repetition, "the language");
}

void findRepeatedVariables(const Checked& checked, Findings& findings)
{
    reportEqual(checked, findings, {"/package/services/service/envVar", "name", Fate::FirstCounts}, "the variable");
}

void findRepeatedServices(const Checked& checked, Findings& findings)
{
    reportEqual(checked, findings, {"/package/services/service", "name", Fate::BothCount}, "the service", true);
}

void findRepeatedBehaviors(const Checked& checked, Findings& findings)
{
    reportEqual(checked, findings, {"/package/contents/behaviorContent", "path", Fate::BothCount}, "the behavior",
                true);
}

void findRepeatedTopics(const Checked& checked, Findings& findings)
{
    reportEqual(checked, findings, {"/package/contents/dialogContent", "topicName", Fate::BothCount}, "the topic",
                true);
}

void findRepeatedFiles(const Checked& checked, Findings& findings)
{
    reportEqual(checked, findings, {"/package/executableFiles/file", "path", Fate::BothCount}, "the file", true);
}

/// Reports the elements of an entry that have the same attributes, in the same list or in another one.
void reportAlike(const Checked& checked, Findings& findings, std::string_view path)
{
    std::unordered_map<std::string, SourceNode> seen;
    for (const SourceNode element : checked.outline.elements(path)) {
        std::string values;
        for (const AttributeEntry& known : checked.outline.entry(element)->attributes)
            values.append(edit::readAttribute(element, known.name)).push_back('\0');
        const auto [place, isNew] = seen.try_emplace(std::move(values), element);
        if (!isNew)
            reportPair(checked, findings, place->second, element, Fate::BothCount, "the requirement stands here twice");
    }
}

void findRepeatedRequirements(const Checked& checked, Findings& findings)
{
    reportAlike(checked, findings, "/package/requirements/robotRequirement");
    reportAlike(checked, findings, "/package/requirements/morvoRequirement");
}

void findRepeatedTexts(const Checked& checked, Findings& findings)
{
    struct List
    {
        std::string_view path;
        std::string_view key;
    };
    for (const List& list : {List{"/package/contents/behaviorContent/tags/tag", "lang"},
                             List{"/package/contents/behaviorContent/triggerSentences/sentence", "lang"},
                             List{"/package/contents/behaviorContent/loadingResponses/sentence", "lang"},
                             List{"/package/contents/behaviorContent/autonomous/condition", "purpose"}}) {
        std::map<std::pair<std::size_t, std::string>, SourceNode> seen;
        for (const SourceNode element : checked.outline.elements(list.path)) {
            const std::string text = edit::readText(element);
            if (isBlank(text))
                continue;
            std::string key = edit::readAttribute(element, list.key) + '\0' + text;
            const auto [place, isNew] = seen.try_emplace({element.parent().index(), std::move(key)}, element);
            if (!isNew)
                reportPair(checked, findings, place->second, element, Fate::BothCount,
                           "the " + std::string(element.name()) + " " + inQuotes(text) + " stands here twice");
        }
    }
}

} // namespace

const std::vector<RuleRow>& repetitionRules()
{
    static const std::vector<RuleRow> rules = {
        {{"repeated-language", Severity::Error, "A language stands twice in one list",
          "Of two texts in one language the later one counts; of two equal languages one is kept. The fix removes what "
          "does not count.",
          ExampleFrame::Behavior,
          "<descriptions><description lang=\"en\">Says hello</description><description lang=\"en\">Greets</description>"
          "</descriptions>",
          "<descriptions><description lang=\"en\">Greets</description></descriptions>", ""},
         findRepeatedLanguages},
        {{"repeated-env-var", Severity::Error, "A variable stands twice in one service",
          "The first value stays, and the robot logs a warning for each other one. The fix removes these.",
          ExampleFrame::Package,
          "<services><service name=\"clock\" execStart=\"bin/clock\"><envVar name=\"TZ\" value=\"UTC\"/>"
          "<envVar name=\"TZ\" value=\"CET\"/></service></services>",
          "<services><service name=\"clock\" execStart=\"bin/clock\"><envVar name=\"TZ\" value=\"UTC\"/></service>"
          "</services>",
          ""},
         findRepeatedVariables},
        {{"repeated-service", Severity::Warning, "Two services of one name",
          "The package has both, and who names one of them gets either. The fix drops the second one.",
          ExampleFrame::Package,
          "<services><service name=\"clock\" execStart=\"bin/clock\"/><service name=\"clock\" execStart=\"bin/bell\"/>"
          "</services>",
          "<services><service name=\"clock\" execStart=\"bin/clock\"/><service name=\"bell\" execStart=\"bin/bell\"/>"
          "</services>",
          ""},
         findRepeatedServices},
        {{"repeated-behavior", Severity::Error, "Two behaviors of one path",
          "The package has both, and people see the behavior twice. The fix drops the second one.",
          ExampleFrame::Contents,
          "<behaviorContent path=\"wave\"><nature>solitary</nature></behaviorContent>"
          "<behaviorContent path=\"wave\"><nature>interactive</nature></behaviorContent>",
          "<behaviorContent path=\"wave\"><nature>solitary</nature></behaviorContent>"
          "<behaviorContent path=\"bow\"><nature>interactive</nature></behaviorContent>",
          ""},
         findRepeatedBehaviors},
        {{"repeated-dialog-topic", Severity::Error, "Two dialogs of one topic name",
          "The dialog engine knows topics by their names and takes one of them. The fix drops the second one.",
          ExampleFrame::Contents,
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"a.talk\"/></dialogContent>"
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"b.talk\"/></dialogContent>",
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"a.talk\"/></dialogContent>"
          "<dialogContent topicName=\"drinks\"><topic language=\"en\" path=\"b.talk\"/></dialogContent>",
          ""},
         findRepeatedTopics},
        {{"repeated-requirement", Severity::Warning, "A requirement stands twice",
          "The second one changes nothing. The fix drops it.", ExampleFrame::Package,
          "<requirements><morvoRequirement minVersion=\"2.1\"/><morvoRequirement minVersion=\"2.1\"/></requirements>",
          "<requirements><morvoRequirement minVersion=\"2.1\"/></requirements>", ""},
         findRepeatedRequirements},
        {{"repeated-executable-file", Severity::Warning, "An executable file stands twice",
          "The second one changes nothing. The fix drops it.", ExampleFrame::Package,
          "<executableFiles><file path=\"bin/clock\"/><file path=\"bin/clock\"/></executableFiles>",
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>", ""},
         findRepeatedFiles},
        {{"repeated-text", Severity::Info, "A tag, sentence or condition stands twice in one list",
          "Readers keep both, so that a response comes twice as often, and a tag is counted twice. The fix drops the "
          "second one.",
          ExampleFrame::Behavior, "<tags><tag lang=\"en\">fun</tag><tag lang=\"en\">fun</tag></tags>",
          "<tags><tag lang=\"en\">fun</tag><tag lang=\"en\">games</tag></tags>", ""},
         findRepeatedTexts},
    };
    return rules;
}

} // namespace zupackage::check
