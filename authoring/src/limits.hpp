#pragma once

#include <cstddef>

/// What is not read. The first three are those of the package library's reader, which are its own and not to be
/// included from here; a test compares them.
namespace zupackage::authoring::limits {

constexpr std::size_t k_bytesPerMiB = 1024 * 1024;

constexpr std::size_t k_documentMiB = 64;
constexpr std::size_t k_levels = 256;
constexpr std::size_t k_expandedEntitiesMiB = 8;

/// Errors that are told of one document.
constexpr std::size_t k_errors = 100;

/// References in the declarations of a document type that could multiply each other, those to parameter entities, and
/// what each of these may expand to, in characters. More are made to harm.
constexpr std::size_t k_multiplyingReferences = 24;
constexpr std::size_t k_parameterReferences = 2048;
constexpr int k_parameterExpansion = 4096;

/// Attributes that a document type declares: QXmlStreamReader compares each with each other.
constexpr std::size_t k_declaredAttributes = 8192;

/// Comparisons of names that are left to QXmlStreamReader; they take about half a second.
constexpr std::size_t k_steps = std::size_t(1) << 26;

} // namespace zupackage::authoring::limits
