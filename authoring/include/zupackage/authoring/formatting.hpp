#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <string>

namespace zu::authoring {

/// The bytes of the document in the one form that manifests are written in: that of PackageInfo::saveToManifestFile().
///
/// - Elements stand in lines of their own, indented by two blanks a level; a comment that stands behind something in
///   its line stays there.
/// - Attributes stand in the order of the Vocabulary, the others behind them, a blank before each.
/// - Of empty lines between elements one stays; the document ends with one line end.
///
/// All else stays as it is: texts to the last blank, with all that stands beside them in an element, so that the
/// package reads as before; comments, instructions, the document type, unknown elements, CDATA sections, references,
/// quotes, empty tags, what `xml:space` preserves; the encoding and the byte order mark. Line ends between elements
/// become those that most of them are.
///
/// Formatting what is formatted changes nothing. A document that is not well-formed is given back as it is.
ZUPACKAGE_AUTHORING_EXPORT std::string formatted(const SourceDocument& document);

} // namespace zu::authoring
