#pragma once

#include "entities.hpp"
#include "findings.hpp"
#include "namespaces.hpp"
#include "reference.hpp"
#include "source_tree.hpp"
#include "strict_reader.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// Fills a tree from its text, as far as that can be read.
///
/// A scan...() reads what begins at the current position and moves behind it. It gives false when the document cannot
/// be read on; the position then is where what could not be read begins, and nothing of that is in the tree.
class Scanner
{
public:
    /// @param invalid where the text does not stand for what the bytes are.
    Scanner(zu::authoring::SourceTree& tree, const std::vector<TextSpan>& invalid);

    void run();

private:
    using Kind = zu::authoring::SyntaxErrorKind;

    /// A node whose end has not come yet.
    struct OpenNode
    {
        std::uint32_t node;
        std::uint32_t lastChild = 0;
    };

    bool scanNode();
    bool scanMarkup();
    bool scanText();
    void scanEntityReference(const Reference& reference);
    bool scanComment();
    bool scanCData();
    bool scanInstruction();
    void finish();

    bool scanStartTag();
    bool scanAttributes(std::size_t begin, NodeRecord& element, std::size_t& at);
    bool scanAttribute(std::size_t begin, std::size_t& at);
    bool scanValue(std::size_t begin, std::size_t& at, AttributeRecord& attribute);
    void setValue(AttributeRecord& attribute);
    bool scanEndTag();
    void closeElement(std::size_t contentEnd, std::size_t end);

    void checkAttributes(const NodeRecord& element);
    void checkNamespaces(const NodeRecord& element);
    void checkPrefix(TextSpan name);
    void checkExpandedNames(const NodeRecord& element);
    void addRepeated(TextSpan name);

    bool scanXmlDeclaration();
    std::size_t scanDeclarationParts(std::size_t at, std::size_t end);
    void checkXmlDeclaration(const NodeRecord& declaration);
    void checkDeclaredEncoding(const AttributeRecord& attribute);
    bool scanDocumentType();
    void readDocumentType(TextSpan span);
    void countSteps(const NodeRecord& element);
    void checkExpansion(TextSpan where);
    void checkRest();

    bool isAt(std::string_view text) const { return m_text.compare(m_at, text.size(), text) == 0; }
    /// The byte there; 0 at the end.
    char byte(std::size_t at) const { return m_text.data()[at]; }
    bool isInRoot() const { return m_open.size() > 1; }
    std::uint32_t addNode(NodeRecord record);
    std::string_view value(const AttributeRecord& attribute) const;
    void checkReference(const Reference& reference, std::size_t at);
    std::size_t passUnusual(std::size_t at);
    void checkCharacters(TextSpan span);
    void setLines(NodeRecord& node);
    void add(std::string message, TextSpan where, Kind kind = Kind::NotWellFormed);
    /// Adds an error and gives false.
    bool fail(std::string message, TextSpan where, Kind kind = Kind::NotWellFormed);

    zu::authoring::SourceTree& m_tree;
    const std::string_view m_text;
    std::size_t m_at;
    std::vector<OpenNode> m_open; ///< the document and the open elements
    Findings m_findings;
    Namespaces m_namespaces;
    Entities m_entities;
    bool m_hasRoot = false;
    bool m_hasDocumentType = false;
    std::unique_ptr<StrictReader> m_strictReader; ///< when the document type is one that it can read
    std::size_t m_declaredAttributes = 0;         ///< at most as many, in the document type
    std::size_t m_steps = 0;                      ///< that the strict reader would take beyond reading characters
    bool m_isExpansionTold = false;
};

/// The name in quotes, for a message; a long one shortened.
std::string quoted(std::string_view name);

} // namespace zupackage::authoring
