#pragma once

#include "package/package_element.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// The last step of the path to each of an element's children: `nature`, `name[@lang='fr']`, `tag[@lang='en'][2]`.
std::vector<std::string> stepsOf(const std::vector<PackageElement>& entries);

/// The predicate that asks for a value, as "[@lang='fr']". Empty when the value is, or cannot stand in a path: with
/// quotes of both kinds or with control characters.
std::string predicateOn(std::string_view what, std::string_view value);

/// The same of what identifies an entry: its own text, or the attribute that the entry of the vocabulary says.
std::string predicateOnIdentity(const ElementEntry& entry, std::string_view identity);

/// The path with a step behind it; the step alone behind no path.
std::string pathTo(const std::string& path, std::string_view step);

} // namespace zupackage::authoring
