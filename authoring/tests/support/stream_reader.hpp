#pragma once

#include <zupackage/authoring/source_document.hpp>

#include <string>

namespace zu::test {

/// The elements, attributes, texts, comments and instructions of a document with their values, a line each, as
/// QXmlStreamReader gives them; adjacent texts as one. Without what comes before a document type and in it, and with
/// white space in attributes reduced when one can declare their types. Empty when it refuses the document, and `error`
/// says why.
std::string streamReaderTokens(const std::string& bytes, std::string& error);

/// The same of our document.
std::string sourceTokens(const authoring::SourceDocument& document);

/// What is wrong with the ranges of a document's nodes: those of children must follow each other and fill their
/// parent's content, those of attributes lie in their element's start tag, and what they cover must be what they say.
/// Empty when nothing is.
std::string faultInRanges(const authoring::SourceDocument& document);

/// Whether a document has a reference to an entity that is more than text, which QXmlStreamReader reads on.
bool hasMoreThanTextInEntities(const authoring::SourceDocument& document);

/// What a document of these bytes has otherwise than QXmlStreamReader: that it accepts what that refuses, that values
/// differ; and what is wrong with its ranges or its text. Empty when nothing is.
std::string differenceFromStreamReader(const std::string& bytes);

} // namespace zu::test
