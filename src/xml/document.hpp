#pragma once

#include "xml/tree.hpp"

#include <string>
#include <variant>

class QIODevice;

namespace zupackage::xml {

/// Why a document was refused.
struct ParseFailure
{
    int line;            ///< the parser's number, counted from 1
    int column;          ///< the parser's number, counted from 1
    std::string message; ///< the parser's own words, or the limit that the document exceeds
};

using ParseResult = std::variant<Tree, ParseFailure>;

/// Parses UTF-8 text, as QDomDocument::setContent does with namespace processing.
ParseResult parse(const std::string& content);

/// Parses what the open device holds, in the encoding that the document says itself, as QDomDocument::setContent does
/// without namespace processing.
ParseResult parse(QIODevice& device);

} // namespace zupackage::xml
