#include "json/element_builder.hpp"

#include "check/wording.hpp"
#include "json/carriable_text.hpp"
#include "limits.hpp"

#include <utility>

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

const char* wordsFor(JsonForm form)
{
    switch (form) {
    case JsonForm::Text:
        return "a string";
    case JsonForm::Presence:
        return "true or false";
    case JsonForm::Names:
    case JsonForm::List:
        return "a list";
    case JsonForm::Object:
    case JsonForm::Map:
    case JsonForm::ListMap:
        return "an object";
    }
    return "";
}

[[noreturn]] void refuseUnknown(const std::string& what, std::string_view name,
                                const std::vector<std::string_view>& known)
{
    throw JsonRefusal(what + " " + check::inQuotes(name) + " is not known" +
                      check::didYouMean(check::nearest(name, known)));
}

std::vector<std::string_view> memberNames(const ElementEntry& entry)
{
    std::vector<std::string_view> keys;
    for (const AttributeEntry& attribute : entry.attributes)
        keys.push_back(attribute.name);
    for (const ElementEntry* const child : entry.children)
        keys.push_back(child->name);
    return keys;
}

void appendStep(std::string& pointer, std::string_view step)
{
    pointer += '/';
    for (const char c : step) {
        if (c == '~' || c == '/')
            pointer += c == '~' ? "~0" : "~1";
        else
            pointer += c;
    }
}

} // namespace

ElementBuilder::ElementBuilder() : m_root(zu::authoring::Vocabulary::manifest().root()) {}

const char* ElementBuilder::wanted(const Slot& slot)
{
    switch (slot.role) {
    case Role::Root:
        return "an object";
    case Role::FormatVersion:
        return "a number";
    case Role::Attribute:
        return slot.attribute->kind == ValueKind::Flag ? "true or false" : "a string";
    case Role::Child:
        return wordsFor(formOf(*slot.entry));
    case Role::Children:
        return wordsFor(formOfAll(*slot.entry));
    case Role::Values:
        return "a list";
    case Role::Value:
    case Role::Name:
        return "a string";
    }
    return "";
}

void ElementBuilder::refuse(const Slot& slot, const char* found)
{
    throw JsonRefusal(std::string("must be ") + wanted(slot) + ", not " + found);
}

void ElementBuilder::spend(std::size_t bytes)
{
    m_markupBytes += bytes;
    if (m_markupBytes > limits::k_documentMiB * limits::k_bytesPerMiB)
        throw JsonRefusal("the manifest of the package would be larger than " + std::to_string(limits::k_documentMiB) +
                          " MiB");
}

PackageElement& ElementBuilder::addChild(const Slot& slot)
{
    // Two tags, an attribute and a line of its own: about what the least element takes.
    constexpr std::size_t k_besideNames = 16;
    spend(2 * slot.entry->name.size() + k_besideNames);
    return slot.parent->children.emplace_back(*slot.entry);
}

void ElementBuilder::open(Slot members, bool isObject, bool isElement)
{
    m_levels.push_back({std::move(members), isObject, isElement});
}

ElementBuilder::Slot ElementBuilder::takeSlot()
{
    if (m_levels.empty())
        return {};
    Level& level = m_levels.back();
    if (level.isObject)
        return std::move(m_member);
    ++level.count;
    return level.members;
}

ElementBuilder::Slot ElementBuilder::memberOf(const Level& level, const std::string& name) const
{
    Slot slot = level.members;
    if (!level.isElement) {
        slot.key = carriable(name);
        return slot;
    }
    const ElementEntry& entry = *slot.entry;
    slot.attribute = entry.attribute(name);
    if (slot.attribute) {
        slot.role = Role::Attribute;
        return slot;
    }
    slot.entry = entry.child(name);
    if (slot.entry)
        slot.role = slot.entry->occurrence == Occurrence::Repeated ? Role::Children : Role::Child;
    else if (slot.parent == &m_root && name == k_formatVersionKey)
        slot.role = Role::FormatVersion;
    else
        refuseUnknown("the key", name, memberNames(entry));
    return slot;
}

void ElementBuilder::key(const std::string& name)
{
    Level& level = m_levels.back();
    level.key = name;
    level.hasKey = true;
    refuseRepetition(level, "the key ", name);
    m_member = memberOf(level, name);
}

void ElementBuilder::refuseRepetition(Level& level, const char* what, std::string_view text)
{
    const std::string carried = carriable(text);
    if (!level.taken.insert(carried).second)
        throw JsonRefusal(what + check::inQuotes(text) + " stands there twice" +
                          (carried == text ? "" : ", as a manifest carries it"));
}

void ElementBuilder::startObject()
{
    const Slot slot = takeSlot();
    if (slot.role == Role::Root)
        return open({Role::Child, &m_root, m_root.entry}, true, true);
    if (slot.role != Role::Child && slot.role != Role::Children)
        refuse(slot, "an object");
    const bool isElement = slot.role == Role::Child && formOf(*slot.entry) == JsonForm::Object;
    const JsonForm form = slot.role == Role::Child ? formOf(*slot.entry) : formOfAll(*slot.entry);
    if (!isElement && form != JsonForm::Map && form != JsonForm::ListMap)
        refuse(slot, "an object");
    PackageElement* const parent = slot.role == Role::Child ? &addChild(slot) : slot.parent;
    if (isElement)
        return open({Role::Child, parent, slot.entry}, true, true);
    const ElementEntry* const entry = slot.role == Role::Child ? contentOf(*slot.entry) : slot.entry;
    open({form == JsonForm::Map ? Role::Value : Role::Values, parent, entry}, true);
}

void ElementBuilder::startArray()
{
    const Slot slot = takeSlot();
    if (slot.role == Role::Values)
        return open({Role::Value, slot.parent, slot.entry, nullptr, slot.key}, false);
    if (slot.role == Role::Children && formOfAll(*slot.entry) == JsonForm::List)
        return open({Role::Child, slot.parent, slot.entry}, false);
    const bool isChild = slot.role == Role::Child;
    if (isChild && formOf(*slot.entry) == JsonForm::Names)
        return open({Role::Name, &addChild(slot), slot.entry}, false);
    if (isChild && formOf(*slot.entry) == JsonForm::List)
        return open({Role::Child, &addChild(slot), contentOf(*slot.entry)}, false);
    refuse(slot, "a list");
}

void ElementBuilder::end()
{
    m_levels.pop_back();
    if (m_levels.empty() && !m_hasFormatVersion)
        throw JsonRefusal("the key " + check::inQuotes(k_formatVersionKey) + " is missing");
}

void ElementBuilder::addValue(const Slot& slot, std::string_view text)
{
    // Of these readers keep the first alone.
    if (slot.entry->identity == k_ownText)
        refuseRepetition(m_levels.back(), "the entry ", text);
    PackageElement& child = addChild(slot);
    if (slot.role == Role::Value) {
        spend(slot.key.size());
        child.attributes.front() = slot.key;
    }
    const AttributeEntry* const attribute = valueAttribute(*slot.entry);
    (attribute ? child.attributes[indexOf(*slot.entry, *attribute)] : child.text) = carriable(text);
}

void ElementBuilder::addName(const Slot& slot, std::string_view name)
{
    const ElementEntry* const entry = slot.entry->child(name);
    if (!entry)
        refuseUnknown("the name", name, memberNames(*slot.entry));
    refuseRepetition(m_levels.back(), "the entry ", name);
    addChild({Role::Child, slot.parent, entry});
}

void ElementBuilder::text(std::string_view text)
{
    const Slot slot = takeSlot();
    spend(text.size());
    if (slot.role == Role::Name)
        return addName(slot, text);
    if (slot.role == Role::Value || (slot.role == Role::Child && formOf(*slot.entry) == JsonForm::Text))
        return addValue(slot, text);
    if (slot.role != Role::Attribute || slot.attribute->kind == ValueKind::Flag)
        refuse(slot, "a string");
    slot.parent->attributes[indexOf(*slot.parent->entry, *slot.attribute)] = carriable(text);
}

void ElementBuilder::flag(bool value)
{
    const Slot slot = takeSlot();
    const char* const word = value ? "true" : "false";
    const bool isPresence = slot.role == Role::Child && formOf(*slot.entry) == JsonForm::Presence;
    if (isPresence && value)
        addChild(slot);
    if (isPresence)
        return;
    if (slot.role != Role::Attribute || slot.attribute->kind != ValueKind::Flag)
        refuse(slot, word);
    slot.parent->attributes[indexOf(*slot.parent->entry, *slot.attribute)] = word;
}

void ElementBuilder::number(double value)
{
    const Slot slot = takeSlot();
    if (slot.role != Role::FormatVersion)
        refuse(slot, "a number");
    if (value < k_formatVersion || value > k_formatVersion)
        throw JsonRefusal("is a version of the form that is not known; " + std::to_string(k_formatVersion) + " is");
    m_hasFormatVersion = true;
}

void ElementBuilder::null() { refuse(takeSlot(), "null"); }

std::string ElementBuilder::pointer() const
{
    std::string pointer;
    for (const Level& level : m_levels) {
        if (level.isObject && level.hasKey)
            appendStep(pointer, level.key);
        else if (!level.isObject && level.count != 0)
            appendStep(pointer, std::to_string(level.count - 1));
    }
    return pointer;
}

} // namespace zupackage::authoring
