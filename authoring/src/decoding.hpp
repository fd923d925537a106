#pragma once

#include "encoding.hpp"
#include "offset_map.hpp"
#include "source_tree.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// A document in UTF-8 that is valid, with a byte order mark when it has one.
struct DecodedText
{
    bool isConverted = false; ///< otherwise it is what the bytes are
    std::string utf8;
    OffsetMap map;
    std::vector<TextSpan> invalid; ///< where U+FFFD stands for bytes that mean nothing; the first ones
};

DecodedText decoded(std::string_view bytes, const DocumentEncoding& encoding);

/// The size of the character that begins there; 0 when the bytes are no UTF-8.
std::size_t utf8Size(std::size_t at, std::string_view bytes);

/// Where the first byte is that is no UTF-8; the end when there is none.
std::size_t validUtf8End(std::string_view bytes);

} // namespace zupackage::authoring
