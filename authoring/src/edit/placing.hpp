#pragma once

#include "edit/differ.hpp"

#include <functional>

namespace zupackage::edit {

/// What a container gets.
struct Placing
{
    const Layout& layout;
    SourceNode container;             ///< the last one of several that are read as one
    const std::vector<Nodes>& groups; ///< the nodes of each of its entries
    const Changes& changes;
    /// The text of an addition with that indentation.
    std::function<std::string(const Addition&, const std::optional<std::string>& indentation)> source;
};

/// Puts the additions beside the neighbours that they have, with the indentation of these.
void place(const Placing& placing, Edits& edits);

} // namespace zupackage::edit
