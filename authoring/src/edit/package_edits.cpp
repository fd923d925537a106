#include "edit/package_edits.hpp"

#include "edit/differ.hpp"

namespace zupackage::edit {

Edits packageEdits(const SourceDocument& document, const SourceDocument& target, std::string_view written)
{
    Edits edits;
    Differ(document, target, written)
        .element(document.root(), target.root(), zu::authoring::Vocabulary::manifest().root(), edits);
    sort(edits);
    return edits;
}

} // namespace zupackage::edit
