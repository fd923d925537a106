#include "edit/reading.hpp"

#include "edit/tokens.hpp"
#include "source_tree.hpp"

#include <algorithm>

namespace zupackage::edit {

using zu::authoring::AttributeEntry;
using zu::authoring::ByteRange;
using zu::authoring::k_ownText;
using zu::authoring::NodeKind;
using zu::authoring::Occurrence;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;
using zu::authoring::ValueKind;

bool isTextual(NodeKind kind)
{
    return kind == NodeKind::Text || kind == NodeKind::CData || kind == NodeKind::EntityReference;
}

namespace {

std::string_view sourceOf(SourceNode node, ByteRange range)
{
    const SourceTree& tree = SourceTreeAccess::tree(node);
    const std::size_t begin = tree.toText(range.begin);
    return tree.utf8().substr(begin, tree.toText(range.end) - begin);
}

void appendText(SourceNode node, std::string& text)
{
    const std::string_view source = sourceOf(node, node.contentRange());
    if (node.kind() == NodeKind::Text && source.find('&') != std::string_view::npos)
        text += tokensOf(source, References::Resolved).value;
    else
        text += node.kind() == NodeKind::EntityReference ? node.value() : source;
}

void appendTexts(SourceNode element, std::string& text)
{
    for (const SourceNode child : element.children()) {
        if (child.isElement())
            appendTexts(child, text);
        else if (isTextual(child.kind()) && (child.kind() != NodeKind::Text || !isBlank(child.value())))
            appendText(child, text);
    }
}

bool hasNothingIn(const ElementEntry& entry)
{
    return entry.text == ValueKind::None && entry.attributes.empty() && entry.children.empty();
}

bool isKeyedByLanguage(const ElementEntry& entry)
{
    const AttributeEntry* const key = entry.attribute(entry.identity);
    return key && key->kind == ValueKind::LanguageCode;
}

Keeping keepingOfRepeated(const ElementEntry& entry)
{
    if (entry.parent->countsEveryChild && entry.identity.empty())
        return Keeping::TextsOfKeys;
    if (entry.identity == k_ownText)
        return Keeping::Codes;
    if (isKeyedByLanguage(entry))
        return Keeping::LastOfKey;
    // What tells entries apart within one of many is a key; within the package it is no more than a name.
    return entry.parent->occurrence == Occurrence::Repeated ? Keeping::FirstOfKey : Keeping::List;
}

} // namespace

bool counts(SourceNode node) { return node.kind() != NodeKind::Text || !isBlank(node.value()); }

std::string readText(SourceNode node)
{
    std::string text;
    if (node.isElement())
        appendTexts(node, text);
    return text;
}

std::string writtenText(SourceNode node)
{
    std::string text;
    for (const SourceNode child : node.children())
        appendText(child, text);
    return text;
}

SourceAttribute plainAttribute(SourceNode node, std::string_view name)
{
    for (const SourceAttribute attribute : node.attributes())
        if (attribute.name() == name)
            return attribute;
    return {};
}

std::string readValue(SourceAttribute attribute)
{
    if (!attribute)
        return {};
    const std::string_view source = sourceOf(attribute.owner(), attribute.valueRange());
    if (source.find_first_of("\t\r\n") == std::string_view::npos)
        return std::string(attribute.value());
    return tokensOf(source, References::Resolved).value;
}

std::string readAttribute(SourceNode node, std::string_view name) { return readValue(plainAttribute(node, name)); }

Keeping keepingOf(const ElementEntry& entry)
{
    if (entry.occurrence == Occurrence::Repeated)
        return keepingOfRepeated(entry);
    if (hasNothingIn(entry))
        return Keeping::Presence;
    return entry.children.empty() ? Keeping::LastOne : Keeping::Section;
}

bool isListOfNames(const ElementEntry& entry)
{
    return !entry.children.empty() &&
           std::all_of(entry.children.begin(), entry.children.end(), [](const ElementEntry* child) {
               return child->occurrence != Occurrence::Repeated && hasNothingIn(*child);
           });
}

std::string_view keyName(const ElementEntry& entry)
{
    return entry.identity.empty() && !entry.attributes.empty() ? entry.attributes.front().name : entry.identity;
}

bool isWritten(SourceNode node, const ElementEntry& entry, TextOf textOf)
{
    if (entry.text != ValueKind::None)
        return !textOf(node).empty();
    return std::any_of(entry.attributes.begin(), entry.attributes.end(), [](const auto& a) { return !a.isRequired; }) ||
           std::all_of(entry.attributes.begin(), entry.attributes.end(),
                       [&](const AttributeEntry& a) { return !readAttribute(node, a.name).empty(); });
}

} // namespace zupackage::edit
