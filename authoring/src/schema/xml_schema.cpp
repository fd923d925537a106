#include "edits.hpp"

#include <zupackage/authoring/schema.hpp>
#include <zupackage/authoring/vocabulary.hpp>
#include <zupackage/behavior_info.hpp>

#include <algorithm>

namespace zupackage::authoring {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ElementEntry;
using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

/// A text with something in it, and no white space around that.
constexpr std::string_view k_textPattern = R"(\S([\s\S]*\S)?)";
constexpr std::string_view k_versionPattern =
    R"([0-9]+(\.[0-9]+)*(-[0-9A-Za-z\-]+(\.[0-9A-Za-z\-]+)*)?(\+[0-9A-Za-z\-]+(\.[0-9A-Za-z\-]+)*)?)";
constexpr std::string_view k_datePattern = R"([0-9]{4}-[0-9]{2}-[0-9]{2})";
constexpr std::string_view k_languagePattern = R"([A-Za-z]{2,3}([_\-][A-Za-z0-9]{1,8})*|[xX]([_\-][A-Za-z0-9]{1,8})+)";

constexpr char k_head[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- What the manifest of a package may hold, for editors and validators. "zupackage check" finds more: comments in
     lists, what depends on other places or on files. -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" elementFormDefault="unqualified">
  <xs:simpleType name="nothing">
    <xs:restriction base="xs:string">
      <xs:length value="0"/>
    </xs:restriction>
  </xs:simpleType>
)";

/// Writes elements of XML, two blanks deeper for each that is open.
class SchemaWriter
{
public:
    explicit SchemaWriter(std::string head) : m_text(std::move(head)) {}

    /// A start tag, or an empty one, without its brackets.
    void open(const std::string& tag)
    {
        line("<" + tag + ">");
        m_open.push_back(tag.substr(0, tag.find(' ')));
    }
    void close()
    {
        const std::string name = m_open.back();
        m_open.pop_back();
        line("</" + name + ">");
    }
    void empty(const std::string& tag) { line("<" + tag + "/>"); }
    void line(const std::string& text) { m_text.append(2 * (m_open.size() + 1), ' ').append(text) += '\n'; }

    std::string take() { return m_text + "</xs:schema>\n"; }

private:
    std::string m_text;
    std::vector<std::string> m_open;
};

std::string withAttribute(std::string_view name, std::string_view value)
{
    return " " + std::string(name) + "=\"" + escapedValue(value, '"') + "\"";
}

const char* typeName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::None:
        return "nothing";
    case ValueKind::Flag:
        return "flag";
    case ValueKind::LanguageCode:
        return "languageCode";
    case ValueKind::Version:
        return "version";
    case ValueKind::Date:
        return "date";
    case ValueKind::Nature:
        return "nature";
    case ValueKind::Text:
    case ValueKind::Path:
    case ValueKind::Identifier:
    case ValueKind::Command:
    case ValueKind::Condition:
        return "text";
    }
    return "";
}

/// The same for what may be empty.
std::string typeOrNothing(ValueKind kind) { return std::string(typeName(kind)) + "OrNothing"; }

/// A flag that is there and empty is none.
bool mayBeEmpty(const AttributeEntry& attribute) { return !attribute.isRequired && attribute.kind != ValueKind::Flag; }

/// Whether some attribute of the type may be empty.
bool mayBeNothing(ValueKind kind)
{
    for (const ElementEntry& entry : zu::authoring::Vocabulary::manifest().elements()) {
        for (const AttributeEntry& attribute : entry.attributes) {
            if (mayBeEmpty(attribute) && typeName(attribute.kind) == std::string_view(typeName(kind)))
                return true;
        }
    }
    return false;
}

void writeType(SchemaWriter& out, ValueKind kind, const char* base, std::string_view facet,
               const std::vector<std::string>& values)
{
    out.open("xs:simpleType" + withAttribute("name", typeName(kind)));
    out.open("xs:restriction" + withAttribute("base", base));
    for (const std::string& value : values)
        out.empty(std::string(facet) + withAttribute("value", value));
    out.close();
    out.close();
    if (!mayBeNothing(kind))
        return;
    out.open("xs:simpleType" + withAttribute("name", typeOrNothing(kind)));
    out.empty("xs:union" + withAttribute("memberTypes", std::string(typeName(kind)) + " nothing"));
    out.close();
}

void writeTypes(SchemaWriter& out)
{
    writeType(out, ValueKind::Text, "xs:string", "xs:pattern", {std::string(k_textPattern)});
    writeType(out, ValueKind::Flag, "xs:string", "xs:enumeration", {"true", "false", "1", "0"});
    writeType(out, ValueKind::LanguageCode, "xs:string", "xs:pattern", {std::string(k_languagePattern)});
    writeType(out, ValueKind::Version, "xs:string", "xs:pattern", {std::string(k_versionPattern)});
    writeType(out, ValueKind::Date, "xs:date", "xs:pattern", {std::string(k_datePattern)});
    writeType(out, ValueKind::Nature, "xs:string", "xs:enumeration",
              {zu::BehaviorInfo::natureInteractive(), zu::BehaviorInfo::natureSolitary()});
}

void writePurpose(SchemaWriter& out, std::string_view purpose)
{
    out.open("xs:annotation");
    out.line("<xs:documentation>" + escapedText(purpose) + "</xs:documentation>");
    out.close();
}

void writeAttributes(SchemaWriter& out, const ElementEntry& entry)
{
    for (const AttributeEntry& attribute : entry.attributes) {
        out.open(
            "xs:attribute" + withAttribute("name", attribute.name) +
            withAttribute("type", mayBeEmpty(attribute) ? typeOrNothing(attribute.kind) : typeName(attribute.kind)) +
            (attribute.isRequired ? withAttribute("use", "required") : ""));
        writePurpose(out, attribute.purpose);
        out.close();
    }
}

/// What identifies the children of an element is unique among them.
void writeUniqueness(SchemaWriter& out, const ElementEntry& entry)
{
    for (const ElementEntry* const child : entry.children) {
        if (child->occurrence != Occurrence::Repeated || child->identity.empty())
            continue;
        const bool isText = child->identity == ".";
        std::string name = child->path.substr(1);
        std::replace(name.begin(), name.end(), '/', '-');
        out.open("xs:unique" + withAttribute("name", name));
        out.empty("xs:selector" + withAttribute("xpath", child->name));
        out.empty("xs:field" + withAttribute("xpath", isText ? "." : "@" + std::string(child->identity)));
        out.close();
    }
}

void writeElement(SchemaWriter& out, const ElementEntry& entry, const std::string& occurrence);

/// Children in any order: each as often as it may stand there, or, where one may repeat, all as often as they come,
/// which is all that the language of schemas has for it.
void writeChildren(SchemaWriter& out, const ElementEntry& entry)
{
    if (entry.children.empty())
        return;
    const bool anyRepeats = std::any_of(entry.children.begin(), entry.children.end(), [](const ElementEntry* child) {
        return child->occurrence == Occurrence::Repeated;
    });
    const bool needsOne = entry.countsEveryChild && entry.occurrence == Occurrence::Once;
    out.open(anyRepeats ? "xs:choice" + withAttribute("minOccurs", needsOne ? "1" : "0") +
                              withAttribute("maxOccurs", "unbounded")
                        : "xs:all");
    for (const ElementEntry* const child : entry.children) {
        const bool mayMiss = !anyRepeats && child->occurrence == Occurrence::Optional;
        writeElement(out, *child, mayMiss ? withAttribute("minOccurs", "0") : "");
    }
    out.close();
}

void writeContent(SchemaWriter& out, const ElementEntry& entry)
{
    out.open("xs:complexType");
    if (entry.text == ValueKind::None) {
        writeChildren(out, entry);
        writeAttributes(out, entry);
    } else {
        out.open("xs:simpleContent");
        out.open("xs:extension" + withAttribute("base", typeName(entry.text)));
        writeAttributes(out, entry);
        out.close();
        out.close();
    }
    out.close();
}

void writeElement(SchemaWriter& out, const ElementEntry& entry, const std::string& occurrence)
{
    out.open("xs:element" + withAttribute("name", entry.name) + occurrence);
    writePurpose(out, entry.purpose);
    writeContent(out, entry);
    writeUniqueness(out, entry);
    out.close();
}

} // namespace

} // namespace zupackage::authoring

namespace zu::authoring {

std::string xmlSchemaUri() { return "urn:zupackage:manifest:schema"; }

std::string xmlSchema()
{
    using namespace zupackage::authoring;
    SchemaWriter out(k_head);
    writeTypes(out);
    writeElement(out, Vocabulary::manifest().root(), {});
    return out.take();
}

} // namespace zu::authoring
