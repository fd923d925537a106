#pragma once

#include <zupackage/authoring/package_merge.hpp>

#include <string>

namespace zu::cli {

/// The merge of packages in the text of ours, as authoring::mergeManifests() makes it and throws. What they changed
/// beside the package comes along where a merge of lines brings it into a text that reads as the same package, with no
/// entry twice that is there once.
authoring::ManifestMerge mergedTexts(const std::string& base, const std::string& ours, const std::string& theirs);

} // namespace zu::cli
