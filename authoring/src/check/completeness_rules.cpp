#include "check/findings.hpp"
#include "check/leftovers.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"

#include <algorithm>

namespace zupackage::check {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::Occurrence;
using zu::authoring::Severity;
using zu::authoring::ValueKind;

void findMissingAttributes(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        for (const AttributeEntry& known : entry.attributes) {
            if (!known.isRequired)
                continue;
            const SourceAttribute attribute = plainAttribute(element, known.name);
            if (!attribute)
                findings.at(element, inQuotes(entry.name) + " has no " + inQuotes(known.name));
            else if (isBlank(attribute.value()))
                findings.at(attribute,
                            inQuotes(entry.name) + " has " +
                                (attribute.value().empty() ? "an empty " : "nothing but white space for a ") +
                                inQuotes(known.name));
        }
    }
}

/// Says that the package has none of those, unless some of it may stand behind an error that ended the document.
void findMissingSection(const Checked& checked, Findings& findings, std::string_view path, std::string message)
{
    const SourceNode root = checked.document.root();
    if (root && checked.document.isComplete() && !hasElements(checked.outline.elements(path)))
        findings.at(root, std::move(message));
}

void findNamelessPackages(const Checked& checked, Findings& findings)
{
    findMissingSection(checked, findings, "/package/names", "the package has no name in any language");
}

void findUndescribedPackages(const Checked& checked, Findings& findings)
{
    if (!checked.document.isComplete() || hasElements(checked.outline.elements("/package/descriptions")))
        return;
    const auto& languages = checked.outline.elements("/package/descriptionLanguages/language");
    const auto declared = std::find_if_not(languages.begin(), languages.end(),
                                           [](SourceNode language) { return isBlank(edit::readText(language)); });
    if (declared != languages.end())
        findings.at(declared->parent(), "the package has no description in any language");
}

void findMissingContents(const Checked& checked, Findings& findings)
{
    findMissingSection(checked, findings, "/package/contents", "the package has no contents");
}

void findMissingElements(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        // The sections of the root have rules of their own; an element without an end may still get what it lacks.
        if (!entry.parent || (element.endTagRange().isEmpty() && !element.isEmptyTag()))
            continue;
        for (const ElementEntry* child : entry.children) {
            if (child->occurrence == Occurrence::Once && childrenNamed(element, child->name).empty())
                findings.at(element, inQuotes(entry.name) + " has no " + inQuotes(child->name));
        }
    }
}

void findEmptyTexts(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        if (entry.text != ValueKind::None && element.textContent().empty())
            findings.at(element, "an empty " + inQuotes(entry.name));
    }
}

void findEmptyRequirements(const Checked& checked, Findings& findings)
{
    for (const SourceNode requirement : checked.outline.elements("/package/requirements/morvoRequirement")) {
        if (plainValue(requirement, "minVersion").empty() && plainValue(requirement, "maxVersion").empty())
            findings.at(requirement, "a requirement that any version meets");
    }
}

void findEmptySections(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        if (isForOthers(entry) && !hasElements({element}))
            findings.at(element, inQuotes(entry.name) + " holds nothing");
    }
}

} // namespace

const std::vector<RuleRow>& completenessRules()
{
    static const std::vector<RuleRow> rules = {
        {{"missing-attribute", Severity::Error, "A required attribute is missing, empty or blank",
          "Readers take a missing attribute for an empty one. A package without uuid or version cannot be installed or "
          "updated, a text without a language is found for none, a file without a path is no file.",
          ExampleFrame::Package, "<executableFiles><file/></executableFiles>",
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>", ""},
         findMissingAttributes},
        {{"missing-names", Severity::Error, "The package has no name",
          "Stores and settings list packages by their names, and readers never fall back on the uuid.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findNamelessPackages},
        {{"missing-descriptions", Severity::Info, "Description languages in a package without a description",
          "The package declares the languages in which it describes itself, and stores have nothing but its name to "
          "show in them. Behaviors may do without descriptions.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findUndescribedPackages},
        {{"missing-contents", Severity::Error, "The package has no contents",
          "Without a behavior, a dialog, a language or pages a package brings nothing to the robot.",
          ExampleFrame::Document,
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "</package>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findMissingContents},
        {{"missing-element", Severity::Warning, "An element that its parent always has is missing",
          "A behavior has a nature, the data of a speech language an engine and a locale; readers leave them empty.",
          ExampleFrame::Contents, "<behaviorContent path=\"wave\"/>",
          "<behaviorContent path=\"wave\"><nature>interactive</nature></behaviorContent>", ""},
         findMissingElements},
        {{"empty-text", Severity::Warning, "An element without the text that it is there for",
          "An empty entry is read as one, but dropped when the manifest is written again.", ExampleFrame::Behavior,
          "<descriptions><description lang=\"en\"/></descriptions>",
          "<descriptions><description lang=\"en\">Says hello</description></descriptions>", ""},
         findEmptyTexts},
        {{"empty-requirement", Severity::Warning, "A requirement that asks for nothing",
          "A requirement without a lowest and a highest version is met by every robot.", ExampleFrame::Package,
          "<requirements><morvoRequirement/></requirements>",
          "<requirements><morvoRequirement minVersion=\"2.1\"/></requirements>", ""},
         findEmptyRequirements},
        {{"empty-section", Severity::Info, "An element that is there for others and holds none",
          "It is read as if it were not there, and often a leftover.", ExampleFrame::Package, "<executableFiles/>",
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>", ""},
         findEmptySections},
    };
    return rules;
}

} // namespace zupackage::check
