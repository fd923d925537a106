#include "check/element_paths.hpp"

#include <algorithm>
#include <unordered_map>

namespace zupackage::check {

ElementPaths::ElementPaths(const SourceDocument& document)
    : m_positions(document.nodeCount()), m_isAlone(document.nodeCount())
{
    for (std::size_t i = 0; i < m_positions.size(); ++i) {
        std::unordered_map<std::string_view, std::uint32_t> counts;
        for (const SourceNode child : document.node(i).children()) {
            if (child.isElement())
                m_positions[child.index()] = ++counts[child.name()];
        }
        for (const SourceNode child : document.node(i).children()) {
            if (child.isElement())
                m_isAlone[child.index()] = counts[child.name()] == 1;
        }
    }
}

std::string ElementPaths::path(SourceNode node, std::string_view attribute) const
{
    while (node && !node.isElement())
        node = node.parent();
    std::vector<SourceNode> way;
    for (; node && node.isElement(); node = node.parent())
        way.push_back(node);
    std::string result;
    for (auto step = way.rbegin(); step != way.rend(); ++step) {
        result.append("/").append(step->name());
        if (!m_isAlone[step->index()])
            result += "[" + std::to_string(m_positions[step->index()]) + "]";
    }
    if (!result.empty() && !attribute.empty())
        result.append("/@").append(attribute);
    return result;
}

} // namespace zupackage::check
