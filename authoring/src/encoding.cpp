#include "encoding.hpp"

#include "characters.hpp"

#include <QtCore/QTextCodec>

namespace zupackage::authoring {

namespace {

/// The numbers that IANA gave them.
enum Mib
{
    Latin1Mib = 4,
    Utf8Mib = 106,
    Utf16BigEndianMib = 1013,
    Utf16LittleEndianMib = 1014,
    Utf16Mib = 1015,
    Utf32Mib = 1017,
    Utf32BigEndianMib = 1018,
    Utf32LittleEndianMib = 1019
};

struct Signature
{
    std::string_view bytes;
    EncodingForm form;
    const char* name;
    bool isMark;
};

using namespace std::string_view_literals;

// UTF-32 before UTF-16, with which it begins.
constexpr Signature k_signatures[] = {
    {"\x00\x00\xFE\xFF"sv, EncodingForm::Utf32BigEndian, "UTF-32BE", true},
    {"\xFF\xFE\x00\x00"sv, EncodingForm::Utf32LittleEndian, "UTF-32LE", true},
    {"\x00\x00\x00<"sv, EncodingForm::Utf32BigEndian, "UTF-32BE", false},
    {"<\x00\x00\x00"sv, EncodingForm::Utf32LittleEndian, "UTF-32LE", false},
    {"\xFE\xFF"sv, EncodingForm::Utf16BigEndian, "UTF-16BE", true},
    {"\xFF\xFE"sv, EncodingForm::Utf16LittleEndian, "UTF-16LE", true},
    {"\x00<"sv, EncodingForm::Utf16BigEndian, "UTF-16BE", false},
    {"<\x00"sv, EncodingForm::Utf16LittleEndian, "UTF-16LE", false},
    {k_byteOrderMark, EncodingForm::Utf8, "UTF-8", true},
};

bool startsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

/// What the XML declaration of a document in ASCII says; empty when it says nothing.
std::string_view declaredIn(std::string_view bytes)
{
    constexpr std::string_view k_key = "encoding";
    if (!startsWith(bytes, "<?xml") || bytes.size() < 6 || !isOf(Blank, bytes[5]))
        return {};
    const std::string_view declaration = bytes.substr(0, bytes.find("?>"));
    const std::size_t key = declaration.find(k_key);
    if (key == std::string_view::npos)
        return {};
    std::size_t at = afterBlanks(key + k_key.size(), declaration);
    if (at == declaration.size() || declaration[at] != '=')
        return {};
    at = afterBlanks(at + 1, declaration);
    if (at == declaration.size() || (declaration[at] != '"' && declaration[at] != '\''))
        return {};
    const std::size_t end = declaration.find(declaration[at], at + 1);
    return end == std::string_view::npos ? std::string_view() : declaration.substr(at + 1, end - at - 1);
}

const QTextCodec* codecFor(std::string_view name)
{
    return QTextCodec::codecForName(QByteArray(name.data(), static_cast<int>(name.size())));
}

bool isUtf16(int mib) { return mib >= Utf16BigEndianMib && mib <= Utf16Mib; }
bool isUtf32(int mib) { return mib >= Utf32Mib && mib <= Utf32LittleEndianMib; }

} // namespace

DocumentEncoding detectEncoding(std::string_view bytes)
{
    DocumentEncoding encoding;
    for (const Signature& signature : k_signatures)
        if (startsWith(bytes, signature.bytes)) {
            encoding.form = signature.form;
            encoding.name = signature.name;
            encoding.markSize = signature.isMark ? signature.bytes.size() : 0;
            return encoding;
        }
    const std::string_view declared = declaredIn(bytes);
    if (declared.empty())
        return encoding;
    const QTextCodec* codec = codecFor(declared);
    encoding.isUnknown = codec == nullptr;
    // It is none of those that take more than a byte for `<`, whatever it says.
    if (codec == nullptr || codec->mibEnum() == Utf8Mib || isUtf16(codec->mibEnum()) || isUtf32(codec->mibEnum()))
        return encoding;
    encoding.form = codec->mibEnum() == Latin1Mib ? EncodingForm::Latin1 : EncodingForm::OfCodec;
    encoding.name = codec->name().toStdString();
    encoding.codec = encoding.form == EncodingForm::OfCodec ? codec : nullptr;
    return encoding;
}

bool agrees(const DocumentEncoding& encoding, std::string_view declared)
{
    const QTextCodec* codec = codecFor(declared);
    if (codec == nullptr)
        return false;
    switch (encoding.form) {
    case EncodingForm::Utf8:
        return codec->mibEnum() == Utf8Mib;
    case EncodingForm::Utf16BigEndian:
    case EncodingForm::Utf16LittleEndian:
        // Without a mark, the order of the bytes has to be declared.
        return isUtf16(codec->mibEnum()) && (encoding.markSize > 0 || codec->mibEnum() != Utf16Mib);
    case EncodingForm::Utf32BigEndian:
    case EncodingForm::Utf32LittleEndian:
        return isUtf32(codec->mibEnum()) && (encoding.markSize > 0 || codec->mibEnum() != Utf32Mib);
    case EncodingForm::Latin1:
    case EncodingForm::OfCodec:
        return true;
    }
    return true;
}

} // namespace zupackage::authoring
