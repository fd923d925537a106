#pragma once

#include <algorithm>
#include <list>
#include <string>

namespace zupackage {

/// Whether one of `kept` is a prefix of `lang`, byte by byte.
inline bool keepsLanguage(const std::list<std::string>& kept, const std::string& lang)
{
    return std::any_of(kept.begin(), kept.end(),
                       [&lang](const std::string& prefix) { return lang.compare(0, prefix.size(), prefix) == 0; });
}

/// Erases from a map by language every entry that `kept` does not keep.
template <class LanguageMap>
void eraseOtherLanguages(LanguageMap& map, const std::list<std::string>& kept)
{
    for (auto entry = map.begin(); entry != map.end();)
        entry = keepsLanguage(kept, entry->first) ? std::next(entry) : map.erase(entry);
}

} // namespace zupackage
