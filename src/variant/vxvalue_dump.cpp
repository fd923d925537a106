#include <zupackage/vxvalue.hpp>

#include <cinttypes>
#include <cstdio>

namespace VX {

namespace {

template <class... Arguments>
std::string formatted(const char* format, Arguments... arguments)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, format, arguments...); // NOLINT(cppcoreguidelines-pro-type-vararg)
    return buffer;
}

std::string decimal(int number) { return formatted("%d", number); }

/// As a pointer prints, with digits of our own: 16 upper-case hexadecimal ones on every platform.
std::string address(std::uint64_t bits) { return "0x" + formatted("%016" PRIX64, bits); }

} // namespace

/// Writes a value and what it holds, without a call for each level: whoever builds a value picks its depth.
class VXValueDump
{
public:
    explicit VXValueDump(int verbosity) : m_labelled(verbosity >= 2), m_framed(verbosity >= 3) { m_text.reserve(1024); }

    std::string of(const VXValue& root)
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
        return std::move(m_text);
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
            label("Int: " + formatted("0x%08X", static_cast<std::uint32_t>(value.m_value.integer)) + " (");
            m_text += decimal(value.m_value.integer);
            label(")");
            break;
        case VXValue::Type::Float:
            label("Float: ");
            m_text += formatted("%.6g", static_cast<double>(value.m_value.real));
            break;
        case VXValue::Type::String:
            label("String of size " + decimal(value.size()) + ": ");
            m_text += '"' + *value.m_value.string + '"';
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
        for (const unsigned char byte : bytes)
            m_text += '\\' + decimal(byte);
        label("</Binary>\n"); // also at verbosity 2, which opens none: part of the format
    }

    void label(const std::string& text)
    {
        if (m_labelled)
            m_text += text;
    }

    const bool m_labelled;
    const bool m_framed;
    std::string m_text;
    std::vector<OpenArray> m_open;
};

std::string VXValue::dump(int verbosity) const
{
    return verbosity <= 0 ? std::string() : VXValueDump(verbosity).of(*this);
}

} // namespace VX
