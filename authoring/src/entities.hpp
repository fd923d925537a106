#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// The entities that a document type declares.
class Entities
{
public:
    /// The first declaration of a name counts.
    void declare(std::string name, std::string text);
    bool isDeclared(std::string_view name) const { return m_entities.find(name) != m_entities.end(); }

    /// Appends what a reference to the entity gives, references in it resolved: nothing when there is markup in it or
    /// it is not declared. A reference in it to what is not declared, or to what it is in, is appended as it stands.
    /// @param inAttribute white space becomes spaces.
    /// @return false when there is markup in it.
    bool expand(std::string_view name, bool inAttribute, std::string& text);

    /// Whether the expansions came to more than the limit. What came after that was not made.
    bool areTooLarge() const { return m_areTooLarge; }

private:
    struct Entity
    {
        std::string text;
        bool isOpen = false;
    };
    struct Expansion
    {
        Entity* entity;
        std::size_t at;
    };

    void open(std::string_view name, std::string_view reference, std::string& text);
    void step(bool inAttribute, std::string& text);

    std::map<std::string, Entity, std::less<>> m_entities;
    std::vector<Expansion> m_open; ///< each within the one before
    std::size_t m_expanded = 0;
    bool m_areTooLarge = false;
    bool m_hasMarkup = false;
};

} // namespace zupackage::authoring
