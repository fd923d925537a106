#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zupackage::authoring {

/// Which bytes of a document became which bytes of its UTF-8 text. Characters in a row that take as many of both are
/// one run.
class OffsetMap
{
public:
    /// The next character of the text took `bytes` of the document, and takes `size` of the text.
    void append(std::size_t bytes, std::size_t size);

    /// Where the character of the text begins in the document, or, of one that stands at its end, the end.
    std::size_t toDocument(std::size_t textOffset) const;
    /// Where the character at a byte of the document begins in the text.
    std::size_t toText(std::size_t documentOffset) const;

private:
    struct Run
    {
        std::uint32_t document;
        std::uint32_t text;
        std::uint32_t bytes; ///< of each character, in the document
        std::uint32_t size;  ///< and in the text
    };

    std::vector<Run> m_runs;
    std::uint32_t m_document = 0;
    std::uint32_t m_text = 0;
};

} // namespace zupackage::authoring
