#pragma once

#include "edit/value_edits.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace zupackage::edit {

/// How a document is laid out, and how what is new is laid out in it.
class Layout
{
public:
    /// @param target where what is new comes from.
    Layout(const SourceDocument& document, const SourceDocument& target);

    const SourceDocument& document() const { return m_document; }

    /// By what a level of elements is indented more than the one above.
    const std::string& unit() const { return m_unit; }

    /// The blanks that a line begins with before the node; nothing when anything else does.
    std::optional<std::string> indentation(SourceNode node) const;

    /// An element of the target as it is to stand in the document: on lines of its own, the first of which is
    /// indented already, or, without an indentation, on one line.
    std::string render(SourceNode element, const std::optional<std::string>& indentation) const;

    /// A new line with that indentation; nothing without one.
    std::string newLine(const std::optional<std::string>& indentation) const;

private:
    std::string text(SourceNode node) const;

    const SourceDocument& m_document;
    const SourceDocument& m_target;
    std::string_view m_lineEnd;
    std::string m_unit;
};

/// The numbers of nodes.
using NodeSet = std::unordered_set<std::size_t>;

/// What is put beside a node and the remarks on it, with what parts the two.
/// @param noRemarks the comments that are no remarks on it, wherever they stand.
TextEdit insertionAfter(const Layout& layout, SourceNode node, const NodeSet& noRemarks, const std::string& rendered);
TextEdit insertionBefore(const Layout& layout, SourceNode node, const NodeSet& noRemarks, const std::string& rendered);

/// Takes a node away, with its line when nothing else stands there; of a loose text all but the white space around it.
TextEdit removalOf(const SourceDocument& document, SourceNode node);

/// Puts edits in order, insertions at one place as they were given.
void sort(Edits& edits);

/// What stands in the range, with the edits made, which lie in it and are in order.
std::string editedSource(const SourceDocument& document, ByteRange range, const Edits& edits);

} // namespace zupackage::edit
