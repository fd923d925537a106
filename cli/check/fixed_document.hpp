#pragma once

#include "check/checked_manifest.hpp"

namespace zu::cli {

/// A document with the fixes of all that was found in it.
struct FixedDocument
{
    authoring::SourceDocument document;
    authoring::CheckReport report; ///< of that document: what is left
    std::vector<ManifestFix> fixes;
};

/// Fixes a document until nothing is left to fix: a fix may uncover the next.
/// @param report of the document, made with the options.
FixedDocument fixedDocument(const authoring::SourceDocument& document, const authoring::CheckReport& report,
                            const authoring::CheckOptions& options, bool fixesUnsafe);

} // namespace zu::cli
