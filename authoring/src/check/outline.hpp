#pragma once

#include "edit/reading.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/vocabulary.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::check {

using zu::authoring::ElementEntry;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;

/// That of the elements that many rules are about.
inline constexpr std::string_view k_behaviorPath = "/package/contents/behaviorContent";

/// What the vocabulary says about the elements of a document. The root counts as the vocabulary's, whatever its name.
/// An element with a prefix is unknown, and so is all that stands in an unknown one.
///
/// Refers to the document, which has to stay.
class Outline
{
public:
    explicit Outline(const SourceDocument& document);

    const SourceDocument& document() const { return m_document; }

    /// @return what the vocabulary says about a node; null when it says nothing.
    const ElementEntry* entry(SourceNode node) const { return m_entries[node.index()]; }

    /// The elements that the vocabulary knows, in the order of the document.
    const std::vector<SourceNode>& elements() const { return m_elements; }

    /// Those of them that belong to the entry with that path, which must be one of the vocabulary.
    const std::vector<SourceNode>& elements(std::string_view path) const;

private:
    const SourceDocument& m_document;
    std::vector<const ElementEntry*> m_entries; ///< by the number of the node
    std::vector<SourceNode> m_elements;
    std::vector<std::vector<SourceNode>> m_elementsOf; ///< by the index of the entry
};

using edit::plainAttribute;

/// What the attribute holds, white space normalised; empty when there is none.
std::string_view plainValue(SourceNode element, std::string_view name);

/// The elements in a node that have that name, without a prefix.
std::vector<SourceNode> childrenNamed(SourceNode node, std::string_view name);

/// Whether any of the nodes has an element in it, whatever it is called.
bool hasElements(const std::vector<SourceNode>& containers);

} // namespace zupackage::check
