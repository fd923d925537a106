#include "conversion_parts.hpp"

#include <zu/type/list.hpp>
#include <zu/type/map.hpp>

#include <string>

namespace zu::detail {

namespace {

bool failForDouble(Conversion& conversion, std::size_t index)
{
    return conversion.fail([index] { return "two elements become one, the second being " + stepTo(index); });
}

/// The list under construction and the element to be converted next, made anew of each source element.
struct ListFill
{
    Conversion& conversion;
    const ListTypeInterface& type;
    const Scratch& list;
    Scratch& element;
    std::size_t index = 0;

    static bool append(void* context, const AnyReference& source)
    {
        auto& fill = *static_cast<ListFill*>(context);
        const std::size_t index = fill.index++;
        if ((index != 0 && !fill.element.renew(fill.conversion)) ||
            !fill.conversion.runPart(source, fill.element.reference(), [index] { return stepTo(index); }))
            return false;
        return fill.type.appendMoved(fill.list.get(), fill.element.get()) || failForDouble(fill.conversion, index);
    }
};

/// The elements of a list of fixed size, converted where they are.
struct FixedFill
{
    Conversion& conversion;
    const ListTypeInterface& type;
    const Scratch& list;
    std::size_t index = 0;

    static bool set(void* context, const AnyReference& source)
    {
        auto& fill = *static_cast<FixedFill*>(context);
        const std::size_t index = fill.index++;
        return fill.conversion.runPart(source, fill.type.element(fill.list.get(), index),
                                       [index] { return stepTo(index); });
    }
};

struct ListCopy
{
    Conversion& conversion;
    const ListTypeInterface& type;
    void* list;
    std::size_t index = 0;

    static bool append(void* context, const AnyReference& source)
    {
        auto& copy = *static_cast<ListCopy*>(context);
        const std::size_t index = copy.index++;
        return copy.type.append(copy.list, source.address()) || failForDouble(copy.conversion, index);
    }
};

bool fillFixed(Conversion& conversion, const AnyReferenceBase& source, const Scratch& list)
{
    const auto& type = as<ListTypeInterface>(list.reference());
    const std::size_t given = as<ListTypeInterface>(source).size(source.address());
    const std::size_t taken = type.size(list.get());
    if (given != taken)
        return conversion.fail([&] {
            return std::to_string(given) + " elements do not make the " + std::to_string(taken) + " of " + type.name();
        });
    FixedFill fill{conversion, type, list};
    return as<ListTypeInterface>(source).forEach(source.address(), &FixedFill::set, &fill);
}

} // namespace

bool listToList(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& from = as<ListTypeInterface>(source);
    const auto& to = as<ListTypeInterface>(target);
    const Scratch list(&to);
    if (!list)
        return failForDefault(conversion, to);
    const TypeInterface* elementType = to.elementType();
    if (to.hasFixedSize())
        return fillFixed(conversion, source, list) && list.moveTo(conversion, target);
    if (from.elementType()->info() == elementType->info()) {
        ListCopy copy{conversion, to, list.get()};
        return from.forEach(source.address(), &ListCopy::append, &copy) && list.moveTo(conversion, target);
    }
    Scratch element(elementType);
    if (!element)
        return failForDefault(conversion, *elementType);
    ListFill fill{conversion, to, list, element};
    return from.forEach(source.address(), &ListFill::append, &fill) && list.moveTo(conversion, target);
}

bool mapToMap(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& to = as<MapTypeInterface>(target);
    const Scratch map(&to);
    Scratch key(to.keyType());
    Scratch value(to.valueType());
    if (!map || !key || !value)
        return failForDefault(conversion, !map ? to : !key ? *to.keyType() : *to.valueType());
    MapFill fill{conversion, to, map, key, value};
    return as<MapTypeInterface>(source).forEach(source.address(), &MapFill::insert, &fill) &&
           map.moveTo(conversion, target);
}

} // namespace zu::detail
