#include "schema/schema_types.hpp"

#include "special_entries.hpp"

#include <zupackage/behavior_info.hpp>

namespace zupackage::authoring {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ElementEntry;
using zu::authoring::ValueKind;

/// A text with something in it, no white space around that, and no U+FFFD.
constexpr std::string_view k_textPattern = "[^\\s\xEF\xBF\xBD]([^\xEF\xBF\xBD]*[^\\s\xEF\xBF\xBD])?";
constexpr std::string_view k_blankPattern = "\\s*";
/// Anything without "]]>".
constexpr std::string_view k_conditionPattern = R"(([^\]]|\][^\]]|\]\]+[^\]>])*\]*)";
constexpr std::string_view k_versionPattern =
    R"([0-9]+(\.[0-9]+)*(-[0-9A-Za-z\-]+(\.[0-9A-Za-z\-]+)*)?(\+[0-9A-Za-z\-]+(\.[0-9A-Za-z\-]+)*)?)";
constexpr std::string_view k_datePattern = R"([0-9]{4}-[0-9]{2}-[0-9]{2})";
constexpr std::string_view k_languagePattern =
    R"([A-Za-z]{2,3}([_\-][A-Za-z0-9]{1,8})*|[xXiI]([_\-][A-Za-z0-9]{1,8})+)";

/// The type of texts that may be white space alone, or empty.
constexpr const char* k_blankOrText = "blankOrText";

/// The same for what may be empty.
std::string typeOrNothing(ValueKind kind) { return std::string(textType(kind)) + "OrNothing"; }

/// A flag that is there and empty is none.
bool mayBeEmpty(const AttributeEntry& attribute) { return !attribute.isRequired && attribute.kind != ValueKind::Flag; }

/// Whether some attribute of the type may be empty.
bool mayBeNothing(ValueKind kind)
{
    for (const ElementEntry& entry : zu::authoring::Vocabulary::manifest().elements()) {
        for (const AttributeEntry& attribute : entry.attributes) {
            if (mayBeEmpty(attribute) && textType(attribute.kind) == std::string_view(textType(kind)))
                return true;
        }
    }
    return false;
}

void writeType(SchemaWriter& out, ValueKind kind, const char* base, std::string_view facet,
               const std::vector<std::string>& values)
{
    out.open("xs:simpleType" + withAttribute("name", textType(kind)));
    out.open("xs:restriction" + withAttribute("base", base));
    for (const std::string& value : values)
        out.empty(std::string(facet) + withAttribute("value", value));
    out.close();
    out.close();
    if (!mayBeNothing(kind))
        return;
    out.open("xs:simpleType" + withAttribute("name", typeOrNothing(kind)));
    out.empty("xs:union" + withAttribute("memberTypes", std::string(textType(kind)) + " nothing"));
    out.close();
}

void writeBlankOrText(SchemaWriter& out)
{
    out.open("xs:simpleType" + withAttribute("name", k_blankOrText));
    out.open("xs:union" + withAttribute("memberTypes", textType(ValueKind::Text)));
    out.open("xs:simpleType");
    out.open("xs:restriction" + withAttribute("base", "xs:string"));
    out.empty("xs:pattern" + withAttribute("value", k_blankPattern));
    out.close();
    out.close();
    out.close();
    out.close();
}

} // namespace

const char* textType(ValueKind kind)
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
        return "text";
    case ValueKind::Condition:
        return "condition";
    }
    return "";
}

std::string attributeType(const AttributeEntry& attribute)
{
    if (mayBeBlank(attribute))
        return k_blankOrText;
    return mayBeEmpty(attribute) ? typeOrNothing(attribute.kind) : textType(attribute.kind);
}

void writeTypes(SchemaWriter& out)
{
    writeType(out, ValueKind::Text, "xs:string", "xs:pattern", {std::string(k_textPattern)});
    writeBlankOrText(out);
    writeType(out, ValueKind::Condition, "text", "xs:pattern", {std::string(k_conditionPattern)});
    writeType(out, ValueKind::Flag, "xs:string", "xs:enumeration", {"true", "false", "1", "0"});
    writeType(out, ValueKind::LanguageCode, "xs:string", "xs:pattern", {std::string(k_languagePattern)});
    writeType(out, ValueKind::Version, "xs:string", "xs:pattern", {std::string(k_versionPattern)});
    writeType(out, ValueKind::Date, "xs:date", "xs:pattern", {std::string(k_datePattern)});
    writeType(out, ValueKind::Nature, "xs:string", "xs:enumeration",
              {zu::BehaviorInfo::natureInteractive(), zu::BehaviorInfo::natureSolitary()});
}

} // namespace zupackage::authoring
