#include "xml/document_guard.hpp"

#include "xml/nodes.hpp"

// The event parser is deprecated in Qt 5.15, and stays what QDomDocument itself parses with in all of Qt 5: whatever it
// sees here, the parser that builds the document will see too.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlDefaultHandler>
#include <QtXml/QXmlInputSource>
#include <QtXml/QXmlSimpleReader>

#include <map>

namespace zu::xml {

namespace {

/// Follows how deep the groups of a content model are nested. It starts anew at every declaration, and takes
/// parentheses in literals for groups: a literal can become a declaration.
class GroupDepth
{
public:
    /// @return false once the depth exceeds the limit.
    bool follow(QChar c)
    {
        if (c == QLatin1Char('<'))
            m_depth = 0;
        else if (c == QLatin1Char('('))
            ++m_depth;
        else if (c == QLatin1Char(')') && m_depth > 0)
            --m_depth;
        return m_depth <= limits::k_levels;
    }

private:
    int m_depth = 0;
};

class Guard : public QXmlDefaultHandler
{
public:
    std::optional<ParseFailure> failure() const { return m_failure; }

    /// Sees each character of the document, because the parser reports nothing from within a content model.
    /// @return false when the document must end here.
    bool follow(QChar c) { return !m_inDocumentType || m_groups.follow(c) || refuseGroups(); }

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
        const QByteArray bytes = value.toUtf8();
        m_declaredBytes += bytes.size();
        // A parameter entity shares its name with no general one.
        const QString referredTo = name.startsWith(QLatin1Char('%')) ? name.mid(1) : name;
        m_entityBytes[referredTo] = bytes.size();
        if (static_cast<int>(m_entityBytes.size()) > limits::k_entityDeclarations)
            return refuse("more than " + std::to_string(limits::k_entityDeclarations) + " entity declarations");
        if (m_declaredBytes > limits::k_entitiesMiB * limits::k_bytesPerMiB)
            return refuse("more than " + std::to_string(limits::k_entitiesMiB) + " MiB of entity declarations");
        if (bytes.count('&') > limits::k_references)
            return refuse("more than " + std::to_string(limits::k_references) + " references in an entity");
        GroupDepth groups;
        for (const QChar c : value)
            if (!groups.follow(c))
                return refuseGroups();
        return true;
    }

    bool startEntity(const QString& name) override
    {
        m_expandedBytes += m_entityBytes[name];
        return m_expandedBytes <= limits::k_entitiesMiB * limits::k_bytesPerMiB ||
               refuse("entities expand to more than " + std::to_string(limits::k_entitiesMiB) + " MiB");
    }

    bool startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/,
                      const QXmlAttributes& attributes) override
    {
        if (++m_level > limits::k_levels)
            return refuse("elements nested deeper than " + std::to_string(limits::k_levels) + " levels");
        if (attributes.length() > limits::k_attributes)
            return refuse("more than " + std::to_string(limits::k_attributes) + " attributes in an element");
        for (int i = 0; i < attributes.length(); ++i)
            if (isNamespaceDeclaration(attributes.qName(i)))
                ++m_namespaceDeclarations;
        return m_namespaceDeclarations <= limits::k_namespaceDeclarations ||
               refuse("more than " + std::to_string(limits::k_namespaceDeclarations) + " namespace declarations");
    }

    bool endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/) override
    {
        --m_level;
        return true;
    }

    /// The parser reports here where it stood when a handler refused.
    bool fatalError(const QXmlParseException& exception) override
    {
        if (!m_exceeded.empty() && !m_failure)
            m_failure = ParseFailure{exception.lineNumber(), exception.columnNumber(), m_exceeded};
        return false;
    }

private:
    static bool isNamespaceDeclaration(const QString& name)
    {
        return name == QLatin1String("xmlns") || name.startsWith(QLatin1String("xmlns:"));
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

    std::string m_exceeded;
    std::optional<ParseFailure> m_failure;
    bool m_inDocumentType = false;
    GroupDepth m_groups;
    std::map<QString, qint64> m_entityBytes;
    qint64 m_declaredBytes = 0;
    qint64 m_expandedBytes = 0;
    int m_level = 0;
    int m_namespaceDeclarations = 0;
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

} // namespace zu::xml

QT_WARNING_POP
