#include "conversion_parts.hpp"

#include <zu/type/list.hpp>
#include <zu/type/map.hpp>

namespace zu::detail {

namespace {

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
        fill.type.appendMoved(fill.list.get(), fill.element.get());
        return true;
    }
};

struct ListCopy
{
    const ListTypeInterface& type;
    void* list;

    static bool append(void* context, const AnyReference& source)
    {
        const auto& copy = *static_cast<const ListCopy*>(context);
        copy.type.append(copy.list, source.address());
        return true;
    }
};

} // namespace

bool listToList(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& from = as<ListTypeInterface>(source);
    const auto& to = as<ListTypeInterface>(target);
    const Scratch list(&to);
    if (!list)
        return failForDefault(conversion, to);
    const TypeInterface* elementType = to.elementType();
    if (from.elementType()->info() == elementType->info()) {
        ListCopy copy{to, list.get()};
        from.forEach(source.address(), &ListCopy::append, &copy);
        return list.moveTo(conversion, target);
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
