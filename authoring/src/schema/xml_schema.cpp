#include "check/leftovers.hpp"
#include "edits.hpp"
#include "schema/schema_types.hpp"
#include "schema/schema_writer.hpp"

#include <zupackage/authoring/schema.hpp>

#include <algorithm>

namespace zupackage::authoring {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ElementEntry;
using zu::authoring::k_ownText;
using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

constexpr char k_head[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- What the manifest of a package may hold, for editors and validators. "zupackage check" finds more: comments in
     lists, most of what depends on other places, what depends on files. -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" elementFormDefault="unqualified">
  <xs:simpleType name="nothing">
    <xs:restriction base="xs:string">
      <xs:length value="0"/>
    </xs:restriction>
  </xs:simpleType>
)";

void writePurpose(SchemaWriter& out, std::string_view purpose)
{
    out.open("xs:annotation");
    out.line("<xs:documentation>" + escapedText(purpose) + "</xs:documentation>");
    out.close();
}

void writeAttributes(SchemaWriter& out, const ElementEntry& entry)
{
    for (const AttributeEntry& attribute : entry.attributes) {
        out.open("xs:attribute" + withAttribute("name", attribute.name) +
                 withAttribute("type", attributeType(attribute)) +
                 (attribute.isRequired ? withAttribute("use", "required") : ""));
        writePurpose(out, attribute.purpose);
        out.close();
    }
}

void writeConstraint(SchemaWriter& out, const std::string& tag, const std::string& selector,
                     const std::vector<std::string>& fields)
{
    out.open(tag);
    out.empty("xs:selector" + withAttribute("xpath", selector));
    for (const std::string& field : fields)
        out.empty("xs:field" + withAttribute("xpath", field));
    out.close();
}

/// What no two elements of an entry in one parent have in common; empty when there is nothing.
std::vector<std::string> distinctFields(const ElementEntry& entry)
{
    if (entry.identity == k_ownText)
        return {std::string(k_ownText)};
    if (!entry.identity.empty())
        return {"@" + std::string(entry.identity)};
    const bool isTextOfKey = entry.parent->countsEveryChild && !entry.attributes.empty();
    return isTextOfKey
               ? std::vector<std::string>{"@" + std::string(entry.attributes.front().name), std::string(k_ownText)}
               : std::vector<std::string>();
}

std::string uniqueNamed(std::string name)
{
    std::replace(name.begin(), name.end(), '/', '-');
    return "xs:unique" + withAttribute("name", name);
}

/// What the children of an element have for themselves: what identifies them, and their files.
void writeUniqueness(SchemaWriter& out, const ElementEntry& entry)
{
    for (const ElementEntry* const child : entry.children) {
        if (child->occurrence != Occurrence::Repeated)
            continue;
        const std::string name = child->path.substr(1);
        if (const auto fields = distinctFields(*child); !fields.empty())
            writeConstraint(out, uniqueNamed(name), std::string(child->name), fields);
        for (const AttributeEntry& attribute : child->attributes) {
            if (attribute.kind == ValueKind::Path && attribute.name != child->identity && !child->identity.empty())
                writeConstraint(out, uniqueNamed(name + "/" + std::string(attribute.name)), std::string(child->name),
                                {"@" + std::string(attribute.name)});
        }
    }
}

/// A package has a name in each language that it describes itself in.
void writeReferences(SchemaWriter& out)
{
    writeConstraint(out, "xs:key" + withAttribute("name", "languages-of-names"), "names/name", {"@lang"});
    writeConstraint(out,
                    "xs:keyref" + withAttribute("name", "descriptionLanguages-with-names") +
                        withAttribute("refer", "languages-of-names"),
                    "descriptionLanguages/language", {std::string(k_ownText)});
}

bool isRepeated(const ElementEntry* entry) { return entry->occurrence == Occurrence::Repeated; }

/// The only child that does not repeat, among others that do; null when there is none or several.
const ElementEntry* singleAmongRepeated(const ElementEntry& entry)
{
    const auto& children = entry.children;
    const auto single = std::find_if_not(children.begin(), children.end(), isRepeated);
    const bool isOnly =
        single != children.end() && children.size() > 1 && std::all_of(single + 1, children.end(), isRepeated);
    return isOnly ? *single : nullptr;
}

std::string groupName(const ElementEntry& entry) { return "entriesOf-" + std::string(entry.name); }

void writeElement(SchemaWriter& out, const ElementEntry& entry, const std::string& occurrence);

std::string anyNumber() { return withAttribute("minOccurs", "0") + withAttribute("maxOccurs", "unbounded"); }

/// Children in any order: each as often as it may stand there. Where one may repeat, the language of schemas can count
/// one other, and no more.
void writeChildren(SchemaWriter& out, const ElementEntry& entry)
{
    if (entry.children.empty())
        return;
    if (const ElementEntry* const single = singleAmongRepeated(entry)) {
        const std::string others = "xs:group" + withAttribute("ref", groupName(entry)) + anyNumber();
        out.open("xs:sequence");
        out.empty(others);
        out.open("xs:sequence" + withAttribute("minOccurs", "0"));
        writeElement(out, *single, {});
        out.empty(others);
        out.close();
        out.close();
        return;
    }
    const bool anyRepeats = std::any_of(entry.children.begin(), entry.children.end(), isRepeated);
    const bool needsOne = check::isForOthers(entry) || entry.countsEveryChild;
    out.open(!anyRepeats ? "xs:all"
             : needsOne  ? "xs:choice" + withAttribute("maxOccurs", "unbounded")
                         : "xs:choice" + anyNumber());
    for (const ElementEntry* const child : entry.children) {
        const bool mayMiss = !anyRepeats && child->occurrence == Occurrence::Optional;
        writeElement(out, *child, mayMiss ? withAttribute("minOccurs", "0") : "");
    }
    out.close();
}

void writeType(SchemaWriter& out, const ElementEntry& entry, const std::string& name)
{
    out.open("xs:complexType" + name);
    if (entry.text == ValueKind::None) {
        writeChildren(out, entry);
        writeAttributes(out, entry);
    } else {
        out.open("xs:simpleContent");
        out.open("xs:extension" + withAttribute("base", textType(entry.text)));
        writeAttributes(out, entry);
        out.close();
        out.close();
    }
    out.close();
}

/// Elements that stand in several places of one content model must have a type with a name.
bool isInGroup(const ElementEntry& entry) { return isRepeated(&entry) && singleAmongRepeated(*entry.parent); }

void writeElement(SchemaWriter& out, const ElementEntry& entry, const std::string& occurrence)
{
    const std::string type = isInGroup(entry) ? withAttribute("type", entry.name) : "";
    out.open("xs:element" + withAttribute("name", entry.name) + type + occurrence);
    writePurpose(out, entry.purpose);
    if (type.empty())
        writeType(out, entry, {});
    writeUniqueness(out, entry);
    if (!entry.parent)
        writeReferences(out);
    out.close();
}

void writeGroups(SchemaWriter& out)
{
    for (const ElementEntry& entry : zu::authoring::Vocabulary::manifest().elements()) {
        if (!singleAmongRepeated(entry))
            continue;
        out.open("xs:group" + withAttribute("name", groupName(entry)));
        out.open("xs:choice");
        for (const ElementEntry* const child : entry.children) {
            if (isRepeated(child))
                writeElement(out, *child, {});
        }
        out.close();
        out.close();
        for (const ElementEntry* const child : entry.children) {
            if (isRepeated(child))
                writeType(out, *child, withAttribute("name", child->name));
        }
    }
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
    writeGroups(out);
    writeElement(out, Vocabulary::manifest().root(), {});
    return out.take();
}

} // namespace zu::authoring
