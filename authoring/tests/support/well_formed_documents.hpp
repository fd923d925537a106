#pragma once

#include <string>

/// Generated documents, to be called in a property.
namespace zu::test {

/// A well-formed document in UTF-8 without a declaration of its encoding, as oddly written as it may be: white space
/// and line ends of all kinds, either quote, references, CDATA sections, comments, instructions, namespaces.
std::string wellFormedDocument();

/// The text without the characters that ISO-8859-1 does not have.
std::string withoutBeyondLatin1(const std::string& utf8);

} // namespace zu::test
