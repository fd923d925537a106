#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/source_node.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// What a document is refused for.
enum class SyntaxErrorKind : std::uint8_t
{
    Encoding,      ///< bytes that mean nothing in the encoding, or an encoding that is unknown or not the one declared
    NotWellFormed, ///< against XML 1.0
    Namespace,     ///< well-formed, but against Namespaces in XML 1.0
    Limit,         ///< larger, deeper or with more expansions than is read
};

/// Why a document is no well-formed XML, and where.
struct SyntaxError
{
    SyntaxErrorKind kind = SyntaxErrorKind::NotWellFormed; ///< which of the standards or limits it is against
    std::string message;                                   ///< in UTF-8, without a place and a full stop
    ByteRange range;                                       ///< what is wrong; empty where something is missing
    Place place;                                           ///< that of the range's beginning
};

/// The characters that end a line.
enum class LineEnd : std::uint8_t
{
    LineFeed,               ///< U+000A
    CarriageReturn,         ///< U+000D
    CarriageReturnLineFeed, ///< U+000D and U+000A
};

/// The characters themselves, one or two.
ZUPACKAGE_AUTHORING_EXPORT std::string_view charactersOf(LineEnd lineEnd);

/// An XML document as it stands in its bytes: every node and attribute with its range, and everything that a strict
/// parser says against it. What the package library makes of a document is not its business: that library's reader is
/// lenient, so that what it reads may be refused here.
///
/// Any bytes make a document. Errors are data: after most of them the tree goes on (see errors()), after the others it
/// ends where they were found, with the nodes until there.
///
/// Strict means XML 1.0 (fifth edition) with Namespaces in XML 1.0, and beyond them: names are of letters that the
/// package library's parser takes for such, too, and the version is 1.0. The declarations of a document type are
/// checked as QXmlStreamReader does; neither they nor their entities are nodes, defaults that they declare for
/// attributes are not attributes, and nothing outside the document is read. When a document type is there and nothing
/// else is wrong, QXmlStreamReader has the last word on the document, entities and what they expand to included.
///
/// Limits: 64 MiB of document, 256 levels of elements, 8 MiB of expanded entities. They are those of the package
/// library's reader. Parsing takes time and memory in proportion to the size for any input, and little stack.
///
/// A document owns its bytes and never changes; a copy shares them. It may be used by several threads at once.
class ZUPACKAGE_AUTHORING_EXPORT SourceDocument
{
public:
    /// That of no bytes at all: not well-formed, without nodes.
    SourceDocument();

    /// Takes any bytes and throws for none (but std::bad_alloc).
    static SourceDocument parse(std::string bytes);

    /// The bytes, to the last one as they were given.
    const std::string& text() const;

    /// @name Strictness
    /// @{

    /// What is wrong, in the order of places: the first 100 errors found after which the parser goes on, and the one
    /// after which it cannot, if any.
    const std::vector<SyntaxError>& errors() const;
    /// Whether there are no errors: strict parsers take the document as it is.
    bool isWellFormed() const { return errors().empty(); }
    /// Whether the tree covers the document to its end, so that no error hides what comes after it.
    bool isComplete() const;
    /// @}

    /// @name Nodes
    /// @{

    /// The whole.
    SourceNode document() const;
    /// The first element of the document; null when there is none.
    SourceNode root() const;
    /// How many nodes there are, the document included.
    std::size_t nodeCount() const;
    /// A node by its number in document order, below nodeCount(): to visit all of them without recursion.
    SourceNode node(std::size_t index) const;
    /// The node that has this SourceNode::path(), where a missing number means the first; null when there is none.
    SourceNode find(std::string_view path) const;
    /// The attribute that has this SourceAttribute::path(); null when there is none.
    SourceAttribute findAttribute(std::string_view path) const;
    /// @}

    /// @name Places
    /// @{

    /// Of a byte, or of the end. An offset within a character is that of the character, one beyond the end that of the
    /// end.
    Place place(std::size_t offset) const;
    /// The line that the byte stands in, in UTF-8, without its end.
    std::string_view line(std::size_t offset) const;
    /// What stands in the range, in UTF-8, as it is there: references and line ends included.
    std::string_view source(ByteRange range) const;
    /// @}

    /// @name Form
    /// @{

    /// The name of the encoding that the bytes were read in: "UTF-8", "UTF-16LE", "ISO-8859-1" ...
    const std::string& encoding() const;
    /// Whether the bytes begin with a byte order mark, which is no character of the document.
    bool hasByteOrderMark() const;
    /// The most frequent one; a line feed in a document of one line.
    LineEnd lineEnd() const;
    /// @}

private:
    friend struct SourceTreeAccess;
    explicit SourceDocument(std::shared_ptr<const SourceTree> tree);

    std::shared_ptr<const SourceTree> m_tree;
};

} // namespace zu::authoring
