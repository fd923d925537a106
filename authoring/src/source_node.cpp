#include "source_tree.hpp"

#include <zupackage/authoring/source_node.hpp>

namespace zu::authoring {

using zupackage::authoring::AttributeRecord;
using zupackage::authoring::isAsItStands;
using zupackage::authoring::NodeRecord;
using zupackage::authoring::textIn;
using zupackage::authoring::TextSpan;

namespace {

std::string_view localPart(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string_view prefixPart(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

std::string_view valueOf(TextSpan value, TextSpan content, const SourceTree& tree)
{
    return isAsItStands(value) ? textIn(content, tree.utf8()) : textIn(value, tree.decodedValues);
}

/// Whether what a node of that kind says is a value.
bool hasValue(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Text:
    case NodeKind::CData:
    case NodeKind::Comment:
    case NodeKind::ProcessingInstruction:
    case NodeKind::EntityReference:
        return true;
    case NodeKind::None:
    case NodeKind::Document:
    case NodeKind::XmlDeclaration:
    case NodeKind::DocumentType:
    case NodeKind::Element:
        return false;
    }
    return false;
}

bool isText(NodeKind kind)
{
    return kind == NodeKind::Text || kind == NodeKind::CData || kind == NodeKind::EntityReference;
}

} // namespace

SourceNode SourceAttribute::owner() const { return {m_tree, m_owner}; }

std::string_view SourceAttribute::name() const
{
    return m_tree == nullptr ? std::string_view() : textIn(m_tree->attributes[m_index].name, m_tree->utf8());
}

std::string_view SourceAttribute::localName() const { return localPart(name()); }
std::string_view SourceAttribute::prefix() const { return prefixPart(name()); }

std::string_view SourceAttribute::value() const
{
    if (m_tree == nullptr)
        return {};
    const AttributeRecord& attribute = m_tree->attributes[m_index];
    return valueOf(attribute.value, attribute.content, *m_tree);
}

ByteRange SourceAttribute::range() const
{
    if (m_tree == nullptr)
        return {};
    const AttributeRecord& attribute = m_tree->attributes[m_index];
    return m_tree->range({attribute.name.begin, attribute.content.end + 1});
}

ByteRange SourceAttribute::nameRange() const
{
    return m_tree == nullptr ? ByteRange() : m_tree->range(m_tree->attributes[m_index].name);
}

ByteRange SourceAttribute::valueRange() const
{
    return m_tree == nullptr ? ByteRange() : m_tree->range(m_tree->attributes[m_index].content);
}

char SourceAttribute::quote() const
{
    return m_tree == nullptr ? '\0' : m_tree->utf8()[m_tree->attributes[m_index].content.end];
}

NodeKind SourceNode::kind() const { return m_tree == nullptr ? NodeKind::None : m_tree->nodes[m_index].kind; }

SourceNode SourceNode::parent() const
{
    return m_tree == nullptr || m_index == 0 ? SourceNode() : SourceNode(m_tree, m_tree->nodes[m_index].parent);
}

SourceNode SourceNode::firstChild() const
{
    if (m_tree == nullptr || m_index + 1 >= m_tree->nodes.size() || m_tree->nodes[m_index + 1].parent != m_index)
        return {};
    return {m_tree, m_index + 1};
}

SourceNode SourceNode::nextSibling() const
{
    const std::uint32_t next = m_tree == nullptr ? 0 : m_tree->nodes[m_index].next;
    return next == 0 ? SourceNode() : SourceNode(m_tree, next);
}

SourceChildren SourceNode::children() const { return SourceChildren(*this); }

SourceNode SourceNode::child(std::string_view localName) const
{
    for (const SourceNode child : children())
        if (child.isElement() && child.localName() == localName)
            return child;
    return {};
}

SourceAttributes SourceNode::attributes() const
{
    if (m_tree == nullptr)
        return {nullptr, 0, 0, 0};
    const NodeRecord& node = m_tree->nodes[m_index];
    return {m_tree, m_index, node.firstAttribute, node.attributeCount};
}

SourceAttribute SourceNode::attribute(std::string_view localName) const
{
    for (const SourceAttribute attribute : attributes())
        if (attribute.localName() == localName && attribute.prefix() != "xmlns" && attribute.name() != "xmlns")
            return attribute;
    return {};
}

std::string_view SourceNode::name() const
{
    return m_tree == nullptr ? std::string_view() : textIn(m_tree->nodes[m_index].name, m_tree->utf8());
}

std::string_view SourceNode::localName() const { return localPart(name()); }
std::string_view SourceNode::prefix() const { return prefixPart(name()); }

std::string_view SourceNode::value() const
{
    if (!hasValue(kind()))
        return {};
    const NodeRecord& node = m_tree->nodes[m_index];
    return valueOf(node.value, node.content, *m_tree);
}

std::string SourceNode::textContent() const
{
    if (isText(kind()))
        return std::string(value());
    std::string text;
    if (m_tree == nullptr)
        return text;
    const std::uint32_t end = m_tree->nodes[m_index].range.end;
    for (std::uint32_t i = m_index + 1; i < m_tree->nodes.size() && m_tree->nodes[i].range.begin < end; ++i)
        if (const SourceNode node(m_tree, i); isText(node.kind()))
            text += node.value();
    return text;
}

ByteRange SourceNode::range() const
{
    return m_tree == nullptr ? ByteRange() : m_tree->range(m_tree->nodes[m_index].range);
}

ByteRange SourceNode::startTagRange() const
{
    if (m_tree == nullptr)
        return {};
    const NodeRecord& node = m_tree->nodes[m_index];
    return m_tree->range({node.range.begin, node.kind == NodeKind::Element ? node.content.begin : node.range.begin});
}

ByteRange SourceNode::endTagRange() const
{
    if (m_tree == nullptr)
        return {};
    const NodeRecord& node = m_tree->nodes[m_index];
    return m_tree->range({node.kind == NodeKind::Element ? node.content.end : node.range.end, node.range.end});
}

ByteRange SourceNode::nameRange() const
{
    if (m_tree == nullptr)
        return {};
    const NodeRecord& node = m_tree->nodes[m_index];
    return m_tree->range(node.name.isEmpty() ? TextSpan{node.range.begin, node.range.begin} : node.name);
}

ByteRange SourceNode::contentRange() const
{
    return m_tree == nullptr ? ByteRange() : m_tree->range(m_tree->nodes[m_index].content);
}

bool SourceNode::isEmptyTag() const { return m_tree != nullptr && m_tree->nodes[m_index].isEmptyTag; }

} // namespace zu::authoring
