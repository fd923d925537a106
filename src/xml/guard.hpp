#pragma once

#include "xml/content_model_groups.hpp"
#include "xml/cost.hpp"
#include "xml/document.hpp"
#include "xml/open_tag.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

// The event parser is deprecated in Qt 5.15, and stays what QDomDocument itself parses with in all of Qt 5: whatever it
// sees here, the parser that builds a QDomDocument will see too.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlDefaultHandler>

/// Beyond these the XML library breaks: its stack overflows (at 25,000 levels of elements, 200,000 of groups in a
/// content model), its sizes do (in a document of gigabytes), an entity of some bytes becomes gigabytes. No manifest
/// comes near them. What only takes time or memory is no matter of limits but of cost, see cost.hpp.
namespace zupackage::xml::limits {

inline constexpr qint64 k_bytesPerMiB = 1024 * 1024;

inline constexpr int k_documentMiB = 64;
inline constexpr int k_levels = 256; ///< of elements, and of groups in a content model
inline constexpr int k_expandedEntitiesMiB = 8;

} // namespace zupackage::xml::limits

namespace zupackage::xml {

/// What is made of a document.
enum class Model : std::uint8_t
{
    Tree,             ///< ours, right from the events
    Dom,              ///< Qt's, of the same text once more, and then ours
    DomWithNamespaces ///< the same with namespaces
};

/// Sees the events of a document before anything is made of them, and ends it where it exceeds a limit or costs too
/// much.
class Guard : public QXmlDefaultHandler
{
public:
    Guard(Model model, qint64 documentBytes);

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
        return m_memory + cost::k_parsedAttribute * m_tag.attributesAt(c) <= m_allowedMemory || refuseMemory();
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
    bool startCDATA() override;
    bool endCDATA() override;
    bool comment(const QString& text) override;
    bool processingInstruction(const QString& target, const QString& data) override;
    bool skippedEntity(const QString& name) override;

    /// The parser reports here where it stood when it failed or a handler refused.
    bool fatalError(const QXmlParseException& exception) override;

protected:
    /// Whether an element is open.
    bool isInElement() const { return m_levels > 0; }

private:
    /// The namespaces that are declared at an element or around it.
    struct NamespaceScope
    {
        cost::Names prefixes;
        qint64 longestNamespace = 0;

        void add(const QString& prefix, const QString& name)
        {
            prefixes.add(prefix.size());
            longestNamespace = std::max<qint64>(longestNamespace, name.size());
        }
    };

    bool startTreeElement(const QXmlAttributes& attributes);
    bool startDomElement(const QString& name, const QXmlAttributes& attributes);
    bool addNamespaces(const QXmlAttributes& attributes);
    static cost::Names namesWithin(const NamespaceScope& scope, const QXmlAttributes& attributes);
    bool addNode(const QString& text);
    bool addSteps(qint64 steps);
    bool addMemory(qint64 bytes);
    bool refuse(std::string exceeded);
    bool refuseGroups();
    bool refuseMemory();

    const Model m_model;
    const qint64 m_allowedSteps;
    const qint64 m_allowedMemory;
    std::string m_exceeded;
    std::optional<ParseFailure> m_failure;
    QChar m_last;
    bool m_inDocumentType = false;
    bool m_isInText = false;
    ContentModelGroups m_groups;
    OpenTag m_tag;
    int m_levels = 0;
    std::map<QString, qint64> m_entitySizes;
    cost::Names m_entities;
    std::vector<NamespaceScope> m_namespaces; ///< of each open element
    qint64 m_expandedBytes = 0;
    qint64 m_steps = 0;
    qint64 m_memory = 0;
};

} // namespace zupackage::xml

QT_WARNING_POP
