#pragma once

#include "xml/tree.hpp"

#include <QtCore/QString>

#include <map>
#include <string>
#include <string_view>

namespace zupackage::xml {

/// Texts cross between the XML library and ours as UTF-8, with their length: a zero byte does not end them.
QString fromUtf8(std::string_view text);
std::string toUtf8(const QString& text);

/// Whether the attribute of that qualified name declares a namespace.
bool isNamespaceDeclaration(const QString& attribute);

/// Reads a container of one text per key ("names"): every child node sets `texts[its attribute keyName]` to its text. A
/// repeated key keeps the later text.
void readTexts(Node container, std::string_view keyName, std::map<std::string, std::string>& texts);

} // namespace zupackage::xml
