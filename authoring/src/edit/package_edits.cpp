#include "edit/package_edits.hpp"

namespace zupackage::edit {

std::vector<zu::authoring::TextEdit> packageEdits(const zu::authoring::SourceDocument& /*document*/,
                                                  const zu::authoring::SourceDocument& /*target*/)
{
    return {};
}

} // namespace zupackage::edit
