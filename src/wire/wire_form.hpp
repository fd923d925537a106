#pragma once

#include <zupackage/vxvalue.hpp>

#include <iterator>
#include <list>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// The encodings that the records' wire forms are made of. Other programs read them by position, so that neither order nor
/// shape may change.
namespace zu::wire_form {

using VX::VXValue;

VXValue encoded(const std::string& text);
VXValue encoded(bool flag);
VXValue encoded(const char* text) = delete; // which would be the flag
/// One String for each text.
VXValue encoded(const std::list<std::string>& texts);

/// An Array of the values.
template <std::size_t count>
VXValue arrayOf(VXValue (&&values)[count])
{
    return VXValue::fromElements({std::make_move_iterator(values), std::make_move_iterator(values + count)});
}

/// A pair: an Array of the key and the value.
inline VXValue pairOf(VXValue key, VXValue value) { return arrayOf({std::move(key), std::move(value)}); }

/// An Array with one element for each of `list`, made by `encode`.
template <class List, class Encode>
VXValue arrayFrom(const List& list, Encode encode)
{
    std::vector<VXValue> elements;
    elements.reserve(list.size());
    for (const auto& element : list)
        elements.push_back(encode(element));
    return VXValue::fromElements(std::move(elements));
}

/// An Array of pairs in key order.
template <class Value>
VXValue encoded(const std::map<std::string, Value>& map)
{
    return arrayFrom(map, [](const auto& entry) { return pairOf(entry.first, encoded(entry.second)); });
}

/// Puts an encoding where a writer was asked to put it; throws VXError when that holds another type than an Array.
void store(VXValue encoding, VXValue& target);

/// Element 1 of the pair at `index`.
const VXValue& pairValue(const VXValue& pairs, int index);

/// A decoded value: of a String (or a Binary, which becomes one), a flag, or an Array of what the type consists of. What
/// is of another type throws VXError.
void decode(const VXValue& value, std::string& text);
void decode(const VXValue& value, bool& flag);
void decode(const VXValue& value, std::list<std::string>& texts);

/// Throws VXError unless the value is an Array; not even a Float passes here.
void requireArray(const VXValue& value);

/// Decodes each element of an Array into `list`, by `decodeElement(element)`.
template <class List, class Decode>
void decodeEach(const VXValue& value, List& list, Decode decodeElement)
{
    requireArray(value);
    list.clear();
    for (int i = 0; i < value.size(); ++i)
        list.push_back(decodeElement(value[i]));
}

/// Of a repeated key the later value stays.
template <class Value>
void decode(const VXValue& value, std::map<std::string, Value>& map)
{
    requireArray(value);
    map.clear();
    for (int i = 0; i < value.size(); ++i) {
        std::string key;
        decode(value[i][0], key);
        decode(value[i][1], map[key]);
    }
}

} // namespace zu::wire_form
