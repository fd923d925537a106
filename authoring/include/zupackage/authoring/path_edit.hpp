#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/manifest_path.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace zu::authoring {

/// Gives everything that the path leads to another text. Where a step leads to nothing, what it names is made in each
/// element that the steps before it lead to, of a section that stands there several times in the last one: with the
/// attributes, children and text that its predicates ask for, where it stands in complete manifests. A position, "*"
/// and predicates that contradict each other do not say what to make.
struct SetText
{
    ManifestPath path; ///< to elements or to attributes
    std::string text;  ///< in UTF-8
};

/// Appends an entry to its list: the last step says which, the steps before it where, and are made when they are
/// missing, as SetText does it.
struct AddEntry
{
    ManifestPath path; ///< to the list, and then the entry as its last step
    /// What stands in the entry, with paths relative to it; "." is its own text. Parts of one path are entries of their
    /// own in a list, one behind the other; elsewhere they must not contradict each other, nor the path.
    std::vector<SetText> parts;
};

/// Takes everything away that the path leads to, an element with its line when nothing else stands there.
struct Remove
{
    ManifestPath path; ///< to elements or to attributes; PathEditError::Reason::NotThere when there are none
};

/// One of the changes that edited() makes.
using PathEdit = std::variant<SetText, AddEntry, Remove>;

/// An edit cannot be made.
class ZUPACKAGE_AUTHORING_EXPORT PathEditError : public std::runtime_error
{
public:
    /// Whether there is nothing to edit, or the edit would do harm.
    enum class Reason
    {
        NotThere, ///< the path leads to nothing, and does not say what to make
        Refused   ///< the result would not be read as it says, or would be no well-formed document
    };

    /// `message` becomes what() as it stands.
    PathEditError(Reason reason, const std::string& message) : std::runtime_error(message), m_reason(reason) {}

    /// What programs go by; what() tells people more.
    Reason reason() const { return m_reason; }

private:
    Reason m_reason;
};

/// Whether edits are held against the Vocabulary.
enum class VocabularyGuard
{
    /// Edits are refused that make elements or attributes that manifests do not have, or a second one of what stands
    /// there once, that give values which are none of their kind (a flag "yes"), that leave an entry without an
    /// attribute that it needs, that give two entries the same identity, that put a text in the place of elements, or
    /// after which readers of manifests do not take from the document what was set or added.
    Enforced,
    /// Everything is made that leaves the document well-formed.
    Waived
};

/// The document with the edits made one after the other, each on what those before it made, all of them or none.
///
/// Every byte that they do not touch stays. What is made is laid out as its neighbours are: indentation, line ends,
/// quotes; a text stays a CDATA section where it was one. Text that is there already makes no difference.
///
/// @param document must be well-formed.
/// @throws PathEditError
ZUPACKAGE_AUTHORING_EXPORT SourceDocument edited(const SourceDocument& document, const std::vector<PathEdit>& edits,
                                                 VocabularyGuard guard = VocabularyGuard::Enforced);

} // namespace zu::authoring
