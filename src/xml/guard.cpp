#include "xml/guard.hpp"

#include "xml/nodes.hpp"

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace zupackage::xml {

bool Guard::startDTD(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    m_inDocumentType = true;
    // The parser is a character ahead of what it reports.
    m_groups.depthAt(m_last);
    return true;
}

bool Guard::endDTD()
{
    m_inDocumentType = false;
    m_tag.endOther(m_last);
    return true;
}

bool Guard::internalEntityDecl(const QString& name, const QString& value)
{
    const qint64 bytes = value.toUtf8().size();
    const bool isParameter = name.startsWith(QLatin1Char('%'));
    // A parameter entity and a general one never share a name.
    m_entityBytes[isParameter ? name.mid(1) : name] = bytes;
    // The text of a parameter entity can become a declaration, or the beginning of one.
    if (isParameter && value.contains(QLatin1String("<!ELEMENT")))
        m_groups.countEverywhere();
    const bool groupsFit = !isParameter || deepestGroup(value) <= limits::k_levels;
    return addDeclaration() && (groupsFit || refuseGroups()) &&
           addSteps(bytes * (value.count(QLatin1Char('&')) + static_cast<qint64>(m_entityBytes.size())));
}

bool Guard::externalEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    return addDeclaration();
}

bool Guard::unparsedEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/,
                               const QString& /*notation*/)
{
    return addDeclaration();
}

bool Guard::notationDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    return addDeclaration();
}

bool Guard::startEntity(const QString& name)
{
    m_expandedBytes += m_entityBytes[name];
    return m_expandedBytes <= limits::k_expandedEntitiesMiB * limits::k_bytesPerMiB ||
           refuse("entities expand to more than " + std::to_string(limits::k_expandedEntitiesMiB) + " MiB");
}

bool Guard::startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/,
                         const QXmlAttributes& attributes)
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

bool Guard::endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/)
{
    m_prefixes.pop_back();
    return true;
}

bool Guard::characters(const QString& /*text*/) { return addNodes(1); }

bool Guard::endCDATA()
{
    m_tag.endOther(m_last);
    return true;
}

bool Guard::comment(const QString& /*text*/)
{
    m_tag.endOther(m_last);
    return addNodes(1);
}

bool Guard::processingInstruction(const QString& /*target*/, const QString& /*data*/)
{
    m_tag.endOther(m_last);
    return addNodes(1);
}

bool Guard::skippedEntity(const QString& /*name*/) { return addNodes(1); }

bool Guard::fatalError(const QXmlParseException& exception)
{
    if (!m_failure)
        m_failure = ParseFailure{exception.lineNumber(), exception.columnNumber(),
                                 m_exceeded.empty() ? toUtf8(exception.message()) : m_exceeded};
    return false;
}

qint64 Guard::countNamespaceDeclarations(const QXmlAttributes& attributes)
{
    qint64 count = 0;
    for (int i = 0; i < attributes.length(); ++i) {
        const QString name = attributes.qName(i);
        count += name == QLatin1String("xmlns") || name.startsWith(QLatin1String("xmlns:")) ? 1 : 0;
    }
    m_namespaceDeclarations += count;
    return count;
}

bool Guard::addDeclaration()
{
    return ++m_declarations <= limits::k_declarations ||
           refuse("more than " + std::to_string(limits::k_declarations) + " declarations of entities and notations");
}

bool Guard::addNodes(qint64 count)
{
    m_nodes += count;
    return m_nodes <= limits::k_nodes || refuseNodes();
}

bool Guard::addSteps(qint64 count)
{
    m_steps += count;
    return m_steps <= limits::k_steps ||
           refuse("more than " + std::to_string(limits::k_steps) + " steps of comparing names");
}

bool Guard::refuse(std::string exceeded)
{
    m_exceeded = std::move(exceeded);
    return false;
}

bool Guard::refuseGroups()
{
    return refuse("groups of a content model nested deeper than " + std::to_string(limits::k_levels) + " levels");
}

bool Guard::refuseNodes() { return refuse("more than " + std::to_string(limits::k_nodes) + " nodes"); }

ParseFailure tooLarge()
{
    return {1, 1, "the document is larger than " + std::to_string(limits::k_documentMiB) + " MiB"};
}

} // namespace zupackage::xml

QT_WARNING_POP
