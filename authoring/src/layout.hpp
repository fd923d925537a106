#pragma once

#include <zupackage/authoring/source_document.hpp>

#include <optional>
#include <string>

/// How a document is laid out.
namespace zupackage::authoring {

/// The blanks that stand before a node in its line; nothing when anything else does.
std::optional<std::string> indentationOf(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode node);

/// What elements of the document are indented by beside their parents; two blanks when that cannot be told.
std::string indentationStep(const zu::authoring::SourceDocument& document);

/// Whether the node is a text that is written as white space alone.
bool isBlankText(const zu::authoring::SourceDocument& document, zu::authoring::SourceNode node);

} // namespace zupackage::authoring
