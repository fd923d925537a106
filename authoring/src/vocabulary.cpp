#include "vocabulary_table.hpp"

#include <zupackage/authoring/vocabulary.hpp>

#include <algorithm>

namespace zu::authoring {

namespace {

template <typename Entries>
auto* named(const Entries& entries, std::string_view name)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [name](const auto& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

const AttributeEntry* ElementEntry::attribute(std::string_view attributeName) const
{
    return named(attributes, attributeName);
}

const ElementEntry* ElementEntry::child(std::string_view childName) const
{
    for (const ElementEntry* entry : children) {
        if (entry->name == childName)
            return entry;
    }
    return nullptr;
}

Vocabulary::Vocabulary()
{
    using zupackage::authoring::k_vocabularyRowCount;
    using zupackage::authoring::k_vocabularyRows;
    using zupackage::authoring::VocabularyRow;

    // Entries point at each other, so that none may move once it is there.
    m_elements.reserve(k_vocabularyRowCount);
    std::vector<ElementEntry*> open;
    for (std::size_t i = 0; i < k_vocabularyRowCount; ++i) {
        const VocabularyRow& row = k_vocabularyRows[i];
        if (row.element.empty()) {
            open.back()->attributes.push_back({row.attribute, row.kind, row.isRequired, row.purpose});
            continue;
        }
        open.resize(static_cast<std::size_t>(row.level));
        ElementEntry* const parent = open.empty() ? nullptr : open.back();
        m_elements.push_back({(parent ? parent->path : std::string()) + "/" + std::string(row.element),
                              row.element,
                              parent,
                              m_elements.size(),
                              row.occurrence,
                              row.kind,
                              row.identity,
                              row.countsEveryChild,
                              row.purpose,
                              {},
                              {}});
        open.push_back(&m_elements.back());
        if (parent)
            parent->children.push_back(open.back());
    }
}

const Vocabulary& Vocabulary::manifest()
{
    // Never destroyed: other objects with static storage read it while the process ends.
    static const Vocabulary& vocabulary = *new Vocabulary;
    return vocabulary;
}

const ElementEntry* Vocabulary::find(std::string_view path) const
{
    for (const ElementEntry& entry : m_elements) {
        if (entry.path == path)
            return &entry;
    }
    return nullptr;
}

} // namespace zu::authoring
