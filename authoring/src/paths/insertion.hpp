#pragma once

#include "paths/new_element.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>

namespace zupackage::authoring {

/// How elements beside or in `element` are written, but for their indentation.
ElementLayout layoutAt(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode element);

/// Puts a new element into one that is there: behind the last one of the same name, else where complete manifests have
/// it, laid out as what stands there.
zu::authoring::TextEdit insertion(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode parent,
                                  const NewElement& element);

/// Puts an attribute, which it does not have yet, into an element's start tag, where complete manifests have it.
zu::authoring::TextEdit insertion(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode element,
                                  std::string_view attribute, std::string_view value);

/// Gives an element another text in the place of those that it has; comments in it stay.
/// @param dropsElements whether elements in it go; else there must be none.
std::vector<zu::authoring::TextEdit> textReplacement(const zu::authoring::SourceDocument& document,
                                                     zu::authoring::SourceNode element, std::string_view text,
                                                     bool dropsElements);

} // namespace zupackage::authoring
