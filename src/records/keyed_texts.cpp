#include "records/keyed_texts.hpp"

#include <algorithm>
#include <iterator>

namespace zupackage::keyed_texts {

void insert(KeyedTexts& texts, const std::string& value, const std::string& key, int position)
{
    std::list<std::string>& list = texts[key];
    const bool namesAnElement = position >= 0 && static_cast<std::size_t>(position) < list.size();
    list.insert(namesAnElement ? std::next(list.begin(), position) : list.end(), value);
}

bool remove(KeyedTexts& texts, const std::string& value, const std::string& key)
{
    const auto entry = texts.find(key);
    if (entry == texts.end())
        return false;
    const auto found = std::find(entry->second.begin(), entry->second.end(), value);
    if (found == entry->second.end())
        return false;
    entry->second.erase(found);
    return true;
}

bool update(KeyedTexts& texts, const std::string& oldValue, const std::string& newValue, const std::string& key)
{
    const auto entry = texts.find(key);
    if (entry == texts.end())
        return false;
    const auto found = std::find(entry->second.begin(), entry->second.end(), oldValue);
    if (found == entry->second.end())
        return false;
    *found = newValue;
    return true;
}

} // namespace zupackage::keyed_texts
