#include "json/carriable_text.hpp"
#include "json/json_form.hpp"
#include "package/package_element.hpp"

#include <zupackage/authoring/package_json.hpp>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

namespace zupackage::authoring {

namespace {

using nlohmann::ordered_json;
using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

using Elements = std::vector<const PackageElement*>;

ordered_json jsonOf(const PackageElement& element);

const std::string& textHeldBy(const PackageElement& element)
{
    const AttributeEntry* const attribute = valueAttribute(*element.entry);
    return attribute ? element.attributes[indexOf(*element.entry, *attribute)] : element.text;
}

/// Adds a member without looking for an equal one, which would take time in proportion to those that are there.
void add(ordered_json& object, std::string_view key, ordered_json value)
{
    object.get_ref<ordered_json::object_t&>().emplace_back(std::string(key), std::move(value));
}

ordered_json mapOf(const Elements& elements)
{
    ordered_json map = ordered_json::object();
    for (const PackageElement* const element : elements)
        add(map, element->attributes.front(), textHeldBy(*element));
    return map;
}

/// Elements with the same key stand beside each other.
ordered_json listMapOf(const Elements& elements)
{
    ordered_json map = ordered_json::object();
    const std::string* key = nullptr;
    for (const PackageElement* const element : elements) {
        if (!key || *key != element->attributes.front())
            add(map, element->attributes.front(), ordered_json::array());
        key = &element->attributes.front();
        map.get_ref<ordered_json::object_t&>().back().second.push_back(textHeldBy(*element));
    }
    return map;
}

ordered_json jsonOf(const Elements& elements, JsonForm form)
{
    if (form == JsonForm::Map)
        return mapOf(elements);
    if (form == JsonForm::ListMap)
        return listMapOf(elements);
    ordered_json list = ordered_json::array();
    for (const PackageElement* const element : elements)
        list.push_back(jsonOf(*element));
    return list;
}

Elements childrenOf(const PackageElement& element, const ElementEntry& entry)
{
    Elements children;
    for (const PackageElement& child : element.children) {
        if (child.entry == &entry)
            children.push_back(&child);
    }
    return children;
}

void addMembers(const PackageElement& element, ordered_json& object)
{
    const ElementEntry& entry = *element.entry;
    for (std::size_t i = 0; i < entry.attributes.size(); ++i) {
        const std::string& value = element.attributes[i];
        if (entry.attributes[i].kind == ValueKind::Flag && !value.empty())
            add(object, entry.attributes[i].name, value == "true");
        else if (!value.empty())
            add(object, entry.attributes[i].name, value);
    }
    for (const ElementEntry* const childEntry : entry.children) {
        const Elements children = childrenOf(element, *childEntry);
        const bool isRepeated = childEntry->occurrence == Occurrence::Repeated;
        if (!children.empty())
            add(object, childEntry->name,
                isRepeated ? jsonOf(children, formOfAll(*childEntry)) : jsonOf(*children.front()));
    }
}

ordered_json namesOf(const PackageElement& element)
{
    ordered_json names = ordered_json::array();
    for (const PackageElement& child : element.children)
        names.push_back(child.entry->name);
    return names;
}

ordered_json jsonOf(const PackageElement& element)
{
    const JsonForm form = formOf(*element.entry);
    switch (form) {
    case JsonForm::Text:
        return textHeldBy(element);
    case JsonForm::Presence:
        return true;
    case JsonForm::Names:
        return namesOf(element);
    case JsonForm::Object: {
        ordered_json object = ordered_json::object();
        addMembers(element, object);
        return object;
    }
    case JsonForm::List:
    case JsonForm::Map:
    case JsonForm::ListMap:
        return jsonOf(childrenOf(element, *contentOf(*element.entry)), form);
    }
    return nullptr;
}

bool dropByteOrderMarks(std::string& text)
{
    const std::size_t size = text.size() - withoutByteOrderMarks(text).size();
    text.erase(0, size);
    return size > 0;
}

/// The writer takes away one before each text, and the reader of JSON any number.
/// @return whether there were any.
bool dropByteOrderMarks(PackageElement& element)
{
    bool hadMarks = dropByteOrderMarks(element.text);
    for (std::string& value : element.attributes)
        hadMarks = dropByteOrderMarks(value) || hadMarks;
    for (PackageElement& child : element.children)
        hadMarks = dropByteOrderMarks(child) || hadMarks;
    return hadMarks;
}

/// Whether keys of maps are not in their order. The writer replaces what a manifest cannot carry, so that keys may have
/// become equal.
bool hasDisorderedKeys(const PackageElement& element)
{
    const PackageElement* last = nullptr;
    for (const PackageElement& child : element.children) {
        if (hasDisorderedKeys(child))
            return true;
        const JsonForm form = formOfAll(*child.entry);
        if (form != JsonForm::Map && form != JsonForm::ListMap)
            continue;
        if (last && last->entry == child.entry) {
            const int order = last->attributes.front().compare(child.attributes.front());
            if (order > 0 || (order == 0 && form == JsonForm::Map))
                return true;
        }
        last = &child;
    }
    return false;
}

/// Whether an entry stands twice in a list of which readers keep each but once.
bool hasRepeatedEntries(const PackageElement& element)
{
    std::set<std::pair<const ElementEntry*, std::string_view>> entries;
    return std::any_of(element.children.begin(), element.children.end(), [&entries](const PackageElement& child) {
        const bool isKeptOnce = child.entry->identity == k_ownText || formOf(*child.entry) == JsonForm::Presence;
        return (isKeptOnce && !entries.emplace(child.entry, child.text).second) || hasRepeatedEntries(child);
    });
}

} // namespace

} // namespace zupackage::authoring

namespace zu {

std::string toJson(const PackageInfo& package)
{
    using namespace zupackage::authoring;
    PackageElement root = elementOf(package);
    const bool hadMarks = dropByteOrderMarks(root);
    // What becomes of equal keys and entries, and of empty texts, is the reader's to say.
    if (hadMarks || hasDisorderedKeys(root) || hasRepeatedEntries(root))
        root = elementOf(packageOf(root));
    ordered_json json = ordered_json::object();
    add(json, k_formatVersionKey, k_formatVersion);
    addMembers(root, json);
    return json.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace zu
