#include "paths/path_selection.hpp"

#include "edit/reading.hpp"
#include "paths/vocabulary_of_nodes.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::ElementEntry;
using zu::authoring::ManifestPath;
using zu::authoring::Occurrence;
using zu::authoring::PathPredicate;
using zu::authoring::PathStep;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;

namespace {

bool hasChild(SourceNode element, const PathPredicate& predicate)
{
    for (const SourceNode child : element.children()) {
        if (child.isElement() && child.name() == predicate.name && edit::readText(child) == predicate.value)
            return true;
    }
    return false;
}

/// Those of the elements, all of one parent, that meet a condition.
void filter(std::vector<SourceNode>& elements, const PathPredicate& predicate)
{
    if (predicate.kind == PathPredicate::Kind::Position) {
        if (predicate.position > elements.size())
            elements.clear();
        else
            elements = {elements[predicate.position - 1]};
        return;
    }
    const auto fails = [&predicate](SourceNode element) {
        if (predicate.kind == PathPredicate::Kind::OwnText)
            return edit::readText(element) != predicate.value;
        if (predicate.kind == PathPredicate::Kind::Child)
            return !hasChild(element, predicate);
        const SourceAttribute attribute = edit::plainAttribute(element, predicate.name);
        return !attribute || edit::readValue(attribute) != predicate.value;
    };
    elements.erase(std::remove_if(elements.begin(), elements.end(), fails), elements.end());
}

} // namespace

std::vector<SourceNode> stepFrom(const std::vector<SourceNode>& parents, const PathStep& step)
{
    std::vector<SourceNode> result;
    for (const SourceNode parent : parents) {
        std::vector<SourceNode> elements;
        for (const SourceNode child : parent.children()) {
            if (child.isElement() && (step.name == "*" || child.name() == step.name))
                elements.push_back(child);
        }
        for (const PathPredicate& predicate : step.predicates)
            filter(elements, predicate);
        result.insert(result.end(), elements.begin(), elements.end());
    }
    return result;
}

std::vector<SourceNode> beginning(const SourceDocument& document, const ManifestPath& path)
{
    if (!document.root())
        return {};
    return {path.isAbsolute() ? document.document() : document.root()};
}

std::vector<std::vector<SourceNode>> sectionsOf(const std::vector<SourceNode>& elements)
{
    std::vector<std::vector<SourceNode>> sections;
    for (const SourceNode element : elements) {
        const ElementEntry* const entry = entryOf(element);
        const bool isSection = entry && entry->occurrence != Occurrence::Repeated;
        const auto same = isSection ? std::find_if(sections.begin(), sections.end(),
                                                   [&](const std::vector<SourceNode>& section) {
                                                       return section.front().name() == element.name();
                                                   })
                                    : sections.end();
        if (same == sections.end())
            sections.push_back({element});
        else
            same->push_back(element);
    }
    return sections;
}

std::vector<SourceNode> sectionWith(SourceNode element)
{
    const ElementEntry* const entry = entryOf(element);
    if (!entry || !entry->parent || entry->occurrence == Occurrence::Repeated)
        return {element};
    std::vector<SourceNode> section;
    for (const SourceNode parent : sectionWith(element.parent())) {
        for (const SourceNode child : parent.children()) {
            if (child.isElement() && child.name() == element.name())
                section.push_back(child);
        }
    }
    return section;
}

} // namespace zupackage::authoring

namespace zu::authoring {

std::string PathTarget::text() const
{
    return attribute ? zupackage::edit::readValue(attribute) : zupackage::edit::readText(element);
}

std::vector<PathTarget> select(const SourceDocument& document, const ManifestPath& path)
{
    std::vector<SourceNode> elements = zupackage::authoring::beginning(document, path);
    for (const PathStep& step : path.steps())
        elements = zupackage::authoring::stepFrom(elements, step);
    std::vector<PathTarget> targets;
    for (const SourceNode element : elements) {
        const SourceAttribute attribute = zupackage::edit::plainAttribute(element, path.attribute());
        if (path.attribute().empty() || attribute)
            targets.push_back({element, attribute});
    }
    return targets;
}

} // namespace zu::authoring
