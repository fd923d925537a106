#pragma once

#include "site/index_page.hpp"
#include "site/site_package.hpp"

#include <memory>
#include <string>

namespace zu::cli {

/// What stands for a package in a site; it is made beside those of others.
struct SiteArticle
{
    std::string failure; ///< a clause, when it could not be read or checked, or is read as no package; else empty
    ExitCode failureExitCode = k_inputFailed;
    bool isShown = true; ///< not when there was nothing to read, or no settings for it
    std::string identifier;
    std::string html; ///< the page, or, for a site of a single file, the article in it
    IndexEntry entry;
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
    SiteArticle articleOf(const SitePackage& package, std::size_t number) const;
    /// Adds one that is shown.
    /// @throws SiteError
    virtual void add(SiteArticle article, std::size_t number) = 0;
    /// Writes what was made, which nobody sees before that.
    /// @throws SiteError
    virtual void finish() = 0;

private:
    virtual std::string htmlOf(const SitePackage& package, std::size_t number) const = 0;
};

/// A folder with a list of the packages, a page for each and a style sheet.
/// @throws SiteError when there are files of others in the folder, or it cannot be written.
std::unique_ptr<SiteWriter> folderSiteWriter(const std::string& path, const std::string& title);

/// One file that holds everything; "-" is standard output.
std::unique_ptr<SiteWriter> singleFileSiteWriter(const std::string& path, const std::string& title);

} // namespace zu::cli
