#pragma once

#include <zupackage/authoring/export.hpp>

#include <string>

namespace zu::authoring {

/// What an XML catalog has the schema of manifests under, and what documents refer to it by.
ZUPACKAGE_AUTHORING_EXPORT std::string xmlSchemaUri();

/// The XML Schema (1.0) of manifests, made from the Vocabulary: for editors, which complete and explain by it, and for
/// validators. Elements stand in any order; what a complete manifest has is required, and what identifies entries is
/// unique.
///
/// It knows less than check(): comments in lists, elements that stand twice beside others that may repeat, and all that
/// depends on other places or files (languages, ranges, paths) are beyond schemas.
ZUPACKAGE_AUTHORING_EXPORT std::string xmlSchema();

/// The JSON Schema (2020-12) of what toJson(const PackageInfo&) writes and packageFromJson() reads, made from the
/// Vocabulary. It tells the form; what a good manifest has is for check() to say.
ZUPACKAGE_AUTHORING_EXPORT std::string jsonSchema();

} // namespace zu::authoring
