#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// A text is no path.
class ZUPACKAGE_AUTHORING_EXPORT PathSyntaxError : public std::runtime_error
{
public:
    /// `message` becomes what() as it stands; the column is not added to it.
    PathSyntaxError(const std::string& message, std::size_t column) : std::runtime_error(message), m_column(column) {}

    /// Where in the path, in characters from 1.
    std::size_t column() const { return m_column; }

private:
    std::size_t m_column;
};

/// A condition on the elements of a step, which stands in brackets.
struct PathPredicate
{
    /// What a predicate asks about.
    enum class Kind
    {
        Position,  ///< `[2]`: the second of those that meet the conditions before, in each parent
        Attribute, ///< ``[@lang='fr']``
        Child,     ///< ``[model='x']``: a child of that name has that text
        OwnText    ///< ``[.='fr']``
    };

    Kind kind;                ///< tells which of the others count
    std::string name;         ///< of the attribute or the child; else empty
    std::string value;        ///< the whole text that is asked for; empty for a position
    std::size_t position = 0; ///< counted from 1; 0 for the other kinds
};

/// One step of a path, from elements to elements in them.
struct PathStep
{
    std::string text;                      ///< as it was written
    std::string name;                      ///< of the elements, with their prefix; "*" for all
    std::vector<PathPredicate> predicates; ///< in their order; elements have to meet all of them
};

/// The way to elements or to attributes of a manifest, in a part of the XPath notation:
///
///     @version                                       an attribute of the root element
///     names/name[@lang='fr']                         elements, relative to the root element
///     contents/behaviorContent[@path='stories']/nature
///     contents/*/@path                               an attribute of all of them
///     supportedLanguages/language[.="fr"]
///     services/service[2]/@autorun
///     /package/names/name[2]/@lang                   from the root element itself on, as findings print it
///     .                                              the root element
///
/// Texts stand in either quote. White space may stand in brackets. A path of elements may name any number of them.
class ZUPACKAGE_AUTHORING_EXPORT ManifestPath
{
public:
    /// @throws PathSyntaxError
    explicit ManifestPath(std::string_view text);

    /// The path as it was written.
    const std::string& text() const { return m_text; }

    /// Whether the first step is about the root element itself.
    bool isAbsolute() const { return m_isAbsolute; }

    /// The steps to the elements; empty for the root element when the path is not absolute.
    const std::vector<PathStep>& steps() const { return m_steps; }

    /// The name of the attribute that the path leads to, with its prefix; empty when it leads to elements.
    const std::string& attribute() const { return m_attribute; }

private:
    std::string m_text;
    bool m_isAbsolute = false;
    std::vector<PathStep> m_steps;
    std::string m_attribute;
};

/// What a path leads to in a document, which has to stay.
struct PathTarget
{
    SourceNode element;        ///< or the owner of the attribute
    SourceAttribute attribute; ///< null when the path leads to elements

    /// The value of the attribute, or all text in the element, as readers of manifests take it.
    ZUPACKAGE_AUTHORING_EXPORT std::string text() const;
};

/// What the path leads to, in the order of the document; empty when it leads to nothing.
ZUPACKAGE_AUTHORING_EXPORT std::vector<PathTarget> select(const SourceDocument& document, const ManifestPath& path);

/// A path that leads to something, as near as can be to one that leads to nothing: along the same steps as far as there
/// is anything, then to the most similar of what is there. Entries of lists are named by what tells them from each
/// other, such as their language. Empty for a document without elements.
ZUPACKAGE_AUTHORING_EXPORT std::string nearestPath(const SourceDocument& document, const ManifestPath& path);

} // namespace zu::authoring
