#pragma once

#include <string>

namespace zu::cli {

/// What a manifest may contain, element by element, in Markdown.
std::string manifestReferenceInMarkdown();

/// The same as the manual page zupackage-manifest(5).
std::string manifestPage(const std::string& version);

} // namespace zu::cli
