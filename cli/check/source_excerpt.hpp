#pragma once

#include <zupackage/authoring/diagnostic.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <string>

namespace zu::cli {

/// The line that a stretch of the document begins in, and a line that marks the stretch below it: "^~~~". Of long lines
/// what is around the stretch. Both end with a line feed; nothing can steer a terminal.
std::string sourceExcerpt(const authoring::SourceDocument& document, const authoring::SourceRange& range);

} // namespace zu::cli
