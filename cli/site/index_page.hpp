#pragma once

#include "site/html.hpp"
#include "site/site_package.hpp"

#include <set>
#include <string>
#include <vector>

namespace zu::cli {

/// A package in the list of packages.
struct IndexEntry
{
    /// May be called on several threads at once.
    static IndexEntry of(const SitePackage& package);

    std::string order; ///< by which the list is sorted: the title, without regard to case
    Html beforeLink;   ///< its card up to the address of its page
    Html afterLink;
    std::set<std::string> languages;
    std::set<std::string> robots;
    std::set<std::string> permissions;
};

/// The list of packages, with what searches and filters it where scripts run.
class IndexPage
{
public:
    /// @param link where the package stands.
    void add(IndexEntry entry, const std::string& link);

    std::size_t count() const { return m_cards.size(); }

    /// What stands above the list.
    Html header(const std::string& title) const;
    /// The list, sorted by title.
    Html content() const;

private:
    struct Card
    {
        std::string order;
        Html html;
    };

    std::vector<Card> m_cards;
    std::set<std::string> m_languages;
    std::set<std::string> m_robots;
    std::set<std::string> m_permissions;
};

} // namespace zu::cli
