#pragma once

#include <zupackage/authoring/source_document.hpp>

#include <string>
#include <vector>

namespace zupackage::check {

/// Where the document holds characters that XML cannot carry, or numeric references to them; in order.
std::vector<zu::authoring::ByteRange> forbiddenCharacters(const zu::authoring::SourceDocument& document);

/// A numeric reference to a character beyond the basic plane.
struct WideReference
{
    zu::authoring::ByteRange range;
    zu::authoring::SourceNode node; ///< the text, or the element that has the attribute
    std::string attribute;          ///< its name; empty for a text
    std::string character;          ///< in UTF-8
};

/// All of them, in order.
std::vector<WideReference> wideReferences(const zu::authoring::SourceDocument& document);

} // namespace zupackage::check
