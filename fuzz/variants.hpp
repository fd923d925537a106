#pragma once

#include "target.hpp"

#include <zupackage/vxvalue.hpp>

namespace fuzz {

/// A variant of any type, nested up to that many levels.
inline VX::VXValue anyVariant(Choices& choices, int levels)
{
    switch (choices.number(levels > 0 ? 9 : 5)) {
    case 0:
        return {};
    case 1:
        return VX::VXValue(choices.flag());
    case 2:
        return VX::VXValue(static_cast<int>(choices.byte()) - 128);
    case 3:
        return VX::VXValue(static_cast<float>(choices.byte()) / 3);
    case 4:
        return VX::VXValue(choices.text());
    case 5: {
        const std::string bytes = choices.text();
        return {bytes.data(), bytes.size()};
    }
    default:
        break;
    }
    VX::VXValue array;
    const int size = choices.number(20);
    array.resizeArray(size);
    for (int i = 0; i < size; ++i)
        array[i] = anyVariant(choices, levels - 1);
    return array;
}

} // namespace fuzz
