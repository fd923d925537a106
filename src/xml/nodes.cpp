#include "xml/nodes.hpp"

#include <QtXml/QDomElement>

namespace zu::xml {

QString fromUtf8(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

std::string toUtf8(const QString& text) { return text.toUtf8().toStdString(); }

std::string attribute(const QDomNode& node, const QString& name) { return toUtf8(node.toElement().attribute(name)); }

std::string text(const QDomNode& node) { return toUtf8(node.toElement().text()); }

bool flag(const QDomNode& node, const QString& name)
{
    const std::string value = attribute(node, name);
    return value == "true" || value == "1";
}

void readTexts(const QDomNode& container, const QString& keyName, std::map<std::string, std::string>& texts)
{
    for (const QDomNode& child : children(container))
        texts[attribute(child, keyName)] = text(child);
}

} // namespace zu::xml
