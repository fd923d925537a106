#include "variant/vxfailure.hpp"

#include "variant/vxvalue_dump.hpp"

namespace VX {

namespace {

constexpr char k_module[] = "VXValue";

/// What stands before the message.
std::string headline(const std::string& module, const std::string& method)
{
    std::string text;
    if (!module.empty())
        text += "\t" + module;
    if (!method.empty())
        text += "::" + method;
    return text += "\n\t";
}

} // namespace

/// Makes the errors whose text is too long to be copied from one string into the next: that of a type error holds a
/// dump.
class VXFailure
{
public:
    [[noreturn]] static void throwWith(const std::string& text) { throw VXError(text); }
};

VXError::VXError(const std::string& module, const std::string& method, const std::string& message, const char* /*file*/,
                 int /*line*/)
    : std::runtime_error(headline(module, method) + message)
{
}

VXError::VXError(const std::string& text) : std::runtime_error(text) {}

VXError::~VXError() = default;

void fail(const char* method, const std::string& message, const SourcePlace& place)
{
    throw VXError(k_module, method, message, place.file, place.line);
}

void failForType(const char* method, const VXValue& value, VXValue::Type expected)
{
    std::string text = headline(k_module, method);
    text += "Expected a " + VXValue::TypeToString(expected) + " but received a " + VXValue::TypeToString(value.type()) +
            " (vxvalue contents: ";
    appendDump(text, value, 1);
    text += " )";
    VXFailure::throwWith(text);
}

} // namespace VX
