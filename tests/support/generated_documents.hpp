#pragma once

#include <string>

/// Generated documents, to be called in a property.
namespace zu::test {

/// A document made of what manifests and parsers know: sections in and out of their places, prefixed names,
/// declarations of namespaces, repeated attributes, comments, instructions and CDATA sections with the names of
/// sections, references of every kind, halves of characters, document types, encodings. Most are well-formed.
std::string anyDocument();

/// A copy of the bytes in which one to four pieces are removed, doubled or put in.
std::string mutatedDocument(std::string bytes);

} // namespace zu::test
