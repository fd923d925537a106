#pragma once

#include "conversion_rules.hpp"
#include "kinds.hpp"

#include <zu/type/map.hpp>

#include <cstddef>
#include <string>

namespace zu::detail {

bool failForDefault(Conversion& conversion, const TypeInterface& type);

/// What a key that may be held by dynamics is in the end.
AnyReference unwrapped(AnyReference key);

/// The steps of the path to an element, to the value of an entry.
std::string stepTo(std::size_t index);
std::string stepTo(const AnyReference& key, std::size_t index);

/// The map under construction and the entry to be converted next.
struct MapFill
{
    Conversion& conversion;
    const MapTypeInterface& type;
    const Scratch& map;
    Scratch& key;
    Scratch& value;
    std::size_t index = 0;

    static bool insert(void* context, const AnyReference& sourceKey, const AnyReference& sourceValue)
    {
        auto& fill = *static_cast<MapFill*>(context);
        const std::size_t index = fill.index++;
        const auto step = [&] { return stepTo(sourceKey, index); };
        if (index != 0 && (!fill.key.renew(fill.conversion) || !fill.value.renew(fill.conversion)))
            return false;
        if (!fill.conversion.runPart(sourceKey, fill.key.reference(), [&step] { return step() + "(key)"; }) ||
            !fill.conversion.runPart(sourceValue, fill.value.reference(), step))
            return false;
        return fill.type.insertMoved(fill.map.get(), fill.key.get(), fill.value.get()) ||
               fill.conversion.fail([&] { return "two keys become one, the second being " + step(); });
    }
};

} // namespace zu::detail
