#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// One change of a document's text: what stands in `range` becomes `replacement`. An empty range is an insertion.
struct TextEdit
{
    ByteRange range;         ///< in the document as it is before any of the edits
    std::string replacement; ///< in UTF-8, as it is to stand there: escaped, with the line ends that it is to have
};

/// Equal when the same text replaces the same range.
/// @{
inline bool operator==(const TextEdit& left, const TextEdit& right)
{
    return left.range == right.range && left.replacement == right.replacement;
}
inline bool operator!=(const TextEdit& left, const TextEdit& right) { return !(left == right); }
/// @}

/// The bytes of the document with the edits made, all of them or none. Every byte outside the ranges stays as it is;
/// replacements are encoded in the document's encoding, a character that it cannot hold as a numeric reference.
///
/// The edits are in the order of their ranges, which may touch but not overlap; of insertions at one place the first
/// comes first.
/// @return nothing when edits are out of order or overlap, reach beyond the document or into its byte order mark, or
/// cut a character in two, or when a replacement is no UTF-8.
ZUPACKAGE_AUTHORING_EXPORT std::optional<std::string> applyEdits(const SourceDocument& document,
                                                                 const std::vector<TextEdit>& edits);

/// How many bytes applyEdits() writes for a replacement, which is in UTF-8, in the document's encoding.
ZUPACKAGE_AUTHORING_EXPORT std::size_t encodedSize(const SourceDocument& document, std::string_view replacement);

} // namespace zu::authoring
