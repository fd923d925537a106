#include "paths/new_element.hpp"

#include "check/wording.hpp"
#include "edits.hpp"
#include "paths/path_rules.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::ElementEntry;
using zu::authoring::ManifestPath;
using zu::authoring::Occurrence;
using zu::authoring::PathPredicate;
using zu::authoring::PathStep;
using zu::authoring::ValueKind;

namespace {

bool meets(const NewElement& element, const PathPredicate& predicate)
{
    switch (predicate.kind) {
    case PathPredicate::Kind::Position:
        return false;
    case PathPredicate::Kind::Attribute: {
        const std::string* const value = element.attribute(predicate.name);
        return value && *value == predicate.value;
    }
    case PathPredicate::Kind::Child:
        return std::any_of(element.children.begin(), element.children.end(), [&](const NewElement& child) {
            return child.name == predicate.name && child.text == predicate.value;
        });
    case PathPredicate::Kind::OwnText:
        return element.text == predicate.value;
    }
    return false;
}

bool meets(const NewElement& element, const PathStep& step)
{
    return element.name == step.name && std::all_of(step.predicates.begin(), step.predicates.end(),
                                                    [&](const PathPredicate& p) { return meets(element, p); });
}

NewElement& childFor(const PathStep& step, NewElement& parent)
{
    const auto last = std::find_if(parent.children.rbegin(), parent.children.rend(),
                                   [&](const NewElement& child) { return meets(child, step); });
    if (last != parent.children.rend())
        return *last;
    parent.children.push_back(elementFor(step));
    return parent.children.back();
}

/// Where a name stands among those that the vocabulary has; behind all of them when it has none such.
template <typename Entries, typename NameOf>
std::size_t rankIn(const Entries& entries, std::string_view name, NameOf nameOf)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return nameOf(entry) == name; });
    return static_cast<std::size_t>(found - entries.begin());
}

/// The parts of an element in the order of the vocabulary.
NewElement ordered(NewElement element, const ElementEntry& entry)
{
    const auto rank = [&entry](const auto& attribute) {
        return rankIn(entry.attributes, attribute.first, [](const auto& known) { return known.name; });
    };
    std::stable_sort(element.attributes.begin(), element.attributes.end(),
                     [&](const auto& left, const auto& right) { return rank(left) < rank(right); });
    const auto childRank = [&entry](const NewElement& child) {
        return rankIn(entry.children, child.name, [](const ElementEntry* known) { return known->name; });
    };
    std::stable_sort(
        element.children.begin(), element.children.end(),
        [&](const NewElement& left, const NewElement& right) { return childRank(left) < childRank(right); });
    return element;
}

} // namespace

const std::string* NewElement::attribute(std::string_view attributeName) const
{
    for (const auto& [present, value] : attributes) {
        if (present == attributeName)
            return &value;
    }
    return nullptr;
}

void NewElement::setAttribute(const std::string& attributeName, const std::string& value)
{
    for (auto& [present, presentValue] : attributes) {
        if (present == attributeName) {
            presentValue = value;
            return;
        }
    }
    attributes.emplace_back(attributeName, value);
}

NewElement elementFor(const PathStep& step)
{
    NewElement element{step.name, {}, {}, {}};
    const auto require = [&step](bool isClear) {
        if (!isClear)
            refuse("\"" + step.text + "\" does not say what to make");
    };
    require(step.name != "*");
    for (const PathPredicate& predicate : step.predicates) {
        switch (predicate.kind) {
        case PathPredicate::Kind::Position:
            require(false);
            break;
        case PathPredicate::Kind::Attribute:
            require(canSay(element, predicate.name, predicate.value));
            say(element, predicate.name, predicate.value);
            break;
        case PathPredicate::Kind::Child:
            element.children.push_back({predicate.name, {}, predicate.value, {}});
            break;
        case PathPredicate::Kind::OwnText:
            require(canSay(element, {}, predicate.value));
            say(element, {}, predicate.value);
            break;
        }
    }
    return element;
}

bool canSay(const NewElement& element, const std::string& attribute, std::string_view text)
{
    if (attribute.empty())
        return element.text.empty() || element.text == text;
    const std::string* const present = element.attribute(attribute);
    return !present || *present == text;
}

void say(NewElement& element, const std::string& attribute, std::string_view text)
{
    if (attribute.empty())
        element.text = text;
    else
        element.setAttribute(attribute, std::string(text));
}

void setWithin(NewElement& element, const ElementEntry* entry, const ManifestPath& path, std::string_view text)
{
    NewElement* parent = nullptr;
    NewElement* target = &element;
    for (const PathStep& step : path.steps()) {
        entry = entry ? entry->child(step.name) : nullptr;
        parent = target;
        target = &childFor(step, *parent);
    }
    const bool canRepeat = parent && (!entry || entry->occurrence == Occurrence::Repeated);
    const auto& set = target->partsSet;
    const bool isSet = std::find(set.begin(), set.end(), path.attribute()) != set.end();
    if (canRepeat && (isSet || !canSay(*target, path.attribute(), text))) {
        parent->children.push_back(elementFor(path.steps().back()));
        target = &parent->children.back();
    }
    if (!canSay(*target, path.attribute(), text))
        refuse("\"" + path.text() + "\" cannot become " + check::inQuotes(text) + " and something else, too");
    say(*target, path.attribute(), text);
    target->partsSet.push_back(path.attribute());
}

NewElement& makeChain(const std::vector<PathStep>& steps, NewElement& outermost)
{
    outermost = elementFor(steps.front());
    NewElement* innermost = &outermost;
    for (std::size_t i = 1; i < steps.size(); ++i)
        innermost = &childFor(steps[i], *innermost);
    return *innermost;
}

std::string written(const NewElement& element, const ElementEntry* entry, const ElementLayout& layout)
{
    const NewElement parts = entry ? ordered(element, *entry) : element;
    std::string xml = "<" + parts.name;
    for (const auto& [name, value] : parts.attributes)
        xml += " " + name + "=" + layout.quote + escapedValue(value, layout.quote) + layout.quote;
    if (parts.text.empty() && parts.children.empty())
        return xml + "/>";
    // As the package library's writer does it.
    const bool isCondition = entry && entry->text == ValueKind::Condition;
    xml += ">" + textSource(parts.text, isCondition, layout);
    ElementLayout inner = layout;
    inner.indentation += layout.step;
    // A text and elements are no form that manifests have: white space would become part of the text.
    inner.isInOneLine = layout.isInOneLine || !parts.text.empty();
    for (const NewElement& child : parts.children) {
        if (!inner.isInOneLine)
            xml += layout.lineEnd + inner.indentation;
        xml += written(child, entry ? entry->child(child.name) : nullptr, inner);
    }
    if (!inner.isInOneLine && !parts.children.empty())
        xml += layout.lineEnd + layout.indentation;
    return xml + "</" + parts.name + ">";
}

std::string textSource(std::string_view text, bool asSection, const ElementLayout& layout)
{
    // Strict parsers read a carriage return as a line feed unless a reference says it, which none does in a section.
    const bool isSection =
        asSection && text.find('\r') == std::string_view::npos && fitsSection(text, layout.hasEveryCharacter);
    return isSection ? cdataSection(text) : readableText(text, layout.hasEveryCharacter);
}

} // namespace zupackage::authoring
