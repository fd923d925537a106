#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zu::cli {

/// Why a site could not be written.
class SiteError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A folder of files that takes its place as a whole: they stand in a folder beside it until publish(), so that nobody
/// ever sees half of them, and nothing is changed when something goes wrong.
///
/// A folder that is there must be empty or hold the files of an earlier site, and nothing else: which these are stands
/// in its file ".zupackage-site". Files of others are never touched. The new one takes over its mode and, where this
/// process may set them, its owner and group; where not, the new group may what others may. While it is written it is
/// open to the writer alone.
class SiteFolder
{
public:
    /// Makes nothing yet.
    /// @throws SiteError for a folder with files of others.
    explicit SiteFolder(const std::string& path);
    /// Leaves everything as it was unless publish() has been called.
    ~SiteFolder();
    SiteFolder(const SiteFolder&) = delete;
    SiteFolder& operator=(const SiteFolder&) = delete;

    /// The first one makes the folder beside the other, and those that they lie in.
    /// @param name relative to the folder, of letters that are safe in paths.
    /// @throws SiteError
    void add(const std::string& name, std::string_view content);

    /// Puts the files in the place of those of the earlier site.
    /// @throws SiteError, and the earlier site is as it was.
    void publish();

private:
    void makeDraft();

    std::filesystem::path m_path;
    std::filesystem::path m_draft;      ///< empty until there is one
    std::filesystem::path m_lastFolder; ///< in which a file was made
    std::vector<std::string> m_names;
};

} // namespace zu::cli
