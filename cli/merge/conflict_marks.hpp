#pragma once

#include <zupackage/authoring/source_document.hpp>

#include <cstddef>
#include <string>

namespace zu::cli {

/// How conflicts are marked.
struct ConflictMarks
{
    std::size_t size = 7;  ///< of each mark, in characters
    std::string oursLabel; ///< in UTF-8, as theirsLabel
    std::string theirsLabel;
};

/// The bytes of `ours` where each run of lines that is another one in `theirs` stands between marks, with that one
/// behind it. The marks have the line ends and the encoding of the document. Each begins its line: a byte order mark
/// stands behind it, before the first line of each side, in UTF-8; in other encodings, which are known by it, it comes
/// first of all.
std::string withConflictMarks(const authoring::SourceDocument& ours, const authoring::SourceDocument& theirs,
                              const ConflictMarks& marks);

} // namespace zu::cli
