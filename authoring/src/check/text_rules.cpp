#include "check/findings.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"
#include "edits.hpp"
#include "special_entries.hpp"

namespace zupackage::check {

namespace {

using edit::readText;
using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::Severity;
using zu::authoring::ValueKind;

bool isPadded(std::string_view text) { return !isBlank(text) && trimmed(text).size() != text.size(); }

void findPaddedTexts(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        for (const AttributeEntry& known : entry.attributes) {
            const SourceAttribute attribute = plainAttribute(element, known.name);
            // Spaces around a flag make it another flag, which has a rule of its own.
            if (attribute && known.kind != ValueKind::Flag && isPadded(attribute.value()))
                findings.at(attribute, "white space around " + inQuotes(known.name) + " is part of it")
                    .unsafeFix("remove it", {authoring::replacement(attribute, trimmed(attribute.value()))});
        }
        if (entry.text == ValueKind::None)
            continue;
        const std::string text = readText(element);
        if (!isPadded(text))
            continue;
        Finding& finding =
            findings.atContent(element, "white space around the text of " + inQuotes(entry.name) + " is part of it");
        if (!element.firstChild().nextSibling() && element.firstChild().kind() == zu::authoring::NodeKind::Text)
            finding.unsafeFix("remove it", {{element.contentRange(), authoring::escapedText(trimmed(text))}});
    }
}

bool isBlankAndNotEmpty(std::string_view text) { return !text.empty() && isBlank(text); }

/// Whether an attribute says something to people. Those that must be there and those of a form have rules of their own.
bool holdsText(const AttributeEntry& attribute)
{
    return attribute.kind == ValueKind::Text && !attribute.isRequired && !authoring::mayBeBlank(attribute);
}

void findBlankTexts(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        for (const AttributeEntry& known : entry.attributes) {
            const SourceAttribute attribute =
                holdsText(known) ? plainAttribute(element, known.name) : SourceAttribute();
            if (isBlankAndNotEmpty(attribute.value()))
                findings.at(attribute, inQuotes(known.name) + " holds white space alone");
        }
        if (entry.text == ValueKind::None)
            continue;
        const std::string text = readText(element);
        if (isBlankAndNotEmpty(text))
            findings.atContent(element, inQuotes(entry.name) + " holds white space alone");
        else if (text.empty() && !element.textContent().empty())
            findings.atContent(element, inQuotes(entry.name) + " holds white space alone, which readers drop");
    }
}

} // namespace

const std::vector<RuleRow>& textRules()
{
    static const std::vector<RuleRow> rules = {
        {{"padded-text", Severity::Warning, "White space around a text",
          "Readers keep it: \" fr\" is another language than \"fr\", and a name with a line end in it looks odd in a "
          "list. The fix removes it, which makes another text of it.",
          ExampleFrame::Behavior, "<descriptions><description lang=\"en\"> Says hello</description></descriptions>",
          "<descriptions><description lang=\"en\">Says hello</description></descriptions>", ""},
         findPaddedTexts},
        {{"blank-text", Severity::Warning, "A text of white space alone",
          "Readers drop it from an element, so that the entry is an empty one, and keep it in an attribute or a CDATA "
          "section, where nobody sees it.",
          ExampleFrame::Behavior, "<descriptions><description lang=\"en\"> </description></descriptions>",
          "<descriptions><description lang=\"en\">Says hello</description></descriptions>", ""},
         findBlankTexts},
    };
    return rules;
}

} // namespace zupackage::check
