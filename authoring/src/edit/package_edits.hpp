#pragma once

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <string_view>
#include <vector>

namespace zupackage::edit {

/// What to change in `document` so that it reads as `target` does, which must stand as the package writer writes it.
/// Both must be well-formed.
/// @param written what the package writer makes of the document's package.
std::vector<zu::authoring::TextEdit> packageEdits(const zu::authoring::SourceDocument& document,
                                                  const zu::authoring::SourceDocument& target,
                                                  std::string_view written);

} // namespace zupackage::edit
