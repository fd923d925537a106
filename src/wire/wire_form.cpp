#include "wire/wire_form.hpp"

#include <utility>

namespace zupackage::wire {

void store(VXValue encoding, VXValue& target)
{
    target.xAssertCompatibleType(VXValue::Type::Array);
    target = std::move(encoding);
}

void requireArray(const VXValue& value)
{
    value.xAssertType(VXValue::Type::Array);
    value.xAssertArraySize(0);
}

} // namespace zupackage::wire
