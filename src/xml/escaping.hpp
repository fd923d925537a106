#pragma once

#include <string>
#include <string_view>

namespace zupackage::xml {

/// Where in a document a text stands.
enum class Place
{
    Content,        ///< between tags
    AttributeValue, ///< between double quotes
    CData,          ///< in a CDATA section
};

/// Appends a UTF-8 text to a document so that it reads back as the same text, written as Qt writes it: markup as
/// references, and an end mark in a CDATA section spread over two adjacent sections. A byte order mark at the start of
/// the text is left out. U+FFFD stands for each byte that is no UTF-8 and for each character that XML 1.0 cannot carry:
/// control characters other than tab, line feed and carriage return; U+FFFE and U+FFFF.
void appendEscaped(std::string& document, std::string_view text, Place place);

} // namespace zupackage::xml
