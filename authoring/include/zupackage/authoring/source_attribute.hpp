#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace zu::authoring {

class SourceAttributes;
class SourceNode;
struct SourceTree;

/// One attribute of an element, or one part of the XML declaration, as it stands in a document.
///
/// A small handle, like SourceNode: to be passed by value, and valid as long as the document or a copy of it. Of a null
/// attribute every text is empty and every range [0, 0).
class ZUPACKAGE_AUTHORING_EXPORT SourceAttribute
{
public:
    /// A null attribute.
    SourceAttribute() = default;

    /// Whether there is one.
    explicit operator bool() const { return m_tree != nullptr; }

    /// The element, or the XML declaration, that has it.
    SourceNode owner() const;

    /// The name as it stands there, with its prefix.
    std::string_view name() const;
    /// The name without its prefix: what the package library's reader goes by.
    std::string_view localName() const;
    /// What stands before the first colon of the name; empty without one.
    std::string_view prefix() const;

    /// The value in UTF-8, references resolved and white space normalised: tabs and line ends are spaces. A reference
    /// to what cannot be resolved, or that is none, stands as it is; one to a character that XML forbids is U+FFFD.
    std::string_view value() const;

    /// From the name to the closing quote.
    ByteRange range() const;
    /// Of the name, its prefix included.
    ByteRange nameRange() const;
    /// Within the quotes.
    ByteRange valueRange() const;
    /// `"` or `'`.
    char quote() const;

    /// As SourceNode::path(): `/package/@uuid`; of a part of the XML declaration `/`.
    std::string path() const;

private:
    friend class SourceAttributes;
    friend class SourceNode;
    SourceAttribute(const SourceTree* tree, std::uint32_t owner, std::uint32_t index)
        : m_tree(tree), m_owner(owner), m_index(index)
    {
    }

    const SourceTree* m_tree = nullptr;
    std::uint32_t m_owner = 0;
    std::uint32_t m_index = 0;
};

} // namespace zu::authoring
