#pragma once

#include "paths/new_element.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/vocabulary.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Whether a package says what an edit has written: whoever reads manifests has the last word.
namespace zupackage::authoring {

/// A step to something that the vocabulary knows.
struct EntryStep
{
    const zu::authoring::ElementEntry* entry;
    std::string identity; ///< empty where the vocabulary has none for it
};

/// What a package is to say somewhere.
struct Statement
{
    std::vector<EntryStep> way; ///< from the root element, without it
    std::string attribute;      ///< of the element there; empty for its text
    std::string text;
};

/// That the element, which is there, has that text, or the attribute of it.
/// @return nothing to hold against a package where the vocabulary does not know it, or where the element lacks an
/// attribute that it needs.
std::vector<Statement> statementsOf(zu::authoring::SourceNode element, const std::string& attribute,
                                    const std::string& text);

/// Everything that a new element in one that is there says.
std::vector<Statement> statementsOf(zu::authoring::SourceNode parent, const NewElement& element);

/// What the package that the document describes does not say; null when it says everything.
const Statement* unread(const zu::authoring::SourceDocument& document, const std::vector<Statement>& statements);

} // namespace zupackage::authoring
