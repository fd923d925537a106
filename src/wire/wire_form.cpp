#include "wire/wire_form.hpp"

#include <utility>

namespace zu::wire_form {

VXValue encoded(const std::string& text) { return VXValue(text); }

VXValue encoded(bool flag) { return VXValue(flag); }

VXValue encoded(const std::list<std::string>& texts)
{
    return arrayFrom(texts, [](const std::string& text) { return VXValue(text); });
}

void store(VXValue encoding, VXValue& target)
{
    target.xAssertCompatibleType(VXValue::Type::Array);
    target = std::move(encoding);
}

const VXValue& pairValue(const VXValue& pairs, int index) { return pairs[index][1]; }

void decode(const VXValue& value, std::string& text) { text = static_cast<const std::string&>(value); }

void decode(const VXValue& value, bool& flag) { flag = static_cast<bool>(value); }

void decode(const VXValue& value, std::list<std::string>& texts)
{
    decodeEach(value, texts, [](const VXValue& element) { return static_cast<const std::string&>(element); });
}

void requireArray(const VXValue& value)
{
    value.xAssertType(VXValue::Type::Array);
    value.xAssertArraySize(0);
}

} // namespace zu::wire_form
