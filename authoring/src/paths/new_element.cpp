#include "paths/new_element.hpp"

#include "edits.hpp"
#include "layout.hpp"

#include <zupackage/authoring/path_edit.hpp>

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::ElementEntry;
using zu::authoring::ManifestPath;
using zu::authoring::PathEditError;
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
    const auto found = std::find_if(parent.children.begin(), parent.children.end(),
                                    [&](const NewElement& child) { return meets(child, step); });
    if (found != parent.children.end())
        return *found;
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

std::string writtenText(const std::string& text, const ElementEntry* entry, const ElementLayout& layout)
{
    // As the package library's writer does it.
    const std::string section =
        entry && entry->text == ValueKind::Condition ? cdataSection(text, layout) : std::string();
    return section.empty() ? withLineEnds(escapedText(text), layout.lineEnd) : section;
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
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
    const auto refuse = [&step] {
        throw PathEditError(PathEditError::Reason::Refused, "\"" + step.text + "\" does not say what to make");
    };
    if (step.name == "*")
        refuse();
    for (const PathPredicate& predicate : step.predicates) {
        switch (predicate.kind) {
        case PathPredicate::Kind::Position:
            refuse();
            break;
        case PathPredicate::Kind::Attribute:
            element.setAttribute(predicate.name, predicate.value);
            break;
        case PathPredicate::Kind::Child:
            element.children.push_back({predicate.name, {}, predicate.value, {}});
            break;
        case PathPredicate::Kind::OwnText:
            element.text = predicate.value;
            break;
        }
    }
    return element;
}

void setWithin(NewElement& element, const ManifestPath& path, std::string_view text)
{
    NewElement* target = &element;
    for (const PathStep& step : path.steps())
        target = &childFor(step, *target);
    if (path.attribute().empty())
        target->text = text;
    else
        target->setAttribute(path.attribute(), std::string(text));
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
    xml += ">" + writtenText(parts.text, entry, layout);
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

std::string cdataSection(std::string_view text, const ElementLayout& layout)
{
    // A carriage return would be read as a line feed, and so needs a reference.
    if (text.find("]]>") != std::string_view::npos || text.find('\r') != std::string_view::npos ||
        (!layout.isUnicode && !isAscii(text)))
        return {};
    return "<![CDATA[" + withLineEnds(text, layout.lineEnd) + "]]>";
}

} // namespace zupackage::authoring
