#include "xml/append.hpp"

#include "xml/characters.hpp"
#include "xml/nodes.hpp"

namespace zupackage::xml {

namespace {

QString writable(const std::string& text) { return withoutForbiddenCharacters(fromUtf8(text)); }

QDomElement appendKeyed(QDomDocument& document, QDomNode& container, std::string_view name,
                        std::string_view attributeName, const std::string& key)
{
    QDomElement child = appendElement(document, container, name);
    setNonEmptyAttribute(child, attributeName, key);
    return child;
}

} // namespace

QDomElement appendElement(QDomDocument& document, QDomNode& parent, std::string_view name)
{
    return parent.appendChild(document.createElement(fromUtf8(name))).toElement();
}

void setAttribute(QDomElement& element, std::string_view name, const std::string& value)
{
    element.setAttribute(fromUtf8(name), writable(value));
}

void setNonEmptyAttribute(QDomElement& element, std::string_view name, const std::string& value)
{
    if (!value.empty())
        setAttribute(element, name, value);
}

void setFlag(QDomElement& element, std::string_view name, bool value)
{
    element.setAttribute(fromUtf8(name), value ? QStringLiteral("true") : QStringLiteral("false"));
}

void appendText(QDomDocument& document, QDomElement& element, const std::string& text)
{
    element.appendChild(document.createTextNode(writable(text)));
}

void appendCData(QDomDocument& document, QDomElement& element, const std::string& text)
{
    static const QString endMark = QStringLiteral("]]>");
    const QString whole = writable(text);
    int begin = 0;
    for (int mark = whole.indexOf(endMark); mark >= 0; mark = whole.indexOf(endMark, begin)) {
        const int end = mark + 2; // between "]]" and ">"
        element.appendChild(document.createCDATASection(whole.mid(begin, end - begin)));
        begin = end;
    }
    element.appendChild(document.createCDATASection(whole.mid(begin)));
}

void appendLangMap(QDomDocument& document, QDomNode& parent, const std::map<std::string, std::string>& texts,
                   std::string_view containerName, std::string_view childName, std::string_view attributeName)
{
    if (texts.empty())
        return;
    QDomElement container = appendElement(document, parent, containerName);
    for (const auto& [key, text] : texts) {
        if (text.empty())
            continue;
        QDomElement child = appendKeyed(document, container, childName, attributeName, key);
        appendText(document, child, text);
    }
}

void appendLangListMap(QDomDocument& document, QDomNode& parent,
                       const std::map<std::string, std::list<std::string>>& texts, std::string_view containerName,
                       std::string_view childName, std::string_view attributeName, bool asCData)
{
    if (texts.empty())
        return;
    QDomElement container = appendElement(document, parent, containerName);
    for (const auto& [key, list] : texts)
        for (const std::string& text : list) {
            if (text.empty())
                continue;
            QDomElement child = appendKeyed(document, container, childName, attributeName, key);
            (asCData ? appendCData : appendText)(document, child, text);
        }
}

} // namespace zupackage::xml
