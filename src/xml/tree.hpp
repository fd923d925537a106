#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::xml {

class Children;
class Tree;

enum class NodeKind : std::uint8_t
{
    Element,
    Text,
    CData,
    Comment,
    Instruction,
    EntityReference
};

/// A node of a tree, which must outlive it. Cheap to copy.
class Node
{
public:
    Node(const Tree& tree, std::uint32_t index) : m_tree(&tree), m_index(index) {}

    bool isElement() const;

    /// The name of an element, an instruction or a reference; of another node, what its kind is called ("#comment").
    std::string_view name() const;

    /// The last attribute of that name; empty when it is missing or this is no element.
    std::string attribute(std::string_view name) const;

    /// True exactly for the attribute texts "true" and "1".
    bool flag(std::string_view name) const;

    /// The text of all text and CDATA descendants; empty when this is no element.
    std::string text() const;

    /// The child nodes in document order, for a range-based loop. Every kind of node counts, comments and loose texts
    /// included.
    Children children() const;

private:
    const Tree* m_tree;
    std::uint32_t m_index;
};

/// An element and all that it holds, read-only once it is built. It lies in three blocks of memory whatever it holds:
/// the nodes in document order, each with the end of its descendants; the attributes; the characters, as UTF-8.
///
/// Built by calls in document order. More than 4 Gi of nodes, attributes or bytes throw std::length_error.
class Tree
{
public:
    /// Makes room for the characters of a document of that many bytes.
    void reserve(std::size_t bytes) { m_characters.reserve(bytes); }

    /// What comes before the next endElement() is within the element; attributes come first.
    void startElement(const QString& name);
    void addAttribute(const QString& name, const QString& value);
    void endElement();

    void addText(const QString& text) { addCharacters(NodeKind::Text, text); }
    void addCData(const QString& text) { addCharacters(NodeKind::CData, text); }
    /// What comments and instructions say is not kept.
    void addComment() { addNode(NodeKind::Comment, {}); }
    void addInstruction(const QString& target) { addNode(NodeKind::Instruction, add(target)); }
    void addEntityReference(const QString& name) { addNode(NodeKind::EntityReference, add(name)); }

    /// The first element. There must be one.
    Node root() const { return {*this, 0}; }

private:
    friend class Node;
    friend class Children;

    /// A piece of the characters.
    struct Span
    {
        std::uint32_t begin = 0;
        std::uint32_t size = 0;
    };

    struct NodeData
    {
        Span characters; ///< the name, or the text
        std::uint32_t end;
        std::uint32_t firstAttribute; ///< they end where those of the next node begin
        NodeKind kind;
    };

    struct Attribute
    {
        Span name;
        Span value;
    };

    std::string_view view(Span span) const { return std::string_view(m_characters).substr(span.begin, span.size); }
    std::uint32_t attributesEnd(std::uint32_t index) const;

    Span add(const QString& text);
    void append(const QByteArray& utf8);
    Span since(std::size_t begin) const;
    void addCharacters(NodeKind kind, const QString& text);
    void addNode(NodeKind kind, Span characters);

    std::vector<NodeData> m_nodes;
    std::vector<Attribute> m_attributes;
    std::string m_characters;
    std::vector<std::uint32_t> m_open; ///< the elements that are not ended yet
    bool m_hasLoneSurrogates = false;
};

/// The children of a node, for a range-based loop.
class Children
{
public:
    class Iterator
    {
    public:
        Iterator(const Tree& tree, std::uint32_t index) : m_tree(&tree), m_index(index) {}
        Node operator*() const { return {*m_tree, m_index}; }
        Iterator& operator++()
        {
            m_index = m_tree->m_nodes[m_index].end;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_index != other.m_index; }

    private:
        const Tree* m_tree;
        std::uint32_t m_index;
    };

    Children(const Tree& tree, std::uint32_t parent) : m_tree(tree), m_parent(parent) {}
    Iterator begin() const { return {m_tree, m_parent + 1}; }
    Iterator end() const { return {m_tree, m_tree.m_nodes[m_parent].end}; }

private:
    const Tree& m_tree;
    std::uint32_t m_parent;
};

inline Children Node::children() const { return {*m_tree, m_index}; }

} // namespace zupackage::xml
