// What is changed through a reference to a container.
#include "conversion_rules.hpp"
#include "kinds.hpp"

#include <zu/any_reference.hpp>
#include <zu/type/list.hpp>
#include <zu/type/map.hpp>

#include <stdexcept>
#include <string>

namespace zu {

using detail::Scratch;

namespace {

[[noreturn]] void throwUnfit(const char* operation, const AnyReference& target)
{
    const std::string name = target.isEmpty() ? "an empty reference" : target.type()->name();
    throw std::runtime_error(std::string(operation) + " of " + name + ": it has no such operation");
}

const ListTypeInterface* listType(const AnyReference& target)
{
    return detail::isListLike(target.kind()) ? &detail::as<ListTypeInterface>(target) : nullptr;
}

const MapTypeInterface* mapType(const AnyReference& target)
{
    return target.kind() == TypeKind::Map ? &detail::as<MapTypeInterface>(target) : nullptr;
}

/// An index that is less than `end`.
std::size_t indexIn(const char* operation, const AnyReference& list, const AnyReferenceBase& at, std::size_t end)
{
    const auto index = at.to<std::size_t>();
    if (index < end)
        return index;
    throw std::out_of_range(std::string(operation) + " of " + list.type()->name() + " at " + std::to_string(index) +
                            ": there are only " + std::to_string(list.size()));
}

} // namespace

bool AnyReference::append(const AnyArgument& element) const
{
    const ListTypeInterface* list = listType(*this);
    if (!list || list->hasFixedSize())
        throwUnfit("append()", *this);
    const Scratch added = Scratch::of(list->elementType(), element.value());
    return list->appendMoved(writableAddress(), added.get());
}

bool AnyReference::insert(const AnyArgument& at, const AnyArgument& value) const
{
    if (const MapTypeInterface* map = mapType(*this)) {
        const Scratch key = Scratch::of(map->keyType(), at.value());
        const Scratch filed = Scratch::of(map->valueType(), value.value());
        return map->insertMoved(writableAddress(), key.get(), filed.get());
    }
    const ListTypeInterface* list = listType(*this);
    if (!list)
        throwUnfit("insert()", *this);
    const std::size_t index = indexIn("insert()", *this, at.value(), size() + 1);
    const Scratch added = Scratch::of(list->elementType(), value.value());
    if (!list->insertMoved(writableAddress(), index, added.get()))
        throwUnfit("insert()", *this);
    return true;
}

bool AnyReference::erase(const AnyArgument& at) const
{
    if (const MapTypeInterface* map = mapType(*this)) {
        const std::optional<Scratch> key = Scratch::tryOf(map->keyType(), at.value());
        return key && map->erase(writableAddress(), key->get());
    }
    const ListTypeInterface* list = listType(*this);
    if (!list)
        throwUnfit("erase()", *this);
    const std::size_t index = indexIn("erase()", *this, at.value(), size());
    if (!list->erase(writableAddress(), index))
        throwUnfit("erase()", *this);
    return true;
}

void AnyReference::clear() const
{
    if (const MapTypeInterface* map = mapType(*this))
        map->clear(writableAddress());
    else if (const ListTypeInterface* list = listType(*this); !list || !list->clear(writableAddress()))
        throwUnfit("clear()", *this);
}

} // namespace zu
