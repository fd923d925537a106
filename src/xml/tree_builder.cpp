#include "xml/tree_builder.hpp"

#include "xml/nodes.hpp"

#include <QtCore/QSet>

#include <algorithm>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace zupackage::xml {

namespace {

bool isWhiteSpace(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

QString localName(const QString& name)
{
    const int colon = name.indexOf(QLatin1Char(':'));
    return colon < 0 ? name : name.mid(colon + 1);
}

bool hasRepeatedLocalName(const QXmlAttributes& attributes)
{
    QSet<QString> names;
    for (int i = 0; i < attributes.length(); ++i)
        names.insert(localName(attributes.qName(i)));
    return names.size() != attributes.length();
}

} // namespace

bool TreeBuilder::startDTD(const QString& /*name*/, const QString& /*publicId*/, const QString& /*systemId*/)
{
    return leave();
}

bool TreeBuilder::startElement(const QString& uri, const QString& localName, const QString& name,
                               const QXmlAttributes& attributes)
{
    if (!Guard::startElement(uri, localName, name, attributes))
        return false;
    if (m_namespaces == Namespaces::Processed && name.contains(QLatin1Char(':')))
        return leave();
    m_tree.startElement(name);
    return m_namespaces == Namespaces::Ignored ? addAttributes(attributes) : addLocalAttributes(attributes);
}

bool TreeBuilder::addAttributes(const QXmlAttributes& attributes)
{
    for (int i = 0; i < attributes.length(); ++i)
        m_tree.addAttribute(attributes.qName(i), attributes.value(i));
    return true;
}

bool TreeBuilder::addLocalAttributes(const QXmlAttributes& attributes)
{
    bool anyPrefix = false;
    for (int i = 0; i < attributes.length(); ++i) {
        const QString name = attributes.qName(i);
        if (isNamespaceDeclaration(name))
            continue;
        anyPrefix |= name.contains(QLatin1Char(':'));
        m_tree.addAttribute(localName(name), attributes.value(i));
    }
    return !anyPrefix || !hasRepeatedLocalName(attributes) || leave();
}

bool TreeBuilder::endElement(const QString& uri, const QString& localName, const QString& name)
{
    m_tree.endElement();
    return Guard::endElement(uri, localName, name);
}

bool TreeBuilder::characters(const QString& text)
{
    if (!m_inCData && isWhiteSpace(text))
        return true;
    if (!Guard::characters(text))
        return false;
    if (m_inCData)
        m_tree.addCData(text);
    else
        m_tree.addText(text);
    return true;
}

bool TreeBuilder::startCDATA()
{
    m_inCData = true;
    return Guard::startCDATA();
}

bool TreeBuilder::endCDATA()
{
    m_inCData = false;
    return Guard::endCDATA();
}

bool TreeBuilder::comment(const QString& text)
{
    if (isInElement())
        m_tree.addComment();
    return Guard::comment(text);
}

bool TreeBuilder::processingInstruction(const QString& target, const QString& data)
{
    if (isInElement())
        m_tree.addInstruction(target);
    return Guard::processingInstruction(target, data);
}

bool TreeBuilder::skippedEntity(const QString& /*name*/) { return leave(); }

bool TreeBuilder::leave()
{
    m_isOutOfTheOrdinary = true;
    return false;
}

} // namespace zupackage::xml

QT_WARNING_POP
