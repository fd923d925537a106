#pragma once

#include <QtCore/QString>

namespace zupackage::xml {

/// The text with each character that XML 1.0 cannot carry, not even as a reference, replaced by U+FFFD: control
/// characters other than tab, line feed and carriage return; U+FFFE and U+FFFF; lone surrogates.
QString withoutForbiddenCharacters(QString text);

/// Whether every parser reads an element of this name: an XML name, without a colon (which would be an undeclared
/// namespace prefix), of letters that Qt's parser takes for letters, too.
bool isElementName(const QString& name);

} // namespace zupackage::xml
