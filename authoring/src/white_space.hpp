#pragma once

#include <string_view>

/// White space as the package library's reader sees it: beyond that of XML, all that Unicode calls such.
namespace zupackage::authoring {

/// Whether there is nothing else, so that the reader drops a loose text of it. It keeps such a text in a CDATA section.
bool isBlank(std::string_view text);

/// The text without the white space around it.
std::string_view trimmed(std::string_view text);

} // namespace zupackage::authoring
