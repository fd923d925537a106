#include "variant/vxvalue_dump.hpp"

#include <zupackage/vxvalue.hpp>

#include <array>
#include <charconv>
#include <cstring>
#include <ostream>

namespace VX {

namespace {

std::string decimal(int number) { return std::to_string(number); }

/// At least so many upper-case digits, with zeros before them.
std::string hexadecimal(std::uint64_t bits, std::size_t digits)
{
    static constexpr char k_digits[] = "0123456789ABCDEF";
    std::string text(digits, '0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, bits >>= 4U)
        *digit = k_digits[bits & 0xFU];
    return text;
}

/// As a pointer prints, with digits of our own: as many on every platform.
std::string address(std::uint64_t bits) { return "0x" + hexadecimal(bits, 16); }

/// A backslash and the decimal number of a byte.
struct EscapedByte
{
    char text[4];
    std::uint8_t size;
};

constexpr std::array<EscapedByte, 256> escapedBytes()
{
    std::array<EscapedByte, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        EscapedByte& escaped = table[byte];
        escaped.text[escaped.size++] = '\\';
        for (unsigned unit = 100; unit > 0; unit /= 10)
            if (byte >= unit || unit == 1)
                escaped.text[escaped.size++] = static_cast<char>('0' + byte / unit % 10);
    }
    return table;
}

// Made once, because a Binary has many bytes.
constexpr std::array<EscapedByte, 256> k_escapedBytes = escapedBytes();

/// As printf("%.6g") has it in the C locale.
std::string sixDigits(float number)
{
    char buffer[32];
    const auto result =
        std::to_chars(std::begin(buffer), std::end(buffer), double(number), std::chars_format::general, 6);
    return {buffer, result.ptr};
}

} // namespace

/// Writes a value and what it holds, without a call for each level: whoever builds a value picks its depth.
class VXValueDump
{
public:
    /// Writes behind what stands in `text`.
    VXValueDump(std::string& text, int verbosity) : m_labelled(verbosity >= 2), m_framed(verbosity >= 3), m_text(text)
    {
    }

    void write(const VXValue& root)
    {
        begin(root);
        while (!m_open.empty()) {
            OpenArray& array = m_open.back();
            if (array.next > 0 && m_framed)
                m_text += "\n</elem>";
            if (array.next < array.elements->size())
                begin(nextElement(array));
            else
                endArray();
        }
    }

private:
    struct OpenArray
    {
        const VXValue::Array* elements;
        std::size_t next; ///< the element to come
    };

    const VXValue& nextElement(OpenArray& array)
    {
        m_text += m_framed ? "\n<elem>\n" : array.next > 0 ? ", " : "";
        return (*array.elements)[array.next++];
    }

    /// Writes a value as a whole, or an Array up to its first element.
    void begin(const VXValue& value)
    {
        if (m_framed)
            m_text += "\n<VxValue>";
        if (m_labelled)
            m_text += "VxValue at 0x" + address(reinterpret_cast<std::uintptr_t>(&value)) +
                      ", Type: " + VXValue::TypeToString(value.m_type) + ", Value: " + address(value.m_value.bits) +
                      ", ";
        if (value.m_type == VXValue::Type::Array) {
            beginArray(*value.m_value.array);
        } else {
            writeLeaf(value);
            endValue();
        }
    }

    void beginArray(const VXValue::Array& elements)
    {
        m_text += m_framed ? "\n<Vector>" : "[";
        if (m_labelled)
            m_text += "Vector of " + decimal(static_cast<int>(elements.size())) + " elem(s):";
        m_open.push_back({&elements, 0});
    }

    void endArray()
    {
        m_open.pop_back();
        m_text += m_framed ? "\n</Vector>" : "]";
        endValue();
    }

    void endValue()
    {
        if (m_framed)
            m_text += "\n</VxValue>\n";
    }

    void writeLeaf(const VXValue& value)
    {
        switch (value.m_type) {
        case VXValue::Type::Bool:
            label("Bool:");
            m_text += value.m_value.boolean ? "true" : "false";
            return;
        case VXValue::Type::Int:
            label("Int: 0x" + hexadecimal(static_cast<std::uint32_t>(value.m_value.integer), 8) + " (");
            m_text += decimal(value.m_value.integer);
            label(")");
            break;
        case VXValue::Type::Float:
            label("Float: ");
            m_text += sixDigits(value.m_value.real);
            break;
        case VXValue::Type::String:
            label("String of size " + decimal(value.size()) + ": ");
            (m_text += '"').append(*value.m_value.string) += '"';
            break;
        case VXValue::Type::Object:
            if (value.m_value.bytes != nullptr)
                m_text.append(value.m_value.bytes->begin(), value.m_value.bytes->end());
            return;
        case VXValue::Type::Binary:
            writeBinary(*value.m_value.bytes);
            return;
        case VXValue::Type::Invalid:
        case VXValue::Type::Array:
            return;
        }
        if (m_framed)
            m_text += "\n";
    }

    void writeBinary(const TVXValueBytes& bytes)
    {
        if (m_framed)
            m_text += "\n<Binary>Binary: " + decimal(static_cast<int>(bytes.size())) + " bytes(s):\n";
        const std::size_t before = m_text.size();
        m_text.resize(before + sizeof EscapedByte::text * bytes.size());
        char* end = m_text.data() + before;
        for (const unsigned char byte : bytes) {
            std::memcpy(end, k_escapedBytes[byte].text, sizeof EscapedByte::text);
            end += k_escapedBytes[byte].size;
        }
        m_text.resize(static_cast<std::size_t>(end - m_text.data()));
        label("</Binary>\n"); // also at verbosity 2, which opens none: part of the format
    }

    void label(const std::string& text)
    {
        if (m_labelled)
            m_text += text;
    }

    const bool m_labelled;
    const bool m_framed;
    std::string& m_text;
    std::vector<OpenArray> m_open;
};

void appendDump(std::string& text, const VXValue& value, int verbosity)
{
    if (verbosity > 0)
        VXValueDump(text, verbosity).write(value);
}

std::string VXValue::dump(int verbosity) const
{
    std::string text;
    if (verbosity > 0)
        text.reserve(1024);
    appendDump(text, *this, verbosity);
    return text;
}

std::ostream& operator<<(std::ostream& out, const VXValue& value) { return out << value.dump(1); }

} // namespace VX
