#include "xml/guard.hpp"

#include "xml/nodes.hpp"

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace zupackage::xml {

Guard::Guard(Model model, qint64 documentBytes)
    : m_model(model), m_allowedSteps(cost::allowedSteps(documentBytes)),
      m_allowedMemory(cost::allowedMemory(documentBytes, model != Model::Tree))
{
}

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
    const bool isParameter = name.startsWith(QLatin1Char('%'));
    // A parameter entity and a general one never share a name.
    m_entitySizes[isParameter ? name.mid(1) : name] = value.toUtf8().size();
    m_entities.add(name.size());
    // The text of a parameter entity can become a declaration, or the beginning of one.
    if (isParameter && value.contains(QLatin1String("<!ELEMENT")))
        m_groups.countEverywhere();
    if (isParameter && deepestGroup(value) > limits::k_levels)
        return refuseGroups();
    return addMemory(cost::k_domDeclaration) &&
           addSteps(cost::declaringEntity(m_entities, value.size(), value.count(QLatin1Char('&'))));
}

bool Guard::externalEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    return addMemory(cost::k_domDeclaration);
}

bool Guard::unparsedEntityDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/,
                               const QString& /*notation*/)
{
    return addMemory(cost::k_domDeclaration);
}

bool Guard::notationDecl(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    return addMemory(cost::k_domDeclaration);
}

bool Guard::startEntity(const QString& name)
{
    m_expandedBytes += m_entitySizes[name];
    if (m_expandedBytes > limits::k_expandedEntitiesMiB * limits::k_bytesPerMiB)
        return refuse("entities expand to more than " + std::to_string(limits::k_expandedEntitiesMiB) + " MiB");
    return addSteps(cost::expandingEntity(name.size()));
}

bool Guard::startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& name,
                         const QXmlAttributes& attributes)
{
    m_isInText = false;
    if (++m_levels > limits::k_levels)
        return refuse("elements nested deeper than " + std::to_string(limits::k_levels) + " levels");
    return m_model == Model::Tree ? startTreeElement(attributes) : startDomElement(name, attributes);
}

bool Guard::startTreeElement(const QXmlAttributes& attributes)
{
    return addMemory(cost::k_treeNode + cost::k_treeAttribute * attributes.length());
}

bool Guard::startDomElement(const QString& name, const QXmlAttributes& attributes)
{
    cost::Names names;
    qint64 values = 0;
    for (int i = 0; i < attributes.length(); ++i) {
        names.add(attributes.qName(i).size());
        values += attributes.value(i).size();
    }
    return addMemory(cost::domElement(name.size()) + cost::domAttributes(names) + cost::domText(values)) &&
           addSteps(cost::numberingAttributes(names.count)) &&
           (m_model != Model::DomWithNamespaces || addNamespaces(attributes));
}

bool Guard::addNamespaces(const QXmlAttributes& attributes)
{
    const NamespaceScope outer = m_namespaces.empty() ? NamespaceScope{} : m_namespaces.back();
    NamespaceScope scope = outer;
    for (int i = 0; i < attributes.length(); ++i)
        if (isNamespaceDeclaration(attributes.qName(i)))
            scope.add(attributes.qName(i), attributes.value(i));
    m_namespaces.push_back(scope);
    qint64 steps = cost::comparingAttributes(namesWithin(scope, attributes));
    for (int i = 0; i < attributes.length(); ++i)
        steps += cost::findingNamespace(scope.prefixes, attributes.qName(i).size());
    if (scope.prefixes.count > outer.prefixes.count)
        steps += cost::copyingNamespaces(scope.prefixes);
    // Of a tag in an entity the last character is not known.
    const bool isEmptyTag = m_last != QLatin1Char('>');
    return addSteps(steps + cost::endingNamespaces(scope.prefixes, isEmptyTag));
}

cost::Names Guard::namesWithin(const NamespaceScope& scope, const QXmlAttributes& attributes)
{
    cost::Names names;
    for (int i = 0; i < attributes.length(); ++i) {
        const QString name = attributes.qName(i);
        names.add(name.size() + (name.contains(QLatin1Char(':')) ? scope.longestNamespace : 0));
    }
    return names;
}

bool Guard::endElement(const QString& /*uri*/, const QString& /*localName*/, const QString& /*name*/)
{
    m_isInText = false;
    --m_levels;
    if (!m_namespaces.empty())
        m_namespaces.pop_back();
    return true;
}

bool Guard::characters(const QString& text)
{
    // With entities reported, a text comes in pieces.
    if (m_isInText)
        return m_model == Model::Tree || addMemory(cost::domText(text.size()));
    m_isInText = true;
    return addNode(text);
}

bool Guard::startCDATA()
{
    m_isInText = false;
    return true;
}

bool Guard::endCDATA()
{
    m_isInText = false;
    m_tag.endOther(m_last);
    return true;
}

bool Guard::comment(const QString& text)
{
    m_isInText = false;
    m_tag.endOther(m_last);
    return addNode(text);
}

bool Guard::processingInstruction(const QString& /*target*/, const QString& data)
{
    m_isInText = false;
    m_tag.endOther(m_last);
    return addNode(data);
}

bool Guard::skippedEntity(const QString& name)
{
    m_isInText = false;
    return addNode(name);
}

bool Guard::fatalError(const QXmlParseException& exception)
{
    if (!m_failure)
        m_failure = ParseFailure{exception.lineNumber(), exception.columnNumber(),
                                 m_exceeded.empty() ? toUtf8(exception.message()) : m_exceeded};
    return false;
}

bool Guard::addNode(const QString& text)
{
    return addMemory(m_model == Model::Tree ? cost::k_treeNode : cost::k_domNode + cost::domText(text.size()));
}

bool Guard::addSteps(qint64 steps)
{
    m_steps += steps;
    return m_steps <= m_allowedSteps ||
           refuse("more than " + std::to_string(m_allowedSteps) + " steps of comparing names and expanding entities");
}

bool Guard::addMemory(qint64 bytes)
{
    m_memory += bytes;
    return m_memory <= m_allowedMemory || refuseMemory();
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

bool Guard::refuseMemory()
{
    return refuse("nodes and attributes of more than " + std::to_string(m_allowedMemory / limits::k_bytesPerMiB) +
                  " MiB");
}

} // namespace zupackage::xml

QT_WARNING_POP
