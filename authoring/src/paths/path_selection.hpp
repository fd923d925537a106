#pragma once

#include <zupackage/authoring/manifest_path.hpp>

#include <vector>

namespace zupackage::authoring {

/// What one step leads to: the elements in `parents` that meet all of its conditions, in the order of the document.
/// @param parents in the order of the document, none in another one.
std::vector<zu::authoring::SourceNode> stepFrom(const std::vector<zu::authoring::SourceNode>& parents,
                                                const zu::authoring::PathStep& step);

/// Where a path begins: the root element, or, of an absolute one, the document. Empty without a root element.
std::vector<zu::authoring::SourceNode> beginning(const zu::authoring::SourceDocument& document,
                                                 const zu::authoring::ManifestPath& path);

/// The attribute of exactly that name; null when there is none.
zu::authoring::SourceAttribute attributeNamed(zu::authoring::SourceNode element, std::string_view name);

} // namespace zupackage::authoring
