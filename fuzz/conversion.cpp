// Any value of the host framework, converted to a variant, and that to other types: each converts or throws its error.
#include "variants.hpp"

#include <zu/any_value.hpp>
#include <zu/conversion.hpp>
#include <zu/native/native_types.hpp>

#include <list>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

namespace {

using fuzz::Choices;
using zu::AnyValue;

AnyValue anyValue(Choices& choices, int levels)
{
    switch (choices.number(levels > 0 ? 11 : 6)) {
    case 0:
        return AnyValue::from(choices.flag());
    case 1:
        return AnyValue::from(static_cast<std::int8_t>(choices.byte()));
    case 2:
        return AnyValue::from(static_cast<std::uint64_t>(choices.byte()) << choices.number(63));
    case 3:
        return AnyValue::from(static_cast<double>(choices.byte()) * (choices.flag() ? 1e300 : -0.1));
    case 4:
        return AnyValue::from(choices.text());
    case 5:
        return AnyValue::from(fuzz::anyVariant(choices, 2));
    case 6:
        return {};
    case 7: {
        std::vector<AnyValue> list;
        for (int count = choices.number(5); count > 0; --count)
            list.push_back(anyValue(choices, levels - 1));
        return AnyValue::from(list);
    }
    case 8: {
        std::map<std::string, AnyValue> map;
        for (int count = choices.number(5); count > 0; --count)
            map[choices.text()] = anyValue(choices, levels - 1);
        return AnyValue::from(map);
    }
    case 9:
        return AnyValue::from(std::pair(anyValue(choices, levels - 1), choices.number(9)));
    case 10:
        return AnyValue::from(std::optional<std::string>(choices.text()));
    default:
        return AnyValue::from(anyValue(choices, levels - 1));
    }
}

template <class T>
void convert(const AnyValue& value)
{
    try {
        // What a type holds converts to that type again.
        const AnyValue converted = AnyValue::from(value.to<T>());
        fuzz::require(converted.getIf<T>() != nullptr, "a value of another type");
        static_cast<void>(converted.to<T>());
    } catch (const std::runtime_error&) {
        // It does not convert; the variant's own error is one, too.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(fuzz::textOf(data, size));
    const AnyValue value = anyValue(choices, 6);
    convert<VX::VXValue>(value);
    convert<bool>(value);
    convert<std::int16_t>(value);
    convert<std::uint64_t>(value);
    convert<double>(value);
    convert<std::string>(value);
    convert<std::vector<int>>(value);
    convert<std::list<std::string>>(value);
    convert<std::map<std::string, AnyValue>>(value);
    convert<std::tuple<AnyValue, int>>(value);
    convert<std::optional<AnyValue>>(value);
    return 0;
}
