#pragma once

#include "xml/document.hpp"

#include <optional>

/// What a document may demand of the parser; no manifest comes near these. Beyond them the XML library overflows its
/// stack (25,000 levels of elements, 200,000 of groups in a content model), takes gigabytes (one long entity, often
/// referenced; millions of nodes; millions of attributes in an element) or minutes (see k_steps).
namespace zupackage::xml::limits {

inline constexpr int k_documentMiB = 64;
inline constexpr int k_levels = 256; ///< of elements, and of groups in a content model
inline constexpr int k_namespaceDeclarations = 256;
inline constexpr int k_attributes = 1024;   ///< of one element
inline constexpr int k_declarations = 1024; ///< of entities and notations
inline constexpr int k_expandedEntitiesMiB = 8;
inline constexpr int k_nodes = 4 * 1024 * 1024; ///< elements, attributes, texts, comments, instructions, references

/// What the parser does more than once for each node: it compares the attributes of an element with each other, and the
/// namespace prefixes in scope at its end; it searches the text of each entity for each entity's name, and moves it for
/// each that it finds. A step takes some nanoseconds.
inline constexpr qint64 k_steps = qint64(1) << 30;

inline constexpr qint64 k_bytesPerMiB = 1024 * 1024;

} // namespace zupackage::xml::limits

namespace zupackage::xml {

/// The failure of a document that is larger than the limit.
ParseFailure tooLarge();

/// Runs through a document without building it.
/// @return the limit that it exceeds before its first syntax error; nothing when it may go to the parser.
std::optional<ParseFailure> exceededLimit(const QString& document);
std::optional<ParseFailure> exceededLimit(QIODevice& document);

} // namespace zupackage::xml
