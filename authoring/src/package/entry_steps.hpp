#pragma once

#include "package/package_element.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// The last step of the path to each of an element's children: `nature`, `name[@lang='fr']`, `tag[@lang='en'][2]`.
std::vector<std::string> stepsOf(const std::vector<PackageElement>& entries);

/// The path with a step behind it; the step alone behind no path.
std::string pathTo(const std::string& path, std::string_view step);

} // namespace zupackage::authoring
