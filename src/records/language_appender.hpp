#pragma once

#include <list>
#include <string>
#include <unordered_set>
#include <utility>

namespace zu {

/// Appends to a language list what is not in it yet. Knows the list's content, because a hostile document has as many
/// languages as bytes, and looking each up in the list would take hours.
class LanguageAppender
{
public:
    explicit LanguageAppender(std::list<std::string>& languages)
        : m_languages(languages), m_known(languages.begin(), languages.end())
    {
    }

    void append(std::string lang)
    {
        if (m_known.insert(lang).second)
            m_languages.push_back(std::move(lang));
    }

private:
    std::list<std::string>& m_languages;
    std::unordered_set<std::string> m_known;
};

} // namespace zu
