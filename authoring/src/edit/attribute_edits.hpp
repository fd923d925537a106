#pragma once

#include "edit/value_edits.hpp"

namespace zupackage::edit {

/// Makes the attributes of an element read as those of another one. A new one stands behind the one that the
/// vocabulary names before it, as far from it as that is from its own neighbour, in the same quotes.
void setAttributes(const SourceDocument& document, SourceNode node, SourceNode target, const ElementEntry& entry,
                   Edits& edits);

} // namespace zupackage::edit
