#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class QTextCodec;

namespace zupackage::authoring {

enum class EncodingForm : std::uint8_t
{
    Utf8,
    Utf16BigEndian,
    Utf16LittleEndian,
    Utf32BigEndian,
    Utf32LittleEndian,
    Latin1,
    OfCodec ///< any other that Qt knows
};

/// In which encoding a document's bytes are read.
struct DocumentEncoding
{
    EncodingForm form = EncodingForm::Utf8;
    std::string name = "UTF-8";
    std::size_t markSize = 0;          ///< of the byte order mark, in the document
    bool isUnknown = false;            ///< the declared one is; it is read as UTF-8
    const QTextCodec* codec = nullptr; ///< of EncodingForm::OfCodec
};

/// Finds it as XML has it: by the byte order mark, by how `<` is written, by the XML declaration.
DocumentEncoding detectEncoding(std::string_view bytes);

/// Whether a document that is read in an encoding may declare this one.
bool agrees(const DocumentEncoding& encoding, std::string_view declared);

} // namespace zupackage::authoring
