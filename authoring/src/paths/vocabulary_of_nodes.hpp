#pragma once

#include <zupackage/authoring/source_node.hpp>
#include <zupackage/authoring/vocabulary.hpp>

namespace zupackage::authoring {

/// What the vocabulary says about one element of a document; null when it says nothing. The root counts as the
/// vocabulary's, whatever its name. Takes time in proportion to the depth, where check::Outline looks at a whole
/// document.
const zu::authoring::ElementEntry* entryOf(zu::authoring::SourceNode element);

} // namespace zupackage::authoring
