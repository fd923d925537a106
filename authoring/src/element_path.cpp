#include "source_tree.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <algorithm>
#include <charconv>
#include <vector>

namespace zu::authoring {

namespace {

/// How a node is called in a path; empty for what has no place in one.
std::string_view stepName(SourceNode node)
{
    switch (node.kind()) {
    case NodeKind::Element:
        return node.name();
    case NodeKind::Text:
    case NodeKind::CData:
    case NodeKind::EntityReference:
        return "text()";
    case NodeKind::Comment:
        return "comment()";
    case NodeKind::ProcessingInstruction:
        return "processing-instruction()";
    case NodeKind::None:
    case NodeKind::Document:
    case NodeKind::XmlDeclaration:
    case NodeKind::DocumentType:
        return {};
    }
    return {};
}

/// The name of the step to a node, with its number where others have the same.
std::string stepTo(SourceNode node)
{
    const std::string_view name = stepName(node);
    std::size_t number = 0;
    std::size_t count = 0;
    for (const SourceNode sibling : node.parent().children()) {
        if (stepName(sibling) == name)
            ++count;
        if (sibling == node)
            number = count;
    }
    std::string step(name);
    if (count > 1)
        step += '[' + std::to_string(number) + ']';
    return step;
}

/// One step of a path, without its slash.
struct Step
{
    std::string_view name;
    std::size_t number = 1; ///< 0 when there is none that counts
};

Step parsedStep(std::string_view text)
{
    const std::size_t open = text.find('[');
    if (open == std::string_view::npos)
        return {text};
    Step step{text.substr(0, open), 0};
    const char* const end = text.data() + text.size();
    const auto number = std::from_chars(text.data() + open + 1, end, step.number);
    const bool isWhole = number.ec == std::errc() && number.ptr + 1 == end && *number.ptr == ']';
    return isWhole ? step : Step{step.name, 0};
}

SourceNode childAt(Step step, SourceNode parent)
{
    for (const SourceNode child : parent.children())
        if (!step.name.empty() && stepName(child) == step.name && --step.number == 0)
            return child;
    return {};
}

} // namespace

std::string SourceNode::path() const
{
    std::vector<SourceNode> way;
    for (SourceNode node = *this; !stepName(node).empty(); node = node.parent())
        way.push_back(node);
    if (way.empty())
        return m_tree == nullptr ? "" : "/";
    std::string path;
    for (auto node = way.rbegin(); node != way.rend(); ++node)
        path += '/' + stepTo(*node);
    return path;
}

std::string SourceAttribute::path() const
{
    if (!owner().isElement())
        return owner().path();
    return owner().path() + "/@" + std::string(name());
}

SourceNode SourceDocument::find(std::string_view path) const
{
    if (path == "/")
        return document();
    if (path.empty() || path.front() != '/')
        return {};
    SourceNode node = document();
    while (!path.empty() && node) {
        path.remove_prefix(1);
        const std::size_t end = std::min(path.find('/'), path.size());
        node = childAt(parsedStep(path.substr(0, end)), node);
        path.remove_prefix(end);
    }
    return node;
}

SourceAttribute SourceDocument::findAttribute(std::string_view path) const
{
    const std::size_t at = path.rfind("/@");
    if (at == std::string_view::npos)
        return {};
    for (const SourceAttribute attribute : find(path.substr(0, at)).attributes())
        if (attribute.name() == path.substr(at + 2))
            return attribute;
    return {};
}

} // namespace zu::authoring
