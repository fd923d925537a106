#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Entries with unique keys. An entry is a pair: kind Tuple, `_element(0)` the key (for reading only), `_element(1)`
/// the value.
class ZU_EXPORT MapTypeInterface : public TypeInterface
{
public:
    /// Given each entry in turn, in the map's order; false ends the walk.
    using Visit = bool (*)(void* context, const AnyReference& key, const AnyReference& value);

    ~MapTypeInterface() override;

    /// The type of the keys that find(), insertMoved() and erase() take; never null.
    virtual const TypeInterface* keyType() const = 0;

    /// The type of the values that insertMoved() takes; never null.
    virtual const TypeInterface* valueType() const = 0;

    /// The number of the entries; 0 for an empty map.
    virtual std::size_t size(const void* map) const = 0;

    /// Iterators over entries, in the map's order; invalidated with the container's own ones.
    virtual AnyIterator begin(void* map) const = 0;

    /// The position behind the last entry; equal to begin() when the map is empty.
    virtual AnyIterator end(void* map) const = 0;

    /// The value filed under `key`, a value of keyType(); an empty reference when there is none.
    virtual AnyReference find(void* map, const void* key) const = 0;

    /// Walks the entries without making iterators; they are for reading only.
    /// @return false when `visit` ended the walk.
    virtual bool forEach(const void* map, Visit visit, void* context) const = 0;

    /// Files `value` under `key`; both may be left moved from.
    /// @return false, and nothing is done, when the key is there already.
    virtual bool insertMoved(void* map, void* key, void* value) const = 0;

    /// Removes the entry of `key`, a value of keyType().
    /// @return false when there is none.
    virtual bool erase(void* map, const void* key) const = 0;

    /// Removes all entries; references to them and iterators become invalid.
    virtual void clear(void* map) const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit MapTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Map, wordSize)
    {
    }
};

} // namespace zu
