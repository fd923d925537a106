#include "paths/vocabulary_of_nodes.hpp"

namespace zupackage::authoring {

using zu::authoring::ElementEntry;
using zu::authoring::SourceNode;
using zu::authoring::Vocabulary;

const ElementEntry* entryOf(SourceNode element)
{
    if (!element.isElement())
        return nullptr;
    if (!element.parent().isElement())
        return &Vocabulary::manifest().root();
    const ElementEntry* const parent = entryOf(element.parent());
    return parent ? parent->child(element.name()) : nullptr;
}

} // namespace zupackage::authoring
