#pragma once

#include "xml/guard.hpp"
#include "xml/tree.hpp"

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace zupackage::xml {

/// What an attribute with a prefix is called.
enum class Namespaces : std::uint8_t
{
    Ignored,  ///< by its whole name
    Processed ///< by the name behind the prefix; declarations of namespaces are no attributes
};

/// Builds the tree of a document while the guard sees its events, with the nodes that QDomDocument makes of the same
/// events. Of what is out of the ordinary it keeps out.
class TreeBuilder final : public Guard
{
public:
    TreeBuilder(Namespaces namespaces, qint64 documentBytes)
        : Guard(Model::Tree, documentBytes), m_namespaces(namespaces)
    {
        m_tree.reserve(static_cast<std::size_t>(documentBytes));
    }

    /// Whether the document has something that must be left to QDomDocument: a document type, a reference to an
    /// undeclared entity; with namespaces, a prefixed element or several attributes that differ in their prefixes
    /// alone. The tree is not whole then, and the failure means nothing.
    bool isOutOfTheOrdinary() const { return m_isOutOfTheOrdinary; }

    Tree& tree() { return m_tree; }

    bool startDTD(const QString& name, const QString& publicId, const QString& systemId) override;
    bool startElement(const QString& uri, const QString& localName, const QString& name,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& uri, const QString& localName, const QString& name) override;
    bool characters(const QString& text) override;
    bool startCDATA() override;
    bool endCDATA() override;
    bool comment(const QString& text) override;
    bool processingInstruction(const QString& target, const QString& data) override;
    bool skippedEntity(const QString& name) override;

private:
    bool addAttributes(const QXmlAttributes& attributes);
    bool addLocalAttributes(const QXmlAttributes& attributes);
    bool leave();

    Namespaces m_namespaces;
    Tree m_tree;
    bool m_inCData = false;
    bool m_isOutOfTheOrdinary = false;
};

} // namespace zupackage::xml

QT_WARNING_POP
