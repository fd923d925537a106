#pragma once

#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"
#include "variant/vxarrays.hpp"

#include <list>
#include <map>
#include <string>
#include <vector>

/// The wire form of the records. Other programs read it by position, so that neither order nor shape may change; both
/// are those of the records' tables of fields.
namespace zupackage::wire {

using VX::VXValue;

/// @name Encodings of what a field can be
///
/// A text is a String and a flag a Bool. A list is an Array, a map an Array of pairs in key order. A record with a
/// handle is an Array of pairs of a field's key and its value, one of the small records an Array of its fields' values.
/// @{
inline VXValue encoded(const std::string& text) { return VXValue(text); }
inline VXValue encoded(bool flag) { return VXValue(flag); }
VXValue encoded(const char* text) = delete; // which would be the flag
template <class Element>
VXValue encoded(const std::list<Element>& list);
template <class Value>
VXValue encoded(const std::map<std::string, Value>& map);
template <class Record>
VXValue encoded(const Record& record);
/// @}

/// @name The same, decoded
///
/// What is of another type throws VXError; a Binary becomes a text. Of a repeated key in a map the later value stays.
/// @{
inline void decode(const VXValue& value, std::string& text) { text = static_cast<const std::string&>(value); }
inline void decode(const VXValue& value, bool& flag) { flag = static_cast<bool>(value); }
template <class Element>
void decode(const VXValue& value, std::list<Element>& list);
template <class Value>
void decode(const VXValue& value, std::map<std::string, Value>& map);
/// Each record with a handle has a shape of its own to check first.
void decode(const VXValue& value, zu::BehaviorInfoPrivate& record);
void decode(const VXValue& value, zu::DialogInfoPrivate& record);
void decode(const VXValue& value, zu::LanguageInfoPrivate& record);
void decode(const VXValue& value, zu::PackageInfoPrivate& record);
template <class Record>
void decode(const VXValue& value, Record& record);
/// @}

/// A record as an Array of pairs, one for each of its fields.
template <class Record>
VXValue encodedPairs(const Record& record)
{
    const auto pair = [&record](const auto& field) {
        return VX::pairOf(field.key, field.isReserved ? VXValue() : encoded(record.*field.pointer));
    };
    return std::apply([&pair](const auto&... field) { return VX::arrayOf({pair(field)...}); }, k_fields<Record>);
}

/// Decodes the first `count` fields of a record from the values of as many pairs, by position.
template <class Record>
void decodePairs(const VXValue& pairs, int count, Record& record)
{
    int index = 0;
    const auto decodeNext = [&](const auto& field) {
        if (index < count)
            decode(pairs[index][1], record.*field.pointer);
        ++index;
    };
    std::apply([&decodeNext](const auto&... field) { (decodeNext(field), ...); }, k_fields<Record>);
}

/// Puts an encoding where a writer was asked to put it; throws VXError when that holds another type than an Array.
void store(VXValue encoding, VXValue& target);

/// Throws VXError unless the value is an Array; not even a Float passes here.
void requireArray(const VXValue& value);

/// An Array with one element for each of `container`, made by `encode`.
template <class Container, class Encode>
VXValue arrayFrom(const Container& container, Encode encode)
{
    std::vector<VXValue> elements;
    elements.reserve(container.size());
    for (const auto& element : container)
        elements.push_back(encode(element));
    return VXValue::fromElements(std::move(elements));
}

template <class Element>
VXValue encoded(const std::list<Element>& list)
{
    return arrayFrom(list, [](const Element& element) { return encoded(element); });
}

template <class Value>
VXValue encoded(const std::map<std::string, Value>& map)
{
    return arrayFrom(map, [](const auto& entry) { return VX::pairOf(entry.first, encoded(entry.second)); });
}

/// Whether a record has a handle, which alone makes it from a variant.
template <class Record>
inline constexpr bool k_isHandle = std::is_constructible_v<Record, const VXValue&>;

template <class Record>
VXValue encoded(const Record& record)
{
    if constexpr (k_isHandle<Record>)
        return encodedPairs(zu::PrivateRecord::of(record));
    else
        return std::apply([&record](const auto&... field) { return VX::arrayOf({encoded(record.*field.pointer)...}); },
                          k_fields<Record>);
}

template <class Element>
void decode(const VXValue& value, std::list<Element>& list)
{
    requireArray(value);
    list.clear();
    for (int i = 0; i < value.size(); ++i)
        decode(value[i], list.emplace_back());
}

template <class Value>
void decode(const VXValue& value, std::map<std::string, Value>& map)
{
    requireArray(value);
    map.clear();
    for (int i = 0; i < value.size(); ++i) {
        const VXValue& pair = value[i];
        const std::string& key = pair[0];
        // They come in order.
        const auto entry = map.try_emplace(map.end(), key);
        decode(pair[1], entry->second);
    }
}

template <class Record>
void decode(const VXValue& value, Record& record)
{
    if constexpr (k_isHandle<Record>) {
        decode(value, zu::PrivateRecord::of(record));
    } else {
        int index = 0;
        std::apply([&](const auto&... field) { (decode(value[index++], record.*field.pointer), ...); },
                   k_fields<Record>);
    }
}

} // namespace zupackage::wire
