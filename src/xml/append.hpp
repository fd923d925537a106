#pragma once

#include <QtXml/QDomDocument>

#include <list>
#include <map>
#include <string>
#include <string_view>

/// What the element writers share. Every text goes in with what XML 1.0 cannot carry replaced by U+FFFD, so that any
/// parser can read what is written.
namespace zupackage::xml {

/// Appends a new element to `parent`.
QDomElement appendElement(QDomDocument& document, QDomNode& parent, std::string_view name);

/// Sets an attribute, also to an empty value.
void setAttribute(QDomElement& element, std::string_view name, const std::string& value);

/// Sets an attribute unless the value is empty.
void setNonEmptyAttribute(QDomElement& element, std::string_view name, const std::string& value);

/// Sets an attribute to "true" or "false".
void setFlag(QDomElement& element, std::string_view name, bool value);

/// Appends one text node, also for an empty text.
void appendText(QDomDocument& document, QDomElement& element, const std::string& text);

/// Appends the text as a CDATA section; a text that holds the end mark "]]>" as adjacent sections that read back as the
/// same text.
void appendCData(QDomDocument& document, QDomElement& element, const std::string& text);

/// Appends a container with one child for each entry whose text is not empty; nothing at all for an empty map. The key
/// stands in the child's attribute, which an empty key does not get.
void appendLangMap(QDomDocument& document, QDomNode& parent, const std::map<std::string, std::string>& texts,
                   std::string_view containerName, std::string_view childName, std::string_view attributeName);

/// The same for lists of texts, with one child for each text that is not empty; as CDATA when `asCData` is set.
void appendLangListMap(QDomDocument& document, QDomNode& parent,
                       const std::map<std::string, std::list<std::string>>& texts, std::string_view containerName,
                       std::string_view childName, std::string_view attributeName, bool asCData);

} // namespace zupackage::xml
