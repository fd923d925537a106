#include "ascii.hpp"
#include "check/date.hpp"
#include "check/findings.hpp"
#include "check/version.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"
#include "edits.hpp"

#include <zupackage/behavior_info.hpp>

#include <algorithm>
#include <array>

namespace zupackage::check {

namespace {

using edit::readText;
using zu::BehaviorInfo;
using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::Severity;
using zu::authoring::ValueKind;

/// Calls `visit(attribute)` for the attributes of that kind that hold something.
template <typename Visit>
void forEachValue(const Outline& outline, ValueKind kind, Visit visit)
{
    for (const SourceNode element : outline.elements()) {
        for (const AttributeEntry& known : outline.entry(element)->attributes) {
            const SourceAttribute attribute =
                known.kind == kind ? plainAttribute(element, known.name) : SourceAttribute();
            if (attribute && !attribute.value().empty())
                visit(attribute);
        }
    }
}

/// What a text that is no flag says all the same; empty when it says nothing that we know.
std::string_view meantFlag(std::string_view text)
{
    std::string word(trimmed(text));
    std::transform(word.begin(), word.end(), word.begin(), ascii::lowered);
    constexpr std::array<std::string_view, 5> k_yes = {"true", "1", "yes", "on", "y"};
    constexpr std::array<std::string_view, 5> k_no = {"false", "0", "no", "off", "n"};
    if (std::find(k_yes.begin(), k_yes.end(), word) != k_yes.end())
        return "true";
    return std::find(k_no.begin(), k_no.end(), word) != k_no.end() ? "false" : "";
}

void findInvalidFlags(const Checked& checked, Findings& findings)
{
    constexpr std::array<std::string_view, 4> k_flags = {"true", "1", "false", "0"};
    for (const SourceNode element : checked.outline.elements()) {
        for (const AttributeEntry& known : checked.outline.entry(element)->attributes) {
            const SourceAttribute attribute =
                known.kind == ValueKind::Flag ? plainAttribute(element, known.name) : SourceAttribute();
            if (!attribute || std::find(k_flags.begin(), k_flags.end(), attribute.value()) != k_flags.end())
                continue;
            Finding& finding =
                findings.at(attribute, inQuotes(attribute.value()) + " is read as false; write \"true\" or "
                                                                     "\"false\"");
            const std::string_view flag = trimmed(attribute.value());
            const std::string_view meant = meantFlag(flag);
            if (std::find(k_flags.begin(), k_flags.end(), flag) != k_flags.end())
                finding.safeFix("write " + inQuotes(flag), {authoring::replacement(attribute, flag)});
            else if (!meant.empty())
                finding.unsafeFix("write " + inQuotes(meant), {authoring::replacement(attribute, meant)});
        }
    }
}

void findInvalidDates(const Checked& checked, Findings& findings)
{
    forEachValue(checked.outline, ValueKind::Date, [&](SourceAttribute attribute) {
        if (!isDate(attribute.value()))
            findings.at(attribute, inQuotes(attribute.value()) + " is no date of the form \"2026-09-12\"");
    });
}

void findMalformedVersions(const Checked& checked, Findings& findings)
{
    forEachValue(checked.outline, ValueKind::Version, [&](SourceAttribute attribute) {
        if (!parseVersion(attribute.value()))
            findings.at(attribute,
                        inQuotes(attribute.value()) + " is no version of the form \"1.2\" or \"1.2.0-beta\"");
    });
}

void findReversedRanges(const Checked& checked, Findings& findings)
{
    struct Range
    {
        std::string_view requirement;
        const char* lowest;
        const char* highest;
    };
    constexpr std::array<Range, 3> k_ranges = {
        {{"/package/requirements/robotRequirement", "minHeadVersion", "maxHeadVersion"},
         {"/package/requirements/robotRequirement", "minBodyVersion", "maxBodyVersion"},
         {"/package/requirements/morvoRequirement", "minVersion", "maxVersion"}}};
    for (const Range& range : k_ranges) {
        for (const SourceNode requirement : checked.outline.elements(range.requirement)) {
            const SourceAttribute highest = plainAttribute(requirement, range.highest);
            const auto min = parseVersion(plainValue(requirement, range.lowest));
            const auto max = parseVersion(highest.value());
            if (min && max && isBefore(*max, *min))
                findings.at(highest, inQuotes(range.highest) + " is below " + inQuotes(range.lowest) +
                                         ": no version meets the requirement");
        }
    }
}

void findUnknownNatures(const Checked& checked, Findings& findings)
{
    const std::vector<std::string_view> known = {BehaviorInfo::natureInteractive(), BehaviorInfo::natureSolitary()};
    for (const SourceNode nature : checked.outline.elements("/package/contents/behaviorContent/nature")) {
        const std::string text = readText(nature);
        // Padding and emptiness have rules of their own.
        const std::string_view word = trimmed(text);
        if (word.empty() || std::find(known.begin(), known.end(), word) != known.end())
            continue;
        const std::string_view meant = nearest(word, known);
        Finding& finding = findings.atContent(nature, inQuotes(word) + " is neither \"interactive\" nor \"solitary\"" +
                                                          didYouMean(meant));
        if (!meant.empty())
            finding.unsafeFix("write " + inQuotes(meant), {{nature.contentRange(), std::string(meant)}});
    }
}

void findUnknownPermissions(const Checked& checked, Findings& findings)
{
    const auto& supported = BehaviorInfo::supportedPermissions();
    const std::vector<std::string_view> known(supported.begin(), supported.end());
    for (const SourceNode permissions : checked.outline.elements("/package/contents/behaviorContent/permissions")) {
        for (const SourceNode permission : permissions.children()) {
            if (!permission.isElement() || checked.outline.entry(permission) || !permission.prefix().empty())
                continue;
            const std::string_view meant = nearest(permission.name(), known);
            Finding& finding = findings.at(permission, "no robot knows the permission " + inQuotes(permission.name()) +
                                                           ", which readers drop" + didYouMean(meant));
            if (!meant.empty())
                finding.unsafeFix("call it " + inQuotes(meant), authoring::renaming(permission, meant));
        }
    }
}

void findTextsInUserRequestable(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements("/package/contents/behaviorContent/userRequestable")) {
        const std::string text = element.textContent();
        if (isBlank(text))
            continue;
        const bool saysNo = meantFlag(text) == "false";
        Finding& finding = findings.atContent(
            element, saysNo ? "the behavior is user-requestable all the same: it is not when the element is absent"
                            : "the text says nothing: the element alone makes the behavior user-requestable");
        if (saysNo)
            finding.unsafeFix("remove the element", {authoring::removal(checked.document, element)});
        else
            finding.safeFix("remove the text", {{element.contentRange(), {}}});
    }
}

void findUnreachableSentences(const Checked& checked, Findings& findings)
{
    for (const SourceNode behavior : checked.outline.elements(k_behaviorPath)) {
        const auto sentences = childrenNamed(behavior, "triggerSentences");
        if (!sentences.empty() && childrenNamed(behavior, "userRequestable").empty())
            findings.at(sentences.front(), "the behavior is not user-requestable, so that no sentence starts it");
    }
}

void findUnaskedBehaviors(const Checked& checked, Findings& findings)
{
    // The sentences may stand behind an error that ended the document.
    if (!checked.document.isComplete())
        return;
    for (const SourceNode behavior : checked.outline.elements(k_behaviorPath)) {
        const auto requestable = childrenNamed(behavior, "userRequestable");
        const auto sentences = childrenNamed(behavior, "triggerSentences");
        if (!requestable.empty() && !hasElements(sentences))
            findings.at(requestable.front(), "people may ask for the behavior, but no sentence starts it");
    }
}

} // namespace

const std::vector<RuleRow>& valueRules()
{
    static const std::vector<RuleRow> rules = {
        {{"invalid-flag", Severity::Error, "A flag that is not exactly true, 1, false or 0",
          "Readers take any other text for false, \"TRUE\" and \" true \" included. The fix takes the white space away "
          "from a flag, so that the manifest reads as it was meant; that of a word writes the flag that it means.",
          ExampleFrame::Package,
          "<services><service name=\"clock\" execStart=\"bin/clock\" autorun=\"TRUE\"/></services>",
          "<services><service name=\"clock\" execStart=\"bin/clock\" autorun=\"true\"/></services>", ""},
         findInvalidFlags},
        {{"invalid-date", Severity::Warning, "A date that is none, or in another form",
          "Dates are kept as text. Stores sort by them, which takes year, month and day in this order.",
          ExampleFrame::RootTag, "<package uuid=\"org.example.hello\" version=\"1.0\" date=\"12.9.2026\">",
          "<package uuid=\"org.example.hello\" version=\"1.0\" date=\"2026-09-12\">", ""},
         findInvalidDates},
        {{"malformed-version", Severity::Error, "A version that cannot be compared",
          "Versions are numbers parted by dots, with a pre-release behind a hyphen and a build behind a plus sign "
          "where they are wanted. Of two others nobody can tell which is newer.",
          ExampleFrame::RootTag, "<package uuid=\"org.example.hello\" version=\"v1.0\">",
          "<package uuid=\"org.example.hello\" version=\"1.0\">", ""},
         findMalformedVersions},
        {{"reversed-version-range", Severity::Error, "A lowest version above the highest",
          "No version meets such a requirement, so that the package can be installed nowhere.", ExampleFrame::Package,
          "<requirements><morvoRequirement minVersion=\"2.10\" maxVersion=\"2.9\"/></requirements>",
          "<requirements><morvoRequirement minVersion=\"2.9\" maxVersion=\"2.10\"/></requirements>", ""},
         findReversedRanges},
        {{"unknown-nature", Severity::Warning, "A nature that no robot knows",
          "Readers keep any text; robots look for \"interactive\" and \"solitary\". The fix writes the one that "
          "was meant.",
          ExampleFrame::Contents, "<behaviorContent path=\"wave\"><nature>interactiv</nature></behaviorContent>",
          "<behaviorContent path=\"wave\"><nature>interactive</nature></behaviorContent>", ""},
         findUnknownNatures},
        {{"unknown-permission", Severity::Error, "A permission that no robot knows",
          "Readers drop it without a word, and the behavior runs without it. The fix writes the one that was meant.",
          ExampleFrame::Behavior, "<permissions><canFly/></permissions>", "<permissions><canStandUp/></permissions>",
          ""},
         findUnknownPermissions},
        {{"user-requestable-text", Severity::Warning, "A text in userRequestable",
          "The element itself is the flag: with \"false\" in it the behavior is user-requestable all the same. The "
          "fix takes such a text at its word and removes the element; another text goes alone.",
          ExampleFrame::Behavior,
          "<userRequestable>false</userRequestable>"
          "<triggerSentences><sentence lang=\"en\">Wave</sentence></triggerSentences>",
          "<userRequestable/><triggerSentences><sentence lang=\"en\">Wave</sentence></triggerSentences>", ""},
         findTextsInUserRequestable},
        {{"unreachable-sentences", Severity::Warning, "Trigger sentences of a behavior that nobody can request",
          "Only user-requestable behaviors listen to their sentences.", ExampleFrame::Behavior,
          "<triggerSentences><sentence lang=\"en\">Wave</sentence></triggerSentences>",
          "<userRequestable/><triggerSentences><sentence lang=\"en\">Wave</sentence></triggerSentences>", ""},
         findUnreachableSentences},
        {{"unasked-behavior", Severity::Info, "A behavior that people may ask for without a sentence to do so",
          "Nobody starts it by speaking in any language; what is left are menus that list it by its name.",
          ExampleFrame::Behavior, "<userRequestable/>",
          "<userRequestable/><triggerSentences><sentence lang=\"en\">Wave</sentence></triggerSentences>", ""},
         findUnaskedBehaviors},
    };
    return rules;
}

} // namespace zupackage::check
