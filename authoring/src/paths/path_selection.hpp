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

/// The elements, which `stepFrom` found in one section, in groups that readers take for one: of a section that stands
/// there more than once they take the children of all.
std::vector<std::vector<zu::authoring::SourceNode>> sectionsOf(const std::vector<zu::authoring::SourceNode>& elements);

/// What readers take for one with the element, and the element itself, in the order of the document.
std::vector<zu::authoring::SourceNode> sectionWith(zu::authoring::SourceNode element);

} // namespace zupackage::authoring
