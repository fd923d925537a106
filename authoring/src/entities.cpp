#include "entities.hpp"

#include "characters.hpp"
#include "limits.hpp"
#include "values.hpp"

namespace zupackage::authoring {

void Entities::declare(std::string name, std::string text)
{
    m_entities.emplace(std::move(name), Entity{std::move(text)});
}

bool Entities::expand(std::string_view name, bool inAttribute, std::string& text)
{
    const std::size_t begin = text.size();
    m_hasMarkup = false;
    open(name, {}, text);
    while (!m_open.empty() && !m_areTooLarge)
        step(inAttribute, text);
    for (const Expansion& expansion : m_open)
        expansion.entity->isOpen = false;
    m_open.clear();
    if (m_hasMarkup || m_areTooLarge)
        text.resize(begin);
    return !m_hasMarkup;
}

/// @param reference what is appended when there is nothing to open.
void Entities::open(std::string_view name, std::string_view reference, std::string& text)
{
    const auto found = m_entities.find(name);
    if (found == m_entities.end() || found->second.isOpen) {
        text += reference;
        return;
    }
    Entity& entity = found->second;
    // References to nothing count, too.
    m_expanded += entity.text.size() + 1;
    m_areTooLarge = m_areTooLarge || m_expanded > limits::k_expandedEntitiesMiB * limits::k_bytesPerMiB;
    entity.isOpen = true;
    m_open.push_back({&entity, 0});
}

void Entities::step(bool inAttribute, std::string& text)
{
    Expansion& expansion = m_open.back();
    const std::string_view source = expansion.entity->text;
    if (expansion.at == source.size()) {
        expansion.entity->isOpen = false;
        m_open.pop_back();
        return;
    }
    const std::size_t at = expansion.at;
    std::size_t end = at;
    while (end < source.size() && !isOf(StopsValue, source[end]))
        ++end;
    if (end > at) {
        text += source.substr(at, end - at);
        expansion.at = end;
        return;
    }
    const char c = source[at];
    if (c != '&') {
        m_hasMarkup = m_hasMarkup || c == '<';
        text += inAttribute && isOf(Blank, c) ? ' ' : c;
        ++expansion.at;
        return;
    }
    const Reference reference = referenceAt(at, source);
    expansion.at = reference.end;
    if (reference.kind == ReferenceKind::Entity)
        open(reference.name, source.substr(at, reference.end - at), text);
    else
        appendReference(reference, source.substr(at, reference.end - at), text);
}

} // namespace zupackage::authoring
