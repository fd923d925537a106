#pragma once

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// Takes a node away, and the line with it when nothing else stands there.
zu::authoring::TextEdit removal(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode node);

/// Takes an attribute away, with the white space before it.
zu::authoring::TextEdit removal(const zu::authoring::SourceDocument& document,
                                zu::authoring::SourceAttribute attribute);

/// Gives an attribute another value, in the quotes that it has.
zu::authoring::TextEdit replacement(zu::authoring::SourceAttribute attribute, std::string_view value);

/// Gives an element another name, in both its tags.
std::vector<zu::authoring::TextEdit> renaming(zu::authoring::SourceNode element, std::string_view name);

/// The text as it stands between tags, or in an attribute with that quote.
std::string escapedText(std::string_view text);
std::string escapedValue(std::string_view value, char quote);

/// The text between tags such that the package library's reader, which drops loose white space, takes it: white space
/// alone in a CDATA section, where the encoding has it.
/// @param hasEveryCharacter whether the document's encoding does.
std::string readableText(std::string_view text, bool hasEveryCharacter);

/// Whether a text can stand in one CDATA section, which has no references.
bool fitsSection(std::string_view text, bool hasEveryCharacter);

/// The text in a CDATA section, which it must fit.
std::string cdataSection(std::string_view text);

/// Whether the document's encoding has every character; in others some take references.
bool hasEveryCharacter(const zu::authoring::SourceDocument& document);

} // namespace zupackage::authoring
