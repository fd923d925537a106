// What the library makes known to the host framework's type system when it is loaded.

#include <zupackage/vxvalue.hpp>

#include <zu/registry.hpp>

namespace VX {

namespace {

bool registerVariant()
{
    static const auto& type = *new VXValueType;
    return zu::registerType(zu::TypeInfo::of<VXValue>(), &type);
}

[[maybe_unused]] const bool g_variantRegistered = registerVariant();

} // namespace

} // namespace VX
