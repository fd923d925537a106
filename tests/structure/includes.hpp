#pragma once

#include <string>
#include <vector>

namespace zu::test {

struct Include
{
    std::string name;
    bool quoted;
};

/// The #includes of a source, in order.
std::vector<Include> includesOf(const std::string& text);

/// What an include in `file` names: the path of a file of ours, or as it stands, below "std/" when it is in no folder.
std::string targetOf(const Include& include, const std::string& file);

/// Every source and header of the project, relative to its root, sorted.
std::vector<std::string> sourcesAndHeaders();

} // namespace zu::test
