#pragma once

#include "white_space.hpp"

#include <zupackage/authoring/source_node.hpp>
#include <zupackage/authoring/vocabulary.hpp>

#include <string>
#include <string_view>

/// What the reader takes from the nodes of a document. It takes the white space in values as it stands, which strict
/// parsers do not. All of it may be asked of null nodes, too.
namespace zupackage::edit {

using zu::authoring::ElementEntry;
using zu::authoring::NodeKind;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceNode;

using authoring::isBlank;

/// Whether a node is text: comments and instructions have a value that is none.
bool isTextual(NodeKind kind);

/// Whether the reader takes a node in a list for an entry: all but white space is.
bool counts(SourceNode node);

/// The text of an element; empty of anything else.
std::string readText(SourceNode node);

/// The text of an element that a writer has written, white space alone included: that the reader drops it does not mean
/// that the package lacks it.
std::string writtenText(SourceNode node);

using TextOf = std::string (*)(SourceNode);

/// The attribute of that name without a prefix; null when there is none.
SourceAttribute plainAttribute(SourceNode node, std::string_view name);

/// What an attribute says; empty for a null one.
std::string readValue(SourceAttribute attribute);

/// What the attribute of that name without a prefix says; empty when there is none.
std::string readAttribute(SourceNode node, std::string_view name);

/// What the reader makes of the elements of an entry that stand in one place.
enum class Keeping
{
    Section,     ///< they are one, with the children of all
    LastOne,     ///< the last one is the value
    Presence,    ///< that one is there is the value
    FirstOfKey,  ///< for each key the first one
    LastOfKey,   ///< for each key the last one
    Codes,       ///< a list in which each text stands once, where it stands first
    TextsOfKeys, ///< for each key a list of texts
    List         ///< all of them, in their order
};

Keeping keepingOf(const ElementEntry& entry);

/// Whether its children say by their names alone what is in it: a list in which each name stands once.
bool isListOfNames(const ElementEntry& entry);

/// The attribute that is the key of an entry that has one; k_ownText when that is its text.
std::string_view keyName(const ElementEntry& entry);

/// Whether a writer writes it: it leaves out what has no text, and of what needs all its attributes, what lacks one.
bool isWritten(SourceNode node, const ElementEntry& entry, TextOf textOf);

} // namespace zupackage::edit
