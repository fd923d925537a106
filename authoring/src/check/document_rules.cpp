#include "characters.hpp"
#include "check/findings.hpp"
#include "check/forbidden_characters.hpp"
#include "check/wording.hpp"
#include "edits.hpp"
#include "reference.hpp"

#include <zupackage/package_info.hpp>

#include <algorithm>

namespace zupackage::check {

namespace {

using zu::authoring::ExampleFrame;
using zu::authoring::NodeKind;
using zu::authoring::Severity;
using zu::authoring::SyntaxError;

/// What robots do with a document that is not well-formed.
std::string leniencyTo(const SourceDocument& document)
{
    zu::PackageInfo package;
    return zu::readManifest(document.text(), package) ? "the robot overlooks it and reads the manifest all the same"
                                                      : "the robot refuses the whole manifest";
}

bool isForbiddenCharacter(const SyntaxError& error, const std::vector<ByteRange>& forbidden)
{
    const auto next = std::lower_bound(forbidden.begin(), forbidden.end(), error.range.begin,
                                       [](ByteRange range, std::size_t offset) { return range.end <= offset; });
    return next != forbidden.end() && next->begin <= std::max(error.range.end, error.range.begin + 1);
}

void findIllFormed(const Checked& checked, Findings& findings)
{
    const auto& errors = checked.document.errors();
    if (errors.empty())
        return;
    const std::vector<ByteRange> forbidden = forbiddenCharacters(checked.document);
    std::string leniency;
    for (const SyntaxError& error : errors) {
        if (isForbiddenCharacter(error, forbidden))
            continue;
        if (leniency.empty())
            leniency = leniencyTo(checked.document);
        findings.at(error.range, {}, error.message + "; " + leniency);
    }
}

void findForbiddenCharacters(const Checked& checked, Findings& findings)
{
    for (const ByteRange range : forbiddenCharacters(checked.document))
        findings.at(range, {}, "a character that XML cannot carry");
}

/// Whether U+FFFD stands in a source, or a reference to it. In values it may stand for what XML cannot carry.
bool hasReplacementCharacter(std::string_view source)
{
    if (source.find(authoring::k_replacementCharacter) != std::string_view::npos)
        return true;
    for (std::size_t at = source.find('&'); at != std::string_view::npos; at = source.find('&', at + 1)) {
        const authoring::Reference reference = authoring::referenceAt(at, source);
        if (reference.kind == authoring::ReferenceKind::Character &&
            reference.codePoint == authoring::k_replacementCodePoint)
            return true;
    }
    return false;
}

bool isLost(std::string_view value, std::string_view source)
{
    return value.find(authoring::k_replacementCharacter) != std::string_view::npos && hasReplacementCharacter(source);
}

void findReplacementCharacters(const Checked& checked, Findings& findings)
{
    constexpr const char* k_message = "U+FFFD stands where a character was lost";
    const SourceDocument& document = checked.document;
    for (std::size_t i = 1; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        if ((node.kind() == NodeKind::Text || node.kind() == NodeKind::CData) &&
            isLost(node.value(), document.source(node.range())))
            findings.at(node.range(), node.parent(), k_message);
        for (const SourceAttribute attribute : node.attributes()) {
            if (isLost(attribute.value(), document.source(attribute.valueRange())))
                findings.at(attribute, k_message);
        }
    }
}

void findDocumentTypes(const Checked& checked, Findings& findings)
{
    for (const SourceNode node : checked.document.document().children()) {
        if (node.kind() == NodeKind::DocumentType)
            findings.at(node.range(), {}, "a manifest has no document type");
    }
}

void findWideReferences(const Checked& checked, Findings& findings)
{
    for (const WideReference& reference : wideReferences(checked.document)) {
        Finding& finding = findings.at(reference.range, reference.node,
                                       "the robot cuts this reference to 16 bits; write the character itself: " +
                                           inQuotes(reference.character));
        finding.attribute = reference.attribute;
        // Other encodings may not have the character, so that a reference would take its place again.
        if (authoring::hasEveryCharacter(checked.document))
            finding.safeFix("write the character itself", {{reference.range, reference.character}});
    }
}

bool declaresNamespace(SourceAttribute attribute) { return attribute.prefix() == "xmlns"; }

void findPrefixes(const Checked& checked, Findings& findings)
{
    const SourceDocument& document = checked.document;
    for (std::size_t i = 1; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        if (!node.isElement())
            continue;
        if (!node.prefix().empty())
            findings.at(node.nameRange(), node, "no reader knows an element with a prefix: " + inQuotes(node.name()));
        for (const SourceAttribute attribute : node.attributes()) {
            const bool isKnown =
                checked.outline.entry(node) && checked.outline.entry(node)->attribute(attribute.localName());
            if (!attribute.prefix().empty() && !declaresNamespace(attribute) && isKnown)
                findings.atName(attribute, "some readers take " + inQuotes(attribute.name()) + " for " +
                                               inQuotes(attribute.localName()) + ", others drop it");
        }
    }
}

void findSplitConditions(const Checked& checked, Findings& findings)
{
    for (const SourceNode condition :
         checked.outline.elements("/package/contents/behaviorContent/autonomous/condition")) {
        if (condition.textContent().find("]]>") != std::string::npos)
            findings.atContent(condition, "\"]]>\" in a condition, which tools write as two CDATA sections");
    }
}

} // namespace

const std::vector<RuleRow>& documentRules()
{
    static const std::vector<RuleRow> rules = {
        {{"not-well-formed", Severity::Error, "The document is not well-formed XML",
          "Editors, stores and other tools refuse such a document. The robot's own parser is lenient: it overlooks an "
          "attribute that stands twice, an entity that nobody declares and bytes that mean nothing. For a document "
          "that breaks off, a tag that ends another one and most other errors it refuses the whole manifest. Each "
          "finding says which of the two the robot does. Some errors end the check: what comes after them is judged "
          "once they are gone.",
          ExampleFrame::Behavior, "<descriptions><description lang=\"en\">Fish & chips</description></descriptions>",
          "<descriptions><description lang=\"en\">Fish &amp; chips</description></descriptions>", ""},
         findIllFormed},
        {{"forbidden-character", Severity::Error, "A character that XML cannot carry",
          "XML has no control characters but tab, line feed and carriage return, not even as numeric references, and "
          "neither U+FFFE nor U+FFFF. Strict parsers refuse the document; what the robot makes of it depends on the "
          "character.",
          ExampleFrame::Behavior, "<descriptions><description lang=\"en\">Beeps&#7;</description></descriptions>",
          "<descriptions><description lang=\"en\">Beeps</description></descriptions>", ""},
         findForbiddenCharacters},
        {{"replacement-character", Severity::Warning, "U+FFFD, which stands for a character that was lost",
          "Programs write U+FFFD where they could not make out a character, mostly because a text was read in the "
          "wrong encoding. Nobody wants to see it in a store.",
          ExampleFrame::Behavior, "<descriptions><description lang=\"en\">Caf\xEF\xBF\xBD</description></descriptions>",
          "<descriptions><description lang=\"en\">Caf\xC3\xA9</description></descriptions>", ""},
         findReplacementCharacters},
        {{"document-type", Severity::Warning, "A document type",
          "A manifest needs no document type, and no reader opens what it refers to. Readers take longer over such a "
          "document, and tools that guard against attacks refuse it.",
          ExampleFrame::Document,
          "<!DOCTYPE package>\n"
          "<package uuid=\"org.example.hello\" version=\"1.0\">\n"
          "  <names><name lang=\"en\">Hello</name></names>\n"
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
         findDocumentTypes},
        {{"wide-reference", Severity::Error, "A numeric reference to a character that the robot cuts in two",
          "The robot's parser keeps 16 bits of a numeric reference, so that a character beyond U+FFFF becomes another "
          "one. The character itself is read as it is. The fix puts it there: the manifest then reads as it was meant.",
          ExampleFrame::Behavior,
          "<descriptions><description lang=\"en\">Laughs &#x1F600;</description></descriptions>",
          "<descriptions><description lang=\"en\">Laughs \xF0\x9F\x98\x80</description></descriptions>", ""},
         findWideReferences},
        {{"prefixed-name", Severity::Warning, "A name with a namespace prefix",
          "Manifests know no namespaces. An element with a prefix is unknown to every reader; an attribute with one is "
          "read as if it had none when a manifest is read from a text, and dropped when it is read from a file.",
          ExampleFrame::Contents, "<webContent xmlns:x=\"https://example.org/x\" path=\"web\" x:path=\"other\"/>",
          "<webContent path=\"web\"/>", ""},
         findPrefixes},
        {{"split-condition", Severity::Warning, "\"]]>\" in a condition",
          "Conditions are written as CDATA sections, which cannot hold \"]]>\": tools that write the manifest part "
          "such a condition into two sections. It reads as before, but people have a hard time with it. A space "
          "between the brackets avoids that.",
          ExampleFrame::Behavior, "<autonomous><condition purpose=\"play\">ball[seen[0]]&gt;0</condition></autonomous>",
          "<autonomous><condition purpose=\"play\">ball[seen[0] ] &gt; 0</condition></autonomous>", ""},
         findSplitConditions},
    };
    return rules;
}

} // namespace zupackage::check
