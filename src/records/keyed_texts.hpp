#pragma once

#include <list>
#include <map>
#include <string>

/// The operations that a behavior's four maps of lists share: tags, trigger sentences, loading responses, conditions.
namespace zupackage::keyed_texts {

using KeyedTexts = std::map<std::string, std::list<std::string>>;

void insert(KeyedTexts& texts, const std::string& value, const std::string& key, int position);
bool remove(KeyedTexts& texts, const std::string& value, const std::string& key);
bool update(KeyedTexts& texts, const std::string& oldValue, const std::string& newValue, const std::string& key);

} // namespace zupackage::keyed_texts
