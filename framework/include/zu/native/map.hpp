#pragma once

#include <zu/native/native.hpp>
#include <zu/native/position.hpp>
#include <zu/type/map.hpp>

#include <map>
#include <unordered_map>
#include <utility>

namespace zu {

namespace detail {

template <class Map>
class NativeMap final : public Native<Map, MapTypeInterface>
{
    using Key = typename Map::key_type;
    using Value = typename Map::mapped_type;

public:
    const TypeInterface* keyType() const override { return typeOf<Key>(); }
    const TypeInterface* valueType() const override { return typeOf<Value>(); }
    std::size_t size(const void* map) const override { return this->object(map).size(); }
    AnyIterator begin(void* map) const override { return beginOf(this->object(map)); }
    AnyIterator end(void* map) const override { return endOf(this->object(map)); }

    AnyReference find(void* map, const void* key) const override
    {
        Map& entries = this->object(map);
        const auto found = entries.find(*static_cast<const Key*>(key));
        return found == entries.end() ? AnyReference() : AnyReference::from(found->second);
    }

    bool forEach(const void* map, MapTypeInterface::Visit visit, void* context) const override
    {
        for (const auto& [key, value] : this->object(map)) {
            if (!visit(context, AnyReference::from(key), AnyReference::from(value)))
                return false;
        }
        return true;
    }

    bool insertMoved(void* map, void* key, void* value) const override
    {
        return this->object(map)
            .try_emplace(std::move(*static_cast<Key*>(key)), std::move(*static_cast<Value*>(value)))
            .second;
    }
    bool erase(void* map, const void* key) const override
    {
        return this->object(map).erase(*static_cast<const Key*>(key)) != 0;
    }
    void clear(void* map) const override { this->object(map).clear(); }
};

} // namespace detail

template <class K, class V, class Compare, class Allocator>
struct NativeType<std::map<K, V, Compare, Allocator>>
    : detail::MadeAs<detail::NativeMap<std::map<K, V, Compare, Allocator>>>
{
};

template <class K, class V, class Hash, class Equal, class Allocator>
struct NativeType<std::unordered_map<K, V, Hash, Equal, Allocator>>
    : detail::MadeAs<detail::NativeMap<std::unordered_map<K, V, Hash, Equal, Allocator>>>
{
};

} // namespace zu
