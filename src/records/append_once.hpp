#pragma once

#include <algorithm>
#include <list>
#include <string>
#include <unordered_set>
#include <utility>

namespace zupackage {

inline bool contains(const std::list<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// Appends a text that is not in the list yet.
/// @return false, and nothing changes, when it is.
inline bool appendOnce(std::list<std::string>& texts, const std::string& text)
{
    if (contains(texts, text))
        return false;
    texts.push_back(text);
    return true;
}

/// The same for many texts. Knows the list's content, because a hostile document has as many languages as bytes, and
/// looking each up in the list would take hours.
class OnceAppender
{
public:
    explicit OnceAppender(std::list<std::string>& texts) : m_texts(texts), m_known(texts.begin(), texts.end()) {}

    void append(std::string text)
    {
        if (m_known.insert(text).second)
            m_texts.push_back(std::move(text));
    }

private:
    std::list<std::string>& m_texts;
    std::unordered_set<std::string> m_known;
};

} // namespace zupackage
