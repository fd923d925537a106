#include "xml/tree.hpp"

#include "xml/surrogates.hpp"

#include <limits>
#include <stdexcept>

namespace zupackage::xml {

namespace {

std::uint32_t checked(std::size_t size)
{
    if (size > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("zupackage::xml::Tree");
    return static_cast<std::uint32_t>(size);
}

/// Appends the text when it is ASCII.
/// @return false, and nothing is appended, when it is not.
bool appendAscii(std::string& characters, const QString& text)
{
    const std::size_t before = characters.size();
    const auto size = static_cast<std::size_t>(text.size());
    const ushort* from = text.utf16();
    characters.resize(before + size);
    char* to = &characters[before];
    unsigned all = 0;
    for (std::size_t i = 0; i < size; ++i) {
        all |= from[i];
        to[i] = static_cast<char>(from[i]);
    }
    if (all < 0x80)
        return true;
    characters.resize(before);
    return false;
}

} // namespace

bool Node::isElement() const { return m_tree->m_nodes[m_index].kind == NodeKind::Element; }

std::string_view Node::name() const
{
    const Tree::NodeData& node = m_tree->m_nodes[m_index];
    switch (node.kind) {
    case NodeKind::Element:
    case NodeKind::Instruction:
    case NodeKind::EntityReference:
        return m_tree->view(node.characters);
    case NodeKind::Text:
        return "#text";
    case NodeKind::CData:
        return "#cdata-section";
    case NodeKind::Comment:
        return "#comment";
    }
    return {};
}

std::string Node::attribute(std::string_view name) const
{
    const std::uint32_t first = m_tree->m_nodes[m_index].firstAttribute;
    for (std::uint32_t i = m_tree->attributesEnd(m_index); i != first; --i)
        if (const Tree::Attribute& attribute = m_tree->m_attributes[i - 1]; m_tree->view(attribute.name) == name)
            return std::string(m_tree->view(attribute.value));
    return {};
}

bool Node::flag(std::string_view name) const
{
    const std::string value = attribute(name);
    return value == "true" || value == "1";
}

std::string Node::text() const
{
    std::string text;
    for (std::uint32_t i = m_index + 1; i < m_tree->m_nodes[m_index].end; ++i)
        if (const auto& [characters, end, attribute, kind] = m_tree->m_nodes[i];
            kind == NodeKind::Text || kind == NodeKind::CData)
            text += m_tree->view(characters);
    if (m_tree->m_hasLoneSurrogates)
        joinSurrogates(text);
    return text;
}

void Tree::startElement(const QString& name)
{
    addNode(NodeKind::Element, add(name));
    m_open.push_back(checked(m_nodes.size() - 1));
}

void Tree::addAttribute(const QString& name, const QString& value)
{
    const Span nameSpan = add(name);
    m_attributes.push_back({nameSpan, add(value)});
}

void Tree::endElement()
{
    m_nodes[m_open.back()].end = checked(m_nodes.size());
    m_open.pop_back();
}

std::uint32_t Tree::attributesEnd(std::uint32_t index) const
{
    return index + 1 < m_nodes.size() ? m_nodes[index + 1].firstAttribute : checked(m_attributes.size());
}

Tree::Span Tree::add(const QString& text)
{
    const std::size_t before = m_characters.size();
    if (!appendAscii(m_characters, text))
        append(text.toUtf8());
    return since(before);
}

void Tree::addCharacters(NodeKind kind, const QString& text)
{
    const std::size_t before = m_characters.size();
    if (!appendAscii(m_characters, text)) {
        // Its other half may stand in the next text.
        const bool kept = hasLoneSurrogate(text);
        append(kept ? utf8WithSurrogates(text) : text.toUtf8());
        m_hasLoneSurrogates |= kept;
    }
    addNode(kind, since(before));
}

void Tree::append(const QByteArray& utf8)
{
    m_characters.append(utf8.constData(), static_cast<std::size_t>(utf8.size()));
}

Tree::Span Tree::since(std::size_t begin) const { return {checked(begin), checked(m_characters.size() - begin)}; }

void Tree::addNode(NodeKind kind, Span characters)
{
    const std::uint32_t index = checked(m_nodes.size());
    m_nodes.push_back({characters, index + 1, checked(m_attributes.size()), kind});
}

} // namespace zupackage::xml
