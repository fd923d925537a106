#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <string>

/// A character beyond the basic plane may be written as two references to its halves, with a comment between them: the
/// halves are in two texts then, and become a character when these are joined.
namespace zupackage::xml {

/// Whether there is a surrogate that is no half of a pair.
bool hasLoneSurrogate(const QString& text);

/// The text as UTF-8, with each lone surrogate in the three bytes that it would have if it were a character.
QByteArray utf8WithSurrogates(const QString& text);

/// Makes UTF-8 of such texts joined: a pair becomes its character, a lone surrogate what Qt makes of it.
void joinSurrogates(std::string& text);

} // namespace zupackage::xml
