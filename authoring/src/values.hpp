#pragma once

#include "reference.hpp"

#include <string>
#include <string_view>

/// What is meant by what stands in a document.
namespace zupackage::authoring {

class Entities;

/// Appends what a reference stands for when it is none to an entity: U+FFFD for a forbidden character, `source` for a
/// broken one.
void appendReference(const Reference& reference, std::string_view source, std::string& value);

/// Appends a text without markup, in which line ends are line feeds.
void appendLines(std::string_view source, std::string& value);

/// Appends a text of an element: as appendLines(), with references resolved.
void appendText(std::string_view source, std::string& value);

/// Appends the value of an attribute: with references resolved and blanks for white space.
/// @return false when an entity in it has markup.
bool appendAttribute(std::string_view source, Entities& entities, std::string& value);

} // namespace zupackage::authoring
