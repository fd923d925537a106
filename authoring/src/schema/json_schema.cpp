#include "json/json_form.hpp"
#include "package/package_element.hpp"

#include <zupackage/authoring/schema.hpp>

#include <nlohmann/json.hpp>

namespace zupackage::authoring {

namespace {

using nlohmann::ordered_json;
using zu::authoring::ValueKind;

ordered_json schemaOf(const ElementEntry& entry);

ordered_json listOf(ordered_json items) { return {{"type", "array"}, {"items", std::move(items)}}; }

/// A list that has each entry but once.
ordered_json setOf(const ordered_json& items) { return {{"type", "array"}, {"uniqueItems", true}, {"items", items}}; }

ordered_json mapTo(ordered_json values) { return {{"type", "object"}, {"additionalProperties", std::move(values)}}; }

ordered_json anyText() { return {{"type", "string"}}; }

/// A schema with the words for people before it.
ordered_json described(std::string_view purpose, const ordered_json& schema)
{
    ordered_json result = {{"description", purpose}};
    result.update(schema);
    return result;
}

ordered_json schemaOfAttribute(const AttributeEntry& attribute)
{
    return {{"type", attribute.kind == ValueKind::Flag ? "boolean" : "string"}};
}

ordered_json schemaOfObject(const ElementEntry& entry)
{
    ordered_json members = ordered_json::object();
    for (const AttributeEntry& attribute : entry.attributes)
        members[std::string(attribute.name)] = described(attribute.purpose, schemaOfAttribute(attribute));
    for (const ElementEntry* const child : entry.children)
        members[std::string(child->name)] = described(child->purpose, schemaOf(*child));
    return {{"type", "object"}, {"additionalProperties", false}, {"properties", std::move(members)}};
}

ordered_json namesOfChildren(const ElementEntry& entry)
{
    ordered_json names = ordered_json::array();
    for (const ElementEntry* const child : entry.children)
        names.push_back(child->name);
    return {{"enum", std::move(names)}};
}

ordered_json schemaOfOne(const ElementEntry& entry)
{
    return formOf(entry) == JsonForm::Text ? anyText() : schemaOfObject(entry);
}

/// What the elements of the entry are together.
ordered_json schemaOf(const ElementEntry& entry)
{
    const ElementEntry* const content = contentOf(entry);
    switch (formOfAll(entry)) {
    case JsonForm::Text:
        return anyText();
    case JsonForm::Presence:
        return {{"type", "boolean"}};
    case JsonForm::Names:
        return setOf(namesOfChildren(entry));
    case JsonForm::Object:
        return schemaOfObject(entry);
    case JsonForm::List: {
        const ElementEntry& listed = content ? *content : entry;
        return listed.identity == k_ownText ? setOf(schemaOfOne(listed)) : listOf(schemaOfOne(listed));
    }
    case JsonForm::Map:
        return mapTo(anyText());
    case JsonForm::ListMap:
        return mapTo(listOf(anyText()));
    }
    return nullptr;
}

} // namespace

} // namespace zupackage::authoring

namespace zu::authoring {

std::string jsonSchema()
{
    using namespace zupackage::authoring;
    const ElementEntry& root = Vocabulary::manifest().root();
    ordered_json schema = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                           {"title", "Manifest of a package, as JSON"}};
    schema.update(described(root.purpose, schemaOfObject(root)));
    ordered_json members = {
        {std::string(k_formatVersionKey), {{"description", "The version of this form."}, {"const", k_formatVersion}}}};
    members.update(schema["properties"]);
    schema["properties"] = std::move(members);
    schema["required"] = {k_formatVersionKey};
    return schema.dump(2) + "\n";
}

} // namespace zu::authoring
