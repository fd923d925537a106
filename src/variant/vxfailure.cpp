#include "variant/vxfailure.hpp"

#include <zupackage/vxvalue.hpp>

namespace VX {

void fail(const std::string& method, const std::string& message, const SourcePlace& place)
{
    throw VXError("VXValue", method, message, place.file, place.line);
}

void assertThat(bool condition, const SourcePlace& place)
{
    if (!condition)
        fail("Assert failed", std::string(place.file) + ":" + std::to_string(place.line), place);
}

} // namespace VX
