#pragma once

#include <zupackage/authoring/vocabulary.hpp>

#include <string_view>
#include <vector>

/// How the elements that the vocabulary knows stand in JSON: told once, for what writes, reads and describes it.
namespace zupackage::authoring {

using zu::authoring::AttributeEntry;
using zu::authoring::ElementEntry;

inline constexpr std::string_view k_formatVersionKey = "format_version";
inline constexpr int k_formatVersion = 1;

/// What an element, or all elements of an entry in their parent, are in JSON.
enum class JsonForm
{
    Text,     ///< a string: the element's text, or the only attribute that it has
    Presence, ///< true when the element is there
    Names,    ///< a list of the names of the children that are there
    Object,   ///< an object of attributes and children
    List,     ///< a list of what each element is
    Map,      ///< an object: under the first attribute of each element its text, or its second attribute
    ListMap   ///< the same with a list of them, because several elements may have the same attribute
};

/// What all elements of the entry in one parent are together: a list or a map when they may repeat.
JsonForm formOfAll(const ElementEntry& entry);

/// What one element is. A container, which holds nothing but the elements of one entry, is what these are together.
JsonForm formOf(const ElementEntry& entry);

/// The only entry that a container's children have; null for what is no container.
const ElementEntry* contentOf(const ElementEntry& entry);

/// The attribute that holds what the element says when that is not its text: of a text the only one, of what stands in
/// a map the second. Null when it is the text.
const AttributeEntry* valueAttribute(const ElementEntry& entry);

/// The place of an attribute among those of its element.
std::size_t indexOf(const ElementEntry& entry, const AttributeEntry& attribute);

} // namespace zupackage::authoring
