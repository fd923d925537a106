#include "xml/nodes.hpp"

#include <QtXml/QDomElement>

namespace zupackage::xml {

QString fromUtf8(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

std::string toUtf8(const QString& text) { return text.toUtf8().toStdString(); }

std::string name(const QDomNode& node) { return toUtf8(node.nodeName()); }

std::string attribute(const QDomNode& node, std::string_view name)
{
    return toUtf8(node.toElement().attribute(fromUtf8(name)));
}

std::string text(const QDomNode& node) { return toUtf8(node.toElement().text()); }

bool flag(const QDomNode& node, std::string_view name)
{
    const std::string value = attribute(node, name);
    return value == "true" || value == "1";
}

void readTexts(const QDomNode& container, std::string_view keyName, std::map<std::string, std::string>& texts)
{
    for (const QDomNode& child : children(container))
        texts[attribute(child, keyName)] = text(child);
}

} // namespace zupackage::xml
