#pragma once

#include <zupackage/authoring/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// What a text or an attribute's value is.
enum class ValueKind
{
    None,         ///< an element that holds no text of its own
    Text,         ///< words for people, or a name that nothing else interprets
    Flag,         ///< exactly "true", "1", "false" or "0"
    LanguageCode, ///< "en", "fr_FR", "zh-Hant-TW"
    Version,      ///< "1.2", "2.0.1-beta"
    Path,         ///< a file or folder of the package, relative to its root
    Date,         ///< "2026-09-12"
    Identifier,   ///< what other systems know the thing by: compared to the byte
    Nature,       ///< how a behavior meets people: "interactive" or "solitary"
    Command,      ///< a command line
    Condition     ///< an expression over what the robot perceives
};

/// How often an element may stand in its parent.
enum class Occurrence
{
    Once,     ///< a complete manifest has exactly one
    Optional, ///< one or none
    Repeated  ///< any number
};

/// The identity of entries that their own text tells from others.
inline constexpr std::string_view k_ownText = ".";

/// An attribute that an element may carry.
struct AttributeEntry
{
    std::string_view name;    ///< without a prefix
    ValueKind kind;           ///< of its value
    bool isRequired;          ///< a complete element has it, and not empty
    std::string_view purpose; ///< what it is for, as one sentence
};

/// An element that a manifest may hold, at one place: `names` of the package and `names` of a behavior are two entries.
struct ElementEntry
{
    std::string path;           ///< names from the root on: "/package/contents/behaviorContent/names"
    std::string_view name;      ///< the last of them
    const ElementEntry* parent; ///< null for the root
    std::size_t index;          ///< its place in Vocabulary::elements()
    Occurrence occurrence;      ///< in `parent`
    ValueKind text;             ///< of the text in it, not of that in its children
    /// What tells it from its siblings of the same name: an attribute's name, k_ownText, empty for nothing.
    std::string_view identity;
    /// The reader takes every child, of whatever name and kind, for an entry.
    bool countsEveryChild;
    std::string_view purpose;                  ///< what it is for, as one sentence
    std::vector<AttributeEntry> attributes;    ///< in the order in which manifests are written
    std::vector<const ElementEntry*> children; ///< in the order in which manifests are written

    /// @return the attribute of that name; null when the element has none.
    ZUPACKAGE_AUTHORING_EXPORT const AttributeEntry* attribute(std::string_view attributeName) const;

    /// @return the child of that name; null when the element has none.
    ZUPACKAGE_AUTHORING_EXPORT const ElementEntry* child(std::string_view childName) const;
};

/// Everything that a manifest may hold: the one table behind checks, schemas, reference pages and completion.
///
/// It says what authors should write. What a reader makes of a manifest is more lenient: it takes a root of any name,
/// every child of a per-language list, elements in any order.
///
/// It never changes; any number of threads may read it.
class ZUPACKAGE_AUTHORING_EXPORT Vocabulary
{
public:
    /// The only one there is, made on the first call, for the life of the process.
    static const Vocabulary& manifest();

    /// All entries, each before its children, siblings in the order in which manifests are written.
    const std::vector<ElementEntry>& elements() const { return m_elements; }

    /// The entry of the root element, "/package"; the first of elements().
    const ElementEntry& root() const { return m_elements.front(); }

    /// @return the entry with that path; null when there is none.
    const ElementEntry* find(std::string_view path) const;

    Vocabulary(const Vocabulary&) = delete;
    Vocabulary& operator=(const Vocabulary&) = delete;

private:
    Vocabulary();

    std::vector<ElementEntry> m_elements;
};

} // namespace zu::authoring
