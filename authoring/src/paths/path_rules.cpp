#include "paths/path_rules.hpp"

#include "characters.hpp"
#include "check/date.hpp"
#include "check/language_tag.hpp"
#include "check/version.hpp"
#include "check/wording.hpp"
#include "decoding.hpp"
#include "edit/reading.hpp"
#include "package/package_element.hpp"
#include "paths/path_selection.hpp"

#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/behavior_info.hpp>

#include <algorithm>
#include <set>
#include <utility>

namespace zupackage::authoring {

using check::didYouMean;
using check::inQuotes;
using check::nearest;
using zu::BehaviorInfo;
using zu::authoring::AttributeEntry;
using zu::authoring::ElementEntry;
using zu::authoring::Occurrence;
using zu::authoring::PathEditError;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceNode;
using zu::authoring::ValueKind;

namespace {

/// What is wrong with a value; empty when it is one of its kind.
std::string objection(ValueKind kind, std::string_view value)
{
    switch (kind) {
    case ValueKind::None:
        return value.empty() ? "" : " stands where no text does";
    case ValueKind::Flag:
        return value == "true" || value == "1" || value == "false" || value == "0"
                   ? ""
                   : " is no flag: \"true\", \"1\", \"false\" or \"0\"";
    case ValueKind::LanguageCode:
        return check::parseLanguageTag(value) ? "" : " is no language code";
    case ValueKind::Version:
        return value.empty() || check::parseVersion(value) ? "" : " is no version of the form \"1.2\"";
    case ValueKind::Date:
        return value.empty() || check::isDate(value) ? "" : " is no date of the form \"2026-09-12\"";
    case ValueKind::Nature:
        return value == BehaviorInfo::natureInteractive() || value == BehaviorInfo::natureSolitary()
                   ? ""
                   : " is neither \"interactive\" nor \"solitary\"";
    case ValueKind::Text:
    case ValueKind::Path:
    case ValueKind::Identifier:
    case ValueKind::Command:
    case ValueKind::Condition:
        return "";
    }
    return "";
}

void requireValue(ValueKind kind, std::string_view value)
{
    if (const std::string wrong = objection(kind, value); !wrong.empty())
        refuse(inQuotes(value) + wrong);
}

const AttributeEntry& requireKnown(const ElementEntry& entry, std::string_view attribute)
{
    if (const AttributeEntry* const known = entry.attribute(attribute))
        return *known;
    std::vector<std::string_view> names;
    for (const AttributeEntry& known : entry.attributes)
        names.push_back(known.name);
    refuse(inQuotes(entry.name) + " has no attribute " + inQuotes(attribute) + didYouMean(nearest(attribute, names)));
}

void requireAttributeValue(const ElementEntry& entry, const AttributeEntry& attribute, std::string_view value)
{
    if (attribute.isRequired && value.empty())
        refuse(inQuotes(entry.name) + " needs " + inQuotes(attribute.name));
    requireValue(attribute.kind, value);
}

const ElementEntry& requireKnownChild(const ElementEntry* parent, std::string_view parentName, const std::string& child)
{
    if (!parent)
        refuse("manifests have no " + inQuotes(parentName) + ", nor what stands in it");
    if (const ElementEntry* const known = parent->child(child))
        return *known;
    std::vector<std::string_view> names;
    for (const ElementEntry* known : parent->children)
        names.push_back(known->name);
    refuse(inQuotes(parent->name) + " has no element " + inQuotes(child) + didYouMean(nearest(child, names)));
}

[[noreturn]] void refuseSecond(std::string_view name, std::string_view identity)
{
    refuse("there is a " + inQuotes(name) + (identity.empty() ? "" : " for " + inQuotes(identity)) + " already");
}

/// That nothing stands in a new element twice of which there is one.
void requireDistinctChildren(const ElementEntry& entry, const NewElement& element)
{
    std::set<std::pair<std::string, std::string>> known;
    for (const NewElement& child : element.children) {
        const ElementEntry* const childEntry = entry.child(child.name);
        const bool isOne = childEntry && childEntry->occurrence != Occurrence::Repeated;
        if (!childEntry || (!isOne && childEntry->identity.empty()))
            continue;
        const std::string identity = isOne ? std::string() : identityOf(child, *childEntry);
        if (!known.emplace(child.name, identity).second)
            refuseSecond(child.name, identity);
    }
}

/// That all of a new element is what the vocabulary has.
void requireWhole(const ElementEntry& entry, const NewElement& element)
{
    for (const auto& [name, value] : element.attributes)
        requireAttributeValue(entry, requireKnown(entry, name), value);
    for (const AttributeEntry& attribute : entry.attributes) {
        if (attribute.isRequired && !element.attribute(attribute.name))
            refuse(inQuotes(entry.name) + " needs " + inQuotes(attribute.name));
    }
    requireValue(entry.text, element.text);
    requireDistinctChildren(entry, element);
    for (const NewElement& child : element.children)
        requireWhole(requireKnownChild(&entry, entry.name, child.name), child);
}

/// The elements that readers take for entries of one list with those of `entry` in `parent`.
std::vector<SourceNode> entriesIn(SourceNode parent, const ElementEntry& entry)
{
    std::vector<SourceNode> entries;
    for (const SourceNode container : sectionWith(parent)) {
        for (const SourceNode child : container.children()) {
            if (child.isElement() && (child.name() == entry.name || entry.parent->countsEveryChild))
                entries.push_back(child);
        }
    }
    return entries;
}

[[noreturn]] void refuseSecond(SourceNode first, const ElementEntry& entry, std::string_view identity)
{
    refuse("there is a " + inQuotes(first.name()) + " for " + inQuotes(identity) + " already" +
           (first.name() == entry.name ? "" : ", which readers take for a " + inQuotes(entry.name)));
}

void requireNovelty(SourceNode parent, const ElementEntry& entry, const NewElement& element)
{
    const std::string identity = identityOf(element, entry);
    for (const SourceNode child : entriesIn(parent, entry)) {
        if (entry.occurrence != Occurrence::Repeated)
            refuseSecond(entry.name, {});
        if (!entry.identity.empty() && identityOf(child, entry) == identity)
            refuseSecond(child, entry, identity);
    }
}

} // namespace

void refuse(const std::string& message) { throw PathEditError(PathEditError::Reason::Refused, message); }

void requireXmlText(std::string_view text)
{
    if (validUtf8End(text) != text.size())
        refuse(inQuotes(text) + " is no UTF-8");
    for (std::size_t at = 0; at < text.size();) {
        const Character character = characterAt(at, text);
        if (!isAllowed(character.codePoint))
            refuse(inQuotes(text) + " has a character that XML cannot carry");
        at += character.size;
    }
}

void requireXmlTexts(const NewElement& element)
{
    requireXmlText(element.text);
    for (const auto& attribute : element.attributes)
        requireXmlText(attribute.second);
    for (const NewElement& child : element.children)
        requireXmlTexts(child);
}

void requireText(SourceNode element, const ElementEntry* entry, std::string_view text)
{
    for (const SourceNode child : element.children()) {
        if (child.isElement())
            refuse(inQuotes(element.name()) + " holds elements, which a text would replace");
    }
    if (entry)
        requireValue(entry->text, text);
}

void requireAttribute(SourceNode element, const ElementEntry* entry, std::string_view attribute, std::string_view value,
                      bool isNew)
{
    if (!entry && isNew)
        refuse("manifests have no " + inQuotes(element.name()) + ", nor what stands in it");
    if (entry && (isNew || entry->attribute(attribute)))
        requireAttributeValue(*entry, requireKnown(*entry, attribute), value);
}

std::string identityOf(SourceNode element, const ElementEntry& entry)
{
    return entry.identity == k_ownText ? edit::readText(element) : edit::readAttribute(element, entry.identity);
}

std::string identityOf(const NewElement& element, const ElementEntry& entry)
{
    if (entry.identity == k_ownText)
        return element.text;
    const std::string* const attribute = element.attribute(entry.identity);
    return attribute ? *attribute : std::string();
}

void requireUnique(SourceNode element, const ElementEntry& entry, std::string_view identity,
                   const std::unordered_set<std::size_t>& others)
{
    for (const SourceNode other : entriesIn(element.parent(), entry)) {
        const bool isToBeSo = others.count(other.index()) > 0;
        if (other != element && (isToBeSo || identityOf(other, entry) == identity))
            refuseSecond(other, entry, identity);
    }
}

void requireElement(SourceNode parent, const ElementEntry* entry, const NewElement& element)
{
    const ElementEntry& known = requireKnownChild(entry, parent.name(), element.name);
    requireWhole(known, element);
    requireNovelty(parent, known, element);
}

void requireDispensable(const ElementEntry* entry, std::string_view attribute)
{
    const AttributeEntry* const known = entry ? entry->attribute(attribute) : nullptr;
    if (known && known->isRequired)
        refuse(inQuotes(entry->name) + " needs " + inQuotes(attribute));
}

} // namespace zupackage::authoring
