#pragma once

#include "xml/document.hpp"

#include <optional>

/// What a document may demand of the parser; no manifest comes near these. Beyond them the XML library overflows its
/// stack (25,000 levels of elements, 200,000 of groups in a content model), takes gigabytes (one long entity, often
/// referenced) or minutes (100,000 attributes in an element with namespace processing, 100,000 entity declarations, an
/// entity that holds a million references).
namespace zu::xml::limits {

inline constexpr int k_documentMiB = 64;
inline constexpr int k_levels = 256; ///< of elements, and of groups in a content model
inline constexpr int k_namespaceDeclarations = 256;
inline constexpr int k_attributes = 1024; ///< of one element
inline constexpr int k_entityDeclarations = 1024;
inline constexpr int k_references = 1024; ///< in the text of one entity
inline constexpr int k_entitiesMiB = 8;   ///< of declared entities, and of expanded ones

inline constexpr qint64 k_bytesPerMiB = 1024 * 1024;

} // namespace zu::xml::limits

namespace zu::xml {

/// The failure of a document that is larger than the limit.
ParseFailure tooLarge();

/// Runs through a document without building it.
/// @return the limit that it exceeds before its first syntax error; nothing when it may go to the parser.
std::optional<ParseFailure> exceededLimit(const QString& document);
std::optional<ParseFailure> exceededLimit(QIODevice& document);

} // namespace zu::xml
