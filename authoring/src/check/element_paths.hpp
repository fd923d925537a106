#pragma once

#include "check/outline.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::check {

/// The paths of elements in XPath notation, as SourceNode::path() gives them, for many of them at once: siblings are
/// counted once for all.
class ElementPaths
{
public:
    explicit ElementPaths(const SourceDocument& document);

    /// @param attribute the name of one of its attributes; empty for the element itself.
    /// @return an empty text for the document itself and for a null node.
    std::string path(SourceNode node, std::string_view attribute) const;

private:
    std::vector<std::uint32_t> m_positions; ///< among siblings of the same name, from 1, by the node's number
    std::vector<bool> m_isAlone;            ///< whether there are none
};

} // namespace zupackage::check
