#pragma once

#include "encoding.hpp"
#include "offset_map.hpp"
#include "place_index.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// From where to where something stands in the UTF-8 text of a document. A document is small enough for 32 bits.
struct TextSpan
{
    std::uint32_t begin = 0;
    std::uint32_t end = 0;

    bool isEmpty() const { return begin == end; }
};

inline TextSpan span(std::size_t begin, std::size_t end)
{
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
}

inline std::string_view textIn(TextSpan span, std::string_view text)
{
    return text.substr(span.begin, span.end - span.begin);
}

/// A value that stands in the text as it is needs no other place.
constexpr TextSpan k_asItStands = {0xFFFFFFFF, 0xFFFFFFFF};

inline bool isAsItStands(TextSpan value) { return value.begin == k_asItStands.begin; }

/// A node. The first one in it, if any, has the next number.
struct NodeRecord
{
    zu::authoring::NodeKind kind = zu::authoring::NodeKind::None;
    bool isEmptyTag = false;
    std::uint32_t parent = 0;
    std::uint32_t next = 0; ///< the sibling behind it; 0 when there is none
    TextSpan range;
    TextSpan name;
    TextSpan content;
    TextSpan value = k_asItStands; ///< in the decoded values, or as the content stands
    std::uint32_t firstAttribute = 0;
    std::uint32_t attributeCount = 0;
};

struct AttributeRecord
{
    TextSpan name;
    TextSpan content;              ///< within the quotes
    TextSpan value = k_asItStands; ///< in the decoded values, or as the content stands
};

} // namespace zupackage::authoring

namespace zu::authoring {

/// All of a document. Offsets in it are those of the UTF-8 text.
struct SourceTree
{
    std::string bytes;
    zupackage::authoring::DocumentEncoding encoding;
    std::string converted; ///< the text in UTF-8 where the bytes are none
    bool isConverted = false;
    zupackage::authoring::OffsetMap map; ///< where it is converted
    zupackage::authoring::PlaceIndex places;
    std::string decodedValues;
    std::vector<zupackage::authoring::NodeRecord> nodes;
    std::vector<zupackage::authoring::AttributeRecord> attributes;
    std::vector<SyntaxError> errors;
    bool isComplete = false;

    std::string_view utf8() const { return isConverted ? converted : bytes; }

    std::size_t toDocument(std::size_t textOffset) const
    {
        return isConverted ? map.toDocument(textOffset) : textOffset;
    }
    std::size_t toText(std::size_t documentOffset) const
    {
        return isConverted ? map.toText(documentOffset) : documentOffset;
    }
    ByteRange range(zupackage::authoring::TextSpan span) const
    {
        return {toDocument(span.begin), toDocument(span.end)};
    }
};

/// The way from a document to what is in it, for the library alone.
struct SourceTreeAccess
{
    static const SourceTree& tree(const SourceDocument& document) { return *document.m_tree; }
    /// Of a node that is not null.
    static const SourceTree& tree(SourceNode node) { return *node.m_tree; }
};

} // namespace zu::authoring
