#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/source_attribute.hpp>

#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace zu::authoring {

class SourceAttributes;
class SourceChildren;
struct SourceTree;

/// What a node is.
enum class NodeKind : std::uint8_t
{
    None,                  ///< that of a null node
    Document,              ///< the whole: what stands in it is its children
    XmlDeclaration,        ///< `<?xml ...?>`, with its parts as attributes
    DocumentType,          ///< `<!DOCTYPE ...>`, with its declarations
    Element,               ///< with its attributes and children
    Text,                  ///< characters, references to characters, and the predefined entities such as `&amp;`
    CData,                 ///< `<![CDATA[ ... ]]>`
    Comment,               ///< `<!-- ... -->`
    ProcessingInstruction, ///< `<?target ...?>`
    EntityReference,       ///< in content, to an entity that is not predefined
};

/// One node of a document, with the bytes that it takes there.
///
/// The ranges of a node's children follow each other without a gap and fill its contentRange(); white space between
/// elements is Text, too. Adjacent nodes of one kind are there only where markup parts them (CDATA sections, comments).
///
/// A small handle: to be passed by value, compared by identity, and valid as long as the document or a copy of it; so
/// are the texts that it hands out. What is asked of a null node gives null nodes, empty texts and empty ranges at 0,
/// so that calls can be chained without checks. All may be called by several threads at once.
class ZUPACKAGE_AUTHORING_EXPORT SourceNode
{
public:
    /// A null node.
    SourceNode() = default;

    /// Whether there is one.
    explicit operator bool() const { return m_tree != nullptr; }
    /// What the node is; NodeKind::None for a null node.
    NodeKind kind() const;
    /// Whether kind() is NodeKind::Element; false for a null node.
    bool isElement() const { return kind() == NodeKind::Element; }

    /// The number of the node in document order; the document itself is 0.
    std::size_t index() const { return m_index; }

    /// @name Neighbours; null where there is none
    /// @{

    /// The node that this one stands in; of the root element the document.
    SourceNode parent() const;
    /// The first node in this one, be it white space or a comment.
    SourceNode firstChild() const;
    /// The node behind this one in the same parent, be it white space or a comment.
    SourceNode nextSibling() const;
    /// The nodes in this one, without those in them.
    SourceChildren children() const;
    /// The first element in this one with that local name.
    SourceNode child(std::string_view localName) const;
    /// @}

    /// In the order of the document, repeated ones included. Empty but for elements and the XML declaration.
    SourceAttributes attributes() const;
    /// The first attribute of that local name that is no declaration of a namespace; null when there is none.
    SourceAttribute attribute(std::string_view localName) const;

    /// The name as it stands there, with its prefix: of an element, an entity, the target of an instruction, the root
    /// element that a document type names, `xml` of the XML declaration. Of the others empty.
    std::string_view name() const;
    /// The name without its prefix: what the package library's reader goes by.
    std::string_view localName() const;
    /// What stands before the first colon of the name; empty without one.
    std::string_view prefix() const;

    /// What the node says, in UTF-8, with line ends as line feeds: the characters of a text, references resolved (what
    /// SourceAttribute::value() says of those that cannot be resolved holds here, too); the inside of a CDATA section
    /// or a comment; the data of an instruction. Of an entity the text that was declared for it, without what else that
    /// refers to; empty when there is markup in it. Of all others empty.
    std::string_view value() const;

    /// The values of the texts, CDATA sections and entities within this node at any depth, one after the other; of such
    /// a node its own.
    std::string textContent() const;

    /// @name What it takes of the document
    /// @{

    /// The whole node. Of an element whose end is missing, up to where the tree ends.
    ByteRange range() const;
    /// Of an element from `<` to `>`; empty, at its beginning, of other nodes.
    ByteRange startTagRange() const;
    /// Of an element from `</` to `>`; empty, at its end, of an empty tag, of a missing one and of other nodes.
    ByteRange endTagRange() const;
    /// Of the name that name() gives, in the start tag. Empty, at its beginning, where that is empty.
    ByteRange nameRange() const;
    /// Of an element what stands between its tags, empty at its end for an empty tag; of a CDATA section, a comment or
    /// an instruction what value() gives, of a document what the tree covers (which is all but a byte order mark when
    /// SourceDocument::isComplete()). Of a document type and the XML declaration what follows their name. The whole of
    /// a text and of a reference.
    ByteRange contentRange() const;
    /// Whether it is an element written as `<name/>`.
    bool isEmptyTag() const;
    /// @}

    /// The way to the node in XPath notation: `/package/contents/behaviorContent[2]/names/name[1]/text()`. Names stand
    /// as in the document, with their prefixes; a number, counted from 1, is there only where siblings have the same
    /// name. Texts, CDATA sections and entities count together as `text()`. The document, its type and the XML
    /// declaration are `/`. Takes time in proportion to the number of siblings on the way.
    std::string path() const;

private:
    friend class SourceAttribute;
    friend class SourceDocument;
    friend struct SourceTreeAccess;
    SourceNode(const SourceTree* tree, std::uint32_t index) : m_tree(tree), m_index(index) {}
    friend bool operator==(SourceNode left, SourceNode right)
    {
        return left.m_tree == right.m_tree && left.m_index == right.m_index;
    }
    friend bool operator!=(SourceNode left, SourceNode right) { return !(left == right); }

    const SourceTree* m_tree = nullptr;
    std::uint32_t m_index = 0;
};

/// The children of a node, for a range-based loop.
class SourceChildren
{
public:
    /// A place in the range, for range-based loops; valid as long as the document.
    class Iterator
    {
    public:
        /// What std::iterator_traits tells: one pass at a time, over handles given by value.
        /// @{
        using iterator_category = std::input_iterator_tag;
        using value_type = SourceNode;
        using difference_type = std::ptrdiff_t;
        using pointer = const SourceNode*;
        using reference = SourceNode;
        /// @}

        /// At `node`; a null one is the end of any range.
        explicit Iterator(SourceNode node) : m_node(node) {}
        /// A null node at the end.
        SourceNode operator*() const { return m_node; }
        /// On to the next sibling; from the end to the end.
        Iterator& operator++()
        {
            m_node = m_node.nextSibling();
            return *this;
        }
        /// Equal at the same node; the ends of all ranges are equal.
        /// @{
        friend bool operator==(Iterator left, Iterator right) { return left.m_node == right.m_node; }
        friend bool operator!=(Iterator left, Iterator right) { return left.m_node != right.m_node; }
        /// @}

    private:
        SourceNode m_node;
    };

    /// As SourceNode::children(); empty for a null node.
    explicit SourceChildren(SourceNode parent) : m_parent(parent) {}
    /// For the loop; iterators do not need this object.
    /// @{
    Iterator begin() const { return Iterator(m_parent.firstChild()); }
    Iterator end() const { return Iterator(SourceNode()); }
    /// @}

private:
    SourceNode m_parent;
};

/// The attributes of a node, for a range-based loop and by their number.
class SourceAttributes
{
public:
    /// A place in the range, for range-based loops; valid as long as the document.
    class Iterator
    {
    public:
        /// What std::iterator_traits tells: one pass at a time, over handles given by value.
        /// @{
        using iterator_category = std::input_iterator_tag;
        using value_type = SourceAttribute;
        using difference_type = std::ptrdiff_t;
        using pointer = const SourceAttribute*;
        using reference = SourceAttribute;
        /// @}

        /// At the attribute of that number; `attributes` has to stay as long as the iterator is used.
        Iterator(const SourceAttributes* attributes, std::size_t number) : m_attributes(attributes), m_number(number) {}
        /// Not to be called at the end.
        SourceAttribute operator*() const { return (*m_attributes)[m_number]; }
        /// On to the next attribute; not to be called at the end.
        Iterator& operator++()
        {
            ++m_number;
            return *this;
        }
        /// Equal at the same number, so that only iterators of one SourceAttributes can be compared.
        /// @{
        friend bool operator==(Iterator left, Iterator right) { return left.m_number == right.m_number; }
        friend bool operator!=(Iterator left, Iterator right) { return left.m_number != right.m_number; }
        /// @}

    private:
        const SourceAttributes* m_attributes;
        std::size_t m_number;
    };

    /// How many attributes there are; 0 for a null node.
    std::size_t size() const { return m_size; }
    /// Whether there are none.
    bool isEmpty() const { return m_size == 0; }
    /// `number` counts from 0 and is below size().
    SourceAttribute operator[](std::size_t number) const
    {
        return {m_tree, m_owner, m_first + static_cast<std::uint32_t>(number)};
    }
    /// For the loop; this object has to stay as long as the iterators are used.
    /// @{
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, m_size}; }
    /// @}

private:
    friend class SourceNode;
    SourceAttributes(const SourceTree* tree, std::uint32_t owner, std::uint32_t first, std::uint32_t size)
        : m_tree(tree), m_owner(owner), m_first(first), m_size(size)
    {
    }

    const SourceTree* m_tree;
    std::uint32_t m_owner;
    std::uint32_t m_first;
    std::uint32_t m_size;
};

} // namespace zu::authoring
