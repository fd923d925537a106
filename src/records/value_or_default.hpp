#pragma once

#include <map>
#include <string>

namespace zupackage {

/// A copy of what stands under exactly `key`; a default value when nothing does.
template <class Value>
Value valueOrDefault(const std::map<std::string, Value>& map, const std::string& key)
{
    const auto found = map.find(key);
    return found == map.end() ? Value() : found->second;
}

} // namespace zupackage
