#pragma once

#include "xml/content_model_groups.hpp"
#include "xml/document.hpp"
#include "xml/open_tag.hpp"

#include <map>
#include <optional>
#include <vector>

// The event parser is deprecated in Qt 5.15, and stays what QDomDocument itself parses with in all of Qt 5: whatever it
// sees here, the parser that builds a QDomDocument will see too.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlDefaultHandler>

/// What a document may demand of the parser; no manifest comes near these. Beyond them the XML library overflows its
/// stack (25,000 levels of elements, 200,000 of groups in a content model), takes gigabytes (one long entity, often
/// referenced; millions of nodes; millions of attributes in an element) or minutes (see k_steps).
namespace zupackage::xml::limits {

inline constexpr int k_documentMiB = 64;
inline constexpr int k_levels = 256; ///< of elements, and of groups in a content model
inline constexpr int k_namespaceDeclarations = 256;
inline constexpr int k_attributes = 1024;   ///< of one element
inline constexpr int k_declarations = 1024; ///< of entities and notations
inline constexpr int k_expandedEntitiesMiB = 8;
inline constexpr int k_nodes = 4 * 1024 * 1024; ///< elements, attributes, texts, comments, instructions, references

/// What the parser does more than once for each node: it compares the attributes of an element with each other, and the
/// namespace prefixes in scope at its end; it searches the text of each entity for each entity's name, and moves it for
/// each that it finds. A step takes some nanoseconds.
inline constexpr qint64 k_steps = qint64(1) << 30;

inline constexpr qint64 k_bytesPerMiB = 1024 * 1024;

} // namespace zupackage::xml::limits

namespace zupackage::xml {

/// The failure of a document that is larger than the limit.
ParseFailure tooLarge();

/// Sees the events of a document before anything is made of them, and ends it where it exceeds a limit.
class Guard : public QXmlDefaultHandler
{
public:
    /// Why the document ended before its end: a limit, or a syntax error in the parser's words.
    const std::optional<ParseFailure>& failure() const { return m_failure; }

    /// Whether that was a limit.
    bool isExceeded() const { return !m_exceeded.empty(); }

    /// Sees each character of the document itself, before the parser does.
    /// @return false when the document must end here.
    bool follow(QChar c)
    {
        m_last = c;
        if (m_inDocumentType)
            return m_groups.depthAt(c) <= limits::k_levels || refuseGroups();
        if (c.unicode() > OpenTag::k_lastThatMatters)
            return true;
        return m_tag.attributesAt(c) <= limits::k_nodes || refuseNodes();
    }

    bool startDTD(const QString& name, const QString& publicId, const QString& systemId) override;
    bool endDTD() override;
    bool internalEntityDecl(const QString& name, const QString& value) override;
    bool externalEntityDecl(const QString& name, const QString& publicId, const QString& systemId) override;
    bool unparsedEntityDecl(const QString& name, const QString& publicId, const QString& systemId,
                            const QString& notation) override;
    bool notationDecl(const QString& name, const QString& publicId, const QString& systemId) override;
    bool startEntity(const QString& name) override;
    bool startElement(const QString& uri, const QString& localName, const QString& name,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& uri, const QString& localName, const QString& name) override;
    bool characters(const QString& text) override;
    bool endCDATA() override;
    bool comment(const QString& text) override;
    bool processingInstruction(const QString& target, const QString& data) override;
    bool skippedEntity(const QString& name) override;

    /// The parser reports here where it stood when it failed or a handler refused.
    bool fatalError(const QXmlParseException& exception) override;

protected:
    /// Whether an element is open.
    bool isInElement() const { return !m_prefixes.empty(); }

private:
    qint64 countNamespaceDeclarations(const QXmlAttributes& attributes);
    bool addDeclaration();
    bool addNodes(qint64 count);
    bool addSteps(qint64 count);
    bool refuse(std::string exceeded);
    bool refuseGroups();
    bool refuseNodes();

    std::string m_exceeded;
    std::optional<ParseFailure> m_failure;
    QChar m_last;
    bool m_inDocumentType = false;
    ContentModelGroups m_groups;
    OpenTag m_tag;
    std::map<QString, qint64> m_entityBytes;
    std::vector<qint64> m_prefixes; ///< the namespace prefixes in scope, for each open element
    qint64 m_namespaceDeclarations = 0;
    qint64 m_declarations = 0;
    qint64 m_expandedBytes = 0;
    qint64 m_nodes = 0;
    qint64 m_steps = 0;
};

} // namespace zupackage::xml

QT_WARNING_POP
