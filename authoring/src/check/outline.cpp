#include "check/outline.hpp"

#include <algorithm>

namespace zupackage::check {

using zu::authoring::Vocabulary;

Outline::Outline(const SourceDocument& document)
    : m_document(document), m_entries(document.nodeCount()), m_elementsOf(Vocabulary::manifest().elements().size())
{
    const SourceNode root = document.root();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const SourceNode node = document.node(i);
        if (!node.isElement())
            continue;
        const ElementEntry* const parent = m_entries[node.parent().index()];
        const ElementEntry* const entry = node == root ? &Vocabulary::manifest().root()
                                          : parent     ? parent->child(node.name())
                                                       : nullptr;
        if (!entry)
            continue;
        m_entries[i] = entry;
        m_elements.push_back(node);
        m_elementsOf[entry->index].push_back(node);
    }
}

const std::vector<SourceNode>& Outline::elements(std::string_view path) const
{
    return m_elementsOf[Vocabulary::manifest().find(path)->index];
}

std::string_view plainValue(SourceNode element, std::string_view name) { return plainAttribute(element, name).value(); }

std::vector<SourceNode> childrenNamed(SourceNode node, std::string_view name)
{
    std::vector<SourceNode> result;
    for (const SourceNode child : node.children()) {
        if (child.isElement() && child.name() == name)
            result.push_back(child);
    }
    return result;
}

bool hasElements(const std::vector<SourceNode>& containers)
{
    return std::any_of(containers.begin(), containers.end(), [](SourceNode container) {
        const auto children = container.children();
        return std::any_of(children.begin(), children.end(), [](SourceNode child) { return child.isElement(); });
    });
}

} // namespace zupackage::check
