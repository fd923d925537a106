#include "xml/document_guard.hpp"

#include "xml/nodes.hpp"

// The event parser is deprecated in Qt 5.15, and stays what QDomDocument itself parses with in all of Qt 5: whatever it
// sees here, the parser that builds the document will see too.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlDefaultHandler>
#include <QtXml/QXmlInputSource>
#include <QtXml/QXmlSimpleReader>

#include <algorithm>
#include <map>
#include <vector>

namespace zupackage::xml {

namespace {

/// Follows how deep the groups of a content model are nested, because the parser reports nothing from within one.
class GroupDepth
{
public:
    /// Takes every parenthesis for that of a group: a declaration can now begin where no text shows it.
    void countEverywhere() { m_everywhere = true; }

    /// @return false once the depth exceeds the limit.
    bool follow(QChar c)
    {
        static constexpr char k_declaration[] = "<!ELEMENT";
        m_matched = c == QLatin1Char(k_declaration[m_matched]) ? m_matched + 1 : c == QLatin1Char('<') ? 1 : 0;
        if (k_declaration[m_matched] == '\0') {
            m_inDeclaration = true;
            m_matched = 0;
            m_depth = 0;
        } else if (c == QLatin1Char('>')) {
            m_inDeclaration = false;
            m_depth = 0;
        } else if (m_inDeclaration || m_everywhere) {
            m_depth += c == QLatin1Char('(') ? 1 : c == QLatin1Char(')') ? -1 : 0;
        }
        return m_depth <= limits::k_levels;
    }

private:
    bool m_everywhere = false;
    bool m_inDeclaration = false;
    int m_matched = 0;
    int m_depth = 0;
};

class Guard : public QXmlDefaultHandler
{
public:
    std::optional<ParseFailure> failure() const { return m_failure; }

    /// Sees each character of the document itself, before the parser does.
    /// @return false when the document must end here.
    bool follow(QChar c)
    {
        // Followed from the start, because the parser is a character ahead of what it reports.
        const bool groupsFit = m_groups.follow(c);
        if (m_inDocumentType)
            return groupsFit || refuseGroups();
        // An element's attributes are reported only when the parser has them all.
        m_equalsSigns += c == QLatin1Char('=') ? 1 : 0;
        return m_equalsSigns <= limits::k_nodes || refuseNodes();
    }

    bool startDTD(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/) override
    {
        m_inDocumentType = true;
        return true;
    }

    bool endDTD() override
    {
        m_inDocumentType = false;
        return true;
    }

    bool internalEntityDecl(const QString& name, const QString& value) override
    {
        const qint64 bytes = value.toUtf8().size();
        const bool isParameter = name.startsWith(QLatin1Char('%'));
        // A parameter entity and a general one never share a name.
        m_entityBytes[isParameter ? name.mid(1) : name] = bytes;
        const bool groupsFit = !isParameter || followParameter(value);
        return addDeclaration() && (groupsFit || refuseGroups()) &&
               addSteps(bytes * (value.count(QLatin1Char('&')) + static_cast<qint64>(m_entityBytes.size())));
    }

    bool externalEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/) override
    {
        return addDeclaration();
    }

    bool unparsedEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/,
                            const QString& /*notation*/) override
    {
        return addDeclaration();
    }

    bool notationDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/) override
    {
        return addDeclaration();
    }

    bool startEntity(const QString& name) override
    {
        m_expandedBytes += m_entityBytes[name];
        return m_expandedBytes <= limits::k_expandedEntitiesMiB * limits::k_bytesPerMiB ||
               refuse("entities expand to more than " + std::to_string(limits::k_expandedEntitiesMiB) + " MiB");
    }

    bool startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/,
                      const QXmlAttributes& attributes) override
    {
        const qint64 inScope = (m_prefixes.empty() ? 0 : m_prefixes.back()) + countNamespaceDeclarations(attributes);
        m_prefixes.push_back(inScope);
        if (m_prefixes.size() > limits::k_levels)
            return refuse("elements nested deeper than " + std::to_string(limits::k_levels) + " levels");
        if (m_namespaceDeclarations > limits::k_namespaceDeclarations)
            return refuse("more than " + std::to_string(limits::k_namespaceDeclarations) + " namespace declarations");
        const qint64 count = attributes.length();
        if (count > limits::k_attributes)
            return refuse("more than " + std::to_string(limits::k_attributes) + " attributes in an element");
        return addNodes(1 + count) && addSteps(count * count + inScope * inScope);
    }

    bool endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/) override
    {
        m_prefixes.pop_back();
        return true;
    }

    bool characters(const QString& /*text*/) override { return addNodes(1); }
    bool comment(const QString& /*text*/) override { return addNodes(1); }
    bool processingInstruction(const QString& /*target*/, const QString& /*data*/) override { return addNodes(1); }
    bool skippedEntity(const QString& /*name*/) override { return addNodes(1); }

    /// The parser reports here where it stood when a handler refused.
    bool fatalError(const QXmlParseException& exception) override
    {
        if (!m_exceeded.empty() && !m_failure)
            m_failure = ParseFailure{exception.lineNumber(), exception.columnNumber(), m_exceeded};
        return false;
    }

private:
    /// The text of a parameter entity can become a declaration, or the beginning of one.
    bool followParameter(const QString& value)
    {
        if (value.contains(QLatin1String("<!ELEMENT")))
            m_groups.countEverywhere();
        GroupDepth groups;
        groups.countEverywhere();
        return std::all_of(value.begin(), value.end(), [&groups](QChar c) { return groups.follow(c); });
    }

    qint64 countNamespaceDeclarations(const QXmlAttributes& attributes)
    {
        qint64 count = 0;
        for (int i = 0; i < attributes.length(); ++i) {
            const QString name = attributes.qName(i);
            count += name == QLatin1String("xmlns") || name.startsWith(QLatin1String("xmlns:")) ? 1 : 0;
        }
        m_namespaceDeclarations += count;
        return count;
    }

    bool addDeclaration()
    {
        return ++m_declarations <= limits::k_declarations ||
               refuse("more than " + std::to_string(limits::k_declarations) +
                      " declarations of entities and notations");
    }

    bool addNodes(qint64 count)
    {
        m_equalsSigns = 0;
        m_nodes += count;
        return m_nodes <= limits::k_nodes || refuseNodes();
    }

    bool addSteps(qint64 count)
    {
        m_steps += count;
        return m_steps <= limits::k_steps ||
               refuse("more than " + std::to_string(limits::k_steps) + " steps of comparing names");
    }

    bool refuse(std::string exceeded)
    {
        m_exceeded = std::move(exceeded);
        return false;
    }

    bool refuseGroups()
    {
        return refuse("groups of a content model nested deeper than " + std::to_string(limits::k_levels) + " levels");
    }

    bool refuseNodes() { return refuse("more than " + std::to_string(limits::k_nodes) + " nodes"); }

    std::string m_exceeded;
    std::optional<ParseFailure> m_failure;
    bool m_inDocumentType = false;
    GroupDepth m_groups;
    std::map<QString, qint64> m_entityBytes;
    std::vector<qint64> m_prefixes; ///< the namespace prefixes in scope, for each open element
    qint64 m_namespaceDeclarations = 0;
    qint64 m_declarations = 0;
    qint64 m_expandedBytes = 0;
    qint64 m_nodes = 0;
    qint64 m_equalsSigns = 0; ///< since the last node
    qint64 m_steps = 0;
};

/// The document as the parser reads it, shown to the guard on the way and cut off where the guard says so.
class GuardedSource : public QXmlInputSource
{
public:
    explicit GuardedSource(Guard& guard) : m_guard(guard) {}
    GuardedSource(Guard& guard, QIODevice& device) : QXmlInputSource(&device), m_guard(guard) {}

    QChar next() override
    {
        const QChar c = QXmlInputSource::next();
        return m_guard.follow(c) ? c : QChar(QXmlInputSource::EndOfDocument);
    }

private:
    Guard& m_guard;
};

std::optional<ParseFailure> run(Guard& guard, const GuardedSource& source)
{
    QXmlSimpleReader reader;
    // Without namespaces, so that declarations of them are seen as attributes and cost nothing.
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    // With entities, so that an expansion is refused before it is made.
    reader.setFeature(QStringLiteral("http://qt-project.org/xml/features/report-start-end-entity"), true);
    reader.setContentHandler(&guard);
    reader.setLexicalHandler(&guard);
    reader.setDeclHandler(&guard);
    reader.setDTDHandler(&guard);
    reader.setErrorHandler(&guard);
    reader.parse(source);
    return guard.failure();
}

} // namespace

ParseFailure tooLarge()
{
    return {1, 1, "the document is larger than " + std::to_string(limits::k_documentMiB) + " MiB"};
}

std::optional<ParseFailure> exceededLimit(const QString& document)
{
    Guard guard;
    GuardedSource source(guard);
    source.setData(document);
    return run(guard, source);
}

std::optional<ParseFailure> exceededLimit(QIODevice& document)
{
    Guard guard;
    const GuardedSource source(guard, document);
    return run(guard, source);
}

} // namespace zupackage::xml

QT_WARNING_POP
