#pragma once

#include <zupackage/authoring/vocabulary.hpp>

#include <string_view>

namespace zupackage::authoring {

/// A row of the vocabulary: an element, or, where `element` is empty, an attribute of the element above it.
struct VocabularyRow
{
    int level; ///< 0 for the root; the parent is the last row before with a level of one less
    std::string_view element;
    zu::authoring::Occurrence occurrence;
    zu::authoring::ValueKind kind;
    std::string_view identity;
    bool countsEveryChild;
    std::string_view attribute;
    bool isRequired;
    std::string_view purpose;
};

extern const VocabularyRow k_vocabularyRows[];
extern const std::size_t k_vocabularyRowCount;

} // namespace zupackage::authoring
