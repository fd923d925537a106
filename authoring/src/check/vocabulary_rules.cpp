#include "check/findings.hpp"
#include "check/wording.hpp"
#include "edits.hpp"

#include <algorithm>
#include <map>
#include <utility>

namespace zupackage::check {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::NodeKind;
using zu::authoring::Severity;
using zu::authoring::ValueKind;
using zu::authoring::Vocabulary;

void addOnce(std::vector<std::string>& texts, std::string text)
{
    if (std::find(texts.begin(), texts.end(), text) == texts.end())
        texts.push_back(std::move(text));
}

/// The parents of all elements of that name that the vocabulary knows.
std::vector<std::string> homesOf(std::string_view element)
{
    std::vector<std::string> homes;
    for (const ElementEntry& entry : Vocabulary::manifest().elements()) {
        if (entry.name == element && entry.parent)
            addOnce(homes, inQuotes(entry.parent->name));
    }
    return homes;
}

std::vector<std::string_view> namesOf(const std::vector<const ElementEntry*>& entries)
{
    std::vector<std::string_view> names;
    for (const ElementEntry* entry : entries)
        names.push_back(entry->name);
    return names;
}

/// Calls `visit(element, parentEntry)` for each element without a prefix that is unknown in a known one.
template <typename Visit>
void forEachUnknown(const Outline& outline, Visit visit)
{
    for (const SourceNode parent : outline.elements()) {
        for (const SourceNode child : parent.children()) {
            if (child.isElement() && child.prefix().empty() && !outline.entry(child))
                visit(child, *outline.entry(parent));
        }
    }
}

/// What an element is for that the vocabulary does not know: a permission has a rule of its own.
bool holdsPermissions(const ElementEntry& parent)
{
    return parent.path == "/package/contents/behaviorContent/permissions";
}

void findUnknownRoot(const Checked& checked, Findings& findings)
{
    const SourceNode root = checked.document.root();
    if (root && root.name() != Vocabulary::manifest().root().name && root.prefix().empty())
        findings.at(root.nameRange(), root, "the root element is " + inQuotes(root.name()) + ", not \"package\"")
            .unsafeFix("call the root element \"package\"",
                       authoring::renaming(root, Vocabulary::manifest().root().name));
}

/// What the vocabulary says about unknown elements, found out once for the many of one name.
class Meanings
{
public:
    struct Meaning
    {
        std::string_view meant; ///< an element of that parent, which the name is a slip of; empty when there is none
        std::vector<std::string> homes;
    };

    const Meaning& of(SourceNode element, const ElementEntry& parent)
    {
        if (m_known.size() > k_most)
            m_known.clear();
        const auto [place, isNew] = m_known.try_emplace({&parent, element.name()});
        if (isNew)
            place->second = {nearest(element.name(), namesOf(parent.children)), homesOf(element.name())};
        return place->second;
    }

private:
    static constexpr std::size_t k_most = 1000;
    std::map<std::pair<const ElementEntry*, std::string_view>, Meaning> m_known;
};

/// What readers make of an unknown element there.
std::string fate(const ElementEntry& parent)
{
    if (parent.countsEveryChild)
        return ", which readers take for " + inQuotes(parent.children.front()->name);
    return parent.text == ValueKind::None ? ", which readers skip" : ", of which readers take the text";
}

void findUnknownElements(const Checked& checked, Findings& findings)
{
    Meanings meanings;
    forEachUnknown(checked.outline, [&](SourceNode element, const ElementEntry& parent) {
        const auto& [meant, homes] = meanings.of(element, parent);
        if (holdsPermissions(parent) || (meant.empty() && !homes.empty()) || findings.omit())
            return;
        Finding& finding = findings.at(element, "unknown element " + inQuotes(element.name()) + " in " +
                                                    inQuotes(parent.name) + fate(parent) + didYouMean(meant));
        if (!meant.empty())
            finding.unsafeFix("call it " + inQuotes(meant), authoring::renaming(element, meant));
        else if (!parent.countsEveryChild && parent.text == ValueKind::None)
            finding.unsafeFix("remove it", {authoring::removal(checked.document, element)});
    });
}

void findMisplacedElements(const Checked& checked, Findings& findings)
{
    Meanings meanings;
    forEachUnknown(checked.outline, [&](SourceNode element, const ElementEntry& parent) {
        const auto& [meant, homes] = meanings.of(element, parent);
        if (holdsPermissions(parent) || homes.empty() || !meant.empty() || findings.omit())
            return;
        findings.at(element, inQuotes(element.name()) + " does not belong in " + inQuotes(parent.name) + " but in " +
                                 alternatives(homes));
    });
}

std::string ownersOf(std::string_view attribute)
{
    std::vector<std::string> owners;
    for (const ElementEntry& entry : Vocabulary::manifest().elements()) {
        if (entry.attribute(attribute))
            addOnce(owners, inQuotes(entry.name));
    }
    return owners.empty() || owners.size() > 3 ? std::string() : "; it belongs to " + alternatives(owners);
}

bool isXmlsOwn(SourceAttribute attribute) { return attribute.name() == "xmlns" || !attribute.prefix().empty(); }

void findUnknownAttributes(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        for (const SourceAttribute attribute : element.attributes()) {
            if (isXmlsOwn(attribute) || entry.attribute(attribute.name()) || findings.omit())
                continue;
            std::vector<std::string_view> names;
            for (const AttributeEntry& known : entry.attributes)
                names.push_back(known.name);
            const std::string_view meant = nearest(attribute.name(), names);
            Finding& finding = findings.atName(
                attribute, "unknown attribute " + inQuotes(attribute.name()) + " of " + inQuotes(entry.name) +
                               (meant.empty() ? ownersOf(attribute.name()) : didYouMean(meant)));
            if (!meant.empty() && !plainAttribute(element, meant))
                finding.unsafeFix("call it " + inQuotes(meant), {{attribute.nameRange(), std::string(meant)}});
            else
                finding.unsafeFix("remove it", {authoring::removal(checked.document, attribute)});
        }
    }
}

/// What a node is that is no element, and that holds more than the white space between elements; null for others.
const char* looseContent(SourceNode node)
{
    switch (node.kind()) {
    case NodeKind::Text:
        return isBlank(node.value()) ? nullptr : "text";
    case NodeKind::CData:
        return "a CDATA section";
    case NodeKind::Comment:
        return "a comment";
    case NodeKind::ProcessingInstruction:
        return "an instruction";
    case NodeKind::EntityReference:
        return "an entity";
    case NodeKind::None:
    case NodeKind::Document:
    case NodeKind::XmlDeclaration:
    case NodeKind::DocumentType:
    case NodeKind::Element:
        break;
    }
    return nullptr;
}

void findCountedNodes(const Checked& checked, Findings& findings)
{
    for (const SourceNode list : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(list);
        if (!entry.countsEveryChild)
            continue;
        for (const SourceNode node : list.children()) {
            const char* const what = looseContent(node);
            if (what && !findings.omit())
                findings
                    .atWhole(node, std::string(what) + " in " + inQuotes(entry.name) + " is read as an empty " +
                                       inQuotes(entry.children.front()->name))
                    .unsafeFix("remove it", {authoring::removal(checked.document, node)});
        }
    }
}

void findStrayTexts(const Checked& checked, Findings& findings)
{
    for (const SourceNode element : checked.outline.elements()) {
        const ElementEntry& entry = *checked.outline.entry(element);
        // What stands in the element that says that people may ask for the behavior has a rule of its own.
        if (entry.countsEveryChild || entry.text != ValueKind::None || entry.name == "userRequestable")
            continue;
        for (const SourceNode node : element.children()) {
            const bool isText = node.kind() == NodeKind::Text || node.kind() == NodeKind::CData;
            if (isText && !isBlank(node.value()) && !findings.omit())
                findings
                    .atWhole(node, "text in " + inQuotes(entry.name) +
                                       ", where readers skip it: " + inQuotes(trimmed(node.value())))
                    .unsafeFix("remove it", {{node.range(), {}}});
        }
    }
}

} // namespace

const std::vector<RuleRow>& vocabularyRules()
{
    static const std::vector<RuleRow> rules = {
        {{"unknown-root", Severity::Error, "The root element is not \"package\"",
          "The robot reads a manifest whatever its root is called, so that any XML file passes for an empty package. "
          "Tools that write the manifest call the root \"package\".",
          ExampleFrame::Document,
          "<pakage uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</pakage>",
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
          "  <descriptions><description lang=\"en\">Greets</description></descriptions>\n"
          "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
          "  <contents><webContent path=\"web\"/></contents>\n"
          "</package>",
          ""},
         findUnknownRoot},
        {{"unknown-element", Severity::Error, "An element that manifests do not have",
          "Readers skip elements that they do not know, with all that stands in them and without a word. In the lists "
          "of texts and languages every element is an entry, whatever it is called. The fix gives it the name that was "
          "meant, or removes what readers skip.",
          ExampleFrame::Behavior, "<tagz><tag lang=\"en\">fun</tag></tagz>", "<tags><tag lang=\"en\">fun</tag></tags>",
          ""},
         findUnknownElements},
        {{"misplaced-element", Severity::Error, "An element that belongs elsewhere",
          "Readers look for an element in one place only and skip it anywhere else.", ExampleFrame::Package,
          "<webContent path=\"web\"/>", "<!-- webContent stands in contents -->", ""},
         findMisplacedElements},
        {{"unknown-attribute", Severity::Error, "An attribute that its element does not have",
          "Readers skip attributes that they do not know, without a word. The fix gives it the name that was meant, or "
          "removes it.",
          ExampleFrame::Package,
          "<services><service name=\"clock\" execStart=\"bin/clock\" autoRun=\"true\"/></services>",
          "<services><service name=\"clock\" execStart=\"bin/clock\" autorun=\"true\"/></services>", ""},
         findUnknownAttributes},
        {{"counted-node", Severity::Error, "A comment or text that is read as an entry of a list",
          "In names, descriptions, languages, tags, sentences, responses and conditions every node counts: a comment "
          "there becomes an entry with an empty language and an empty text. Put comments around the list, or into its "
          "entries. The fix removes the node, and the entry that readers make of it.",
          ExampleFrame::Behavior,
          "<descriptions><!-- to do --><description lang=\"en\">Says hello</description></descriptions>",
          "<!-- to do --><descriptions><description lang=\"en\">Says hello</description></descriptions>", ""},
         findCountedNodes},
        {{"stray-text", Severity::Warning, "Text where no reader takes it",
          "Most elements hold other elements, or attributes alone; a text in them is skipped.", ExampleFrame::Package,
          "<executableFiles><file path=\"bin/clock\">bin/clock</file></executableFiles>",
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>", ""},
         findStrayTexts},
    };
    return rules;
}

} // namespace zupackage::check
