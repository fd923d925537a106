#pragma once

#include "site/site_package.hpp"

#include <memory>
#include <string>

namespace zu::cli {

/// A package with its article, which was made beside the others.
struct SiteArticle
{
    SitePackage package;
    std::string html; ///< the page, or, for a site of a single file, the article in it
};

/// Puts the packages of a site together, in the order in which they come.
class SiteWriter
{
public:
    SiteWriter() = default;
    virtual ~SiteWriter() = default;
    SiteWriter(const SiteWriter&) = delete;
    SiteWriter& operator=(const SiteWriter&) = delete;

    /// Makes what stands for the package with that number. May be called on several threads at once.
    virtual SiteArticle articleOf(SitePackage package, std::size_t number) const = 0;
    /// @throws SiteError
    virtual void add(const SiteArticle& article, std::size_t number) = 0;
    /// Writes what was made, which nobody sees before that.
    /// @throws SiteError
    virtual void finish() = 0;
};

/// A folder with a list of the packages, a page for each and a style sheet.
/// @throws SiteError when there are files of others in the folder, or it cannot be written.
std::unique_ptr<SiteWriter> folderSiteWriter(const std::string& path, const std::string& title);

/// One file that holds everything; "-" is standard output.
std::unique_ptr<SiteWriter> singleFileSiteWriter(const std::string& path, const std::string& title);

} // namespace zu::cli
