#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace zu::cli {

/// Gives the pages of packages the names of their files: of the letters of what identifies a package that are safe
/// everywhere, and each name once, also where case does not count.
class PageNames
{
public:
    /// @return "org.example.hello.html"; with a number for what would have the name of an earlier page.
    std::string next(const std::string& identifier);

private:
    std::unordered_set<std::string> m_taken;
    std::unordered_map<std::string, std::size_t> m_lastNumbers; ///< by the name that they are behind
};

} // namespace zu::cli
