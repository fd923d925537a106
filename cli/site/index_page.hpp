#pragma once

#include "site/html.hpp"
#include "site/site_package.hpp"

#include <set>
#include <string>
#include <vector>

namespace zu::cli {

/// The list of packages, with what searches and filters it where scripts run.
class IndexPage
{
public:
    /// @param link where the package stands.
    void add(const SitePackage& package, const std::string& link);

    std::size_t count() const { return m_entries.size(); }

    /// What stands above the list.
    Html header(const std::string& title) const;
    /// The list, sorted by title.
    Html content() const;

private:
    struct Entry
    {
        std::string order; ///< the title as it is sorted
        Html card;
    };

    std::vector<Entry> m_entries;
    std::set<std::string> m_languages;
    std::set<std::string> m_robots;
    std::set<std::string> m_permissions;
};

} // namespace zu::cli
