#include "check/wording.hpp"
#include "package/entry_steps.hpp"
#include "paths/path_rules.hpp"
#include "paths/path_selection.hpp"
#include "paths/vocabulary_of_nodes.hpp"

#include <map>

namespace zu::authoring {

namespace {

/// Nobody reads through more, and everything takes time.
constexpr std::size_t k_mostCandidates = 1000;

/// What tells an element from its siblings by its identity; empty when nothing does.
std::string identityPredicate(SourceNode element)
{
    const ElementEntry* const entry = zupackage::authoring::entryOf(element);
    if (!entry || entry->identity.empty())
        return {};
    return zupackage::authoring::predicateOnIdentity(*entry, zupackage::authoring::identityOf(element, *entry));
}

/// A step to each of the elements in `parent`.
void appendSteps(SourceNode parent, std::vector<std::string>& steps)
{
    std::map<std::string_view, std::size_t> counts;
    for (const SourceNode child : parent.children()) {
        if (child.isElement())
            ++counts[child.name()];
    }
    std::map<std::string_view, std::size_t> positions;
    for (const SourceNode child : parent.children()) {
        if (!child.isElement() || steps.size() == k_mostCandidates)
            continue;
        const std::size_t position = ++positions[child.name()];
        std::string predicate = identityPredicate(child);
        if (predicate.empty() && counts[child.name()] > 1)
            predicate = "[" + std::to_string(position) + "]";
        steps.push_back(std::string(child.name()) + predicate);
    }
}

std::string_view nameOf(const std::string& step) { return std::string_view(step).substr(0, step.find('[')); }

/// The most similar of the candidates: by the name, then by the predicates; without a similar one there, the last, as
/// when there are fewer than thought.
std::string nearestOf(const std::vector<std::string>& candidates, const std::string& wanted)
{
    std::vector<std::string_view> names;
    for (const std::string& candidate : candidates)
        names.push_back(nameOf(candidate));
    const std::string_view name = zupackage::check::nearest(nameOf(wanted), names);
    std::vector<std::string_view> namesakes;
    for (const std::string& candidate : candidates) {
        if (nameOf(candidate) == name)
            namesakes.push_back(candidate);
    }
    const std::string_view nearest = zupackage::check::nearest(wanted, namesakes);
    if (!nearest.empty() || namesakes.empty())
        return std::string(nearest);
    return std::string(namesakes.back());
}

/// The names of the elements' attributes, as steps.
std::vector<std::string> attributeSteps(const std::vector<SourceNode>& elements)
{
    std::vector<std::string> steps;
    for (const SourceNode element : elements) {
        for (const SourceAttribute attribute : element.attributes()) {
            if (steps.size() < k_mostCandidates)
                steps.push_back("@" + std::string(attribute.name()));
        }
    }
    return steps;
}

} // namespace

std::string nearestPath(const SourceDocument& document, const ManifestPath& path)
{
    std::vector<SourceNode> elements = zupackage::authoring::beginning(document, path);
    std::string result;
    const auto append = [&](const std::string& step) {
        if (!step.empty())
            result += (result.empty() && !path.isAbsolute() ? "" : "/") + step;
    };
    for (auto step = path.steps().begin(); step != path.steps().end() && !elements.empty(); ++step) {
        const std::vector<SourceNode> next = zupackage::authoring::stepFrom(elements, *step);
        std::vector<std::string> candidates;
        for (const SourceNode element : next.empty() ? elements : std::vector<SourceNode>())
            appendSteps(element, candidates);
        append(next.empty() ? nearestOf(candidates, step->text) : step->text);
        elements = next;
    }
    append(nearestOf(attributeSteps(elements), "@" + path.attribute()));
    return result.empty() && document.root() ? document.root().path() : result;
}

} // namespace zu::authoring
