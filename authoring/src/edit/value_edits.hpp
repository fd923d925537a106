#pragma once

#include "edit/reading.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::edit {

using zu::authoring::ByteRange;
using zu::authoring::SourceDocument;
using zu::authoring::TextEdit;

using Edits = std::vector<TextEdit>;

/// Makes an attribute say something else. What both values begin and end with stays as it is written.
void setValue(const SourceDocument& document, SourceAttribute attribute, std::string_view value, Edits& edits);

/// Makes the reader take that as the text of an element, which is not the one that it takes now. The first text or
/// CDATA section that says something becomes it; comments and elements stay, other texts go. What both texts begin and
/// end with stays as it is written.
void setText(const SourceDocument& document, SourceNode element, std::string_view text, Edits& edits);

/// What is to stand in an element that has nothing in it.
void fill(const SourceDocument& document, SourceNode element, std::string_view content, Edits& edits);

} // namespace zupackage::edit
