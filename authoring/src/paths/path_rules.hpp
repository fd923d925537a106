#pragma once

#include "paths/new_element.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/vocabulary.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>

/// What edits by paths are refused for. All throw PathEditError.
namespace zupackage::authoring {

[[noreturn]] void refuse(const std::string& message);

/// Whatever the vocabulary says: texts that XML cannot carry.
void requireXmlText(std::string_view text);
void requireXmlTexts(const NewElement& element);

/// A text of an element that is there.
/// @param entry what the vocabulary says about it; null when it says nothing, and all is well then.
void requireText(zu::authoring::SourceNode element, const zu::authoring::ElementEntry* entry, std::string_view text);

/// An attribute of an element that is there.
/// @param isNew whether it does not have it yet.
void requireAttribute(zu::authoring::SourceNode element, const zu::authoring::ElementEntry* entry,
                      std::string_view attribute, std::string_view value, bool isNew);

/// What tells an element from others of its list; empty where the vocabulary has no identity for it.
/// @param entry what the vocabulary says about it.
std::string identityOf(zu::authoring::SourceNode element, const zu::authoring::ElementEntry& entry);
std::string identityOf(const NewElement& element, const zu::authoring::ElementEntry& entry);

/// That no other entry has the identity that one is to have.
/// @param others the numbers of those that are to have it, too.
void requireUnique(zu::authoring::SourceNode element, const zu::authoring::ElementEntry& entry,
                   std::string_view identity, const std::unordered_set<std::size_t>& others);

/// An element that is to be made in one that is there.
/// @param entry what the vocabulary says about the parent; null when it says nothing.
void requireElement(zu::authoring::SourceNode parent, const zu::authoring::ElementEntry* entry,
                    const NewElement& element);

/// That an element of the vocabulary can do without the attribute.
void requireDispensable(const zu::authoring::ElementEntry* entry, std::string_view attribute);

} // namespace zupackage::authoring
