#include "xml/nodes.hpp"

namespace zupackage::xml {

QString fromUtf8(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

std::string toUtf8(const QString& text) { return text.toUtf8().toStdString(); }

bool isNamespaceDeclaration(const QString& attribute)
{
    return attribute.startsWith(QLatin1String("xmlns")) &&
           (attribute.size() == 5 || attribute.at(5) == QLatin1Char(':'));
}

void readTexts(Node container, std::string_view keyName, std::map<std::string, std::string>& texts)
{
    for (const Node child : container.children())
        texts[child.attribute(keyName)] = child.text();
}

} // namespace zupackage::xml
