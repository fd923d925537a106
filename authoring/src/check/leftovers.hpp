#pragma once

#include <zupackage/authoring/vocabulary.hpp>

#include <algorithm>

namespace zupackage::check {

/// Whether the element is there for those in it, so that it is a leftover without any. The sections that a package must
/// have are missing when they are empty; a service may do without variables.
inline bool isForOthers(const zu::authoring::ElementEntry& entry)
{
    using zu::authoring::Occurrence;
    return entry.occurrence != Occurrence::Once && entry.name != "service" &&
           std::any_of(entry.children.begin(), entry.children.end(),
                       [](const auto* child) { return child->occurrence == Occurrence::Repeated; });
}

} // namespace zupackage::check
