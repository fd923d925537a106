#include "site/site_folder.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace zu::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* k_listName = ".zupackage-site";

std::set<std::string> listedFiles(const fs::path& folder)
{
    std::set<std::string> names;
    std::ifstream list(folder / k_listName);
    for (std::string name; std::getline(list, name);)
        names.insert(name);
    if (!names.empty())
        names.insert(k_listName);
    return names;
}

/// The first file in the folder that no site has put there; empty when there is none.
std::string foreignFile(const fs::path& folder)
{
    const std::set<std::string> ours = listedFiles(folder);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const bool isFolder = entry.is_directory() && !entry.is_symlink();
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        // An empty folder of others goes unnoticed otherwise.
        if (isFolder ? fs::is_empty(entry.path()) : ours.count(name) == 0)
            return name;
    }
    return {};
}

/// A folder beside the other one, which a rename moves into its place.
fs::path draftOf(const fs::path& path, const char* purpose)
{
    return path.parent_path() / ("." + path.filename().string() + "." + purpose + "-" + std::to_string(getpid()));
}

/// Gives a folder the mode of another one and, where that is allowed, its owner and group.
void takeOverAccess(const fs::path& folder, const fs::path& other)
{
    struct stat present = {};
    if (stat(other.c_str(), &present) != 0)
        throw fs::filesystem_error("stat", std::error_code(errno, std::generic_category()));
    const bool hasGroup = chown(folder.c_str(), present.st_uid, present.st_gid) == 0 ||
                          chown(folder.c_str(), static_cast<uid_t>(-1), present.st_gid) == 0;
    mode_t mode = present.st_mode & (S_ISVTX | S_ISGID | S_IRWXU | S_IRWXG | S_IRWXO);
    // The writer's group is no more than others were.
    if (!hasGroup)
        mode = (mode & (S_ISVTX | S_IRWXU | S_IRWXO)) | (mode & (mode & S_IRWXO) << 3);
    fs::permissions(folder, static_cast<fs::perms>(mode));
}

} // namespace

SiteFolder::SiteFolder(const std::string& path)
{
    try {
        // Of a symbolic link the folder that it leads to is replaced.
        m_path = fs::weakly_canonical(fs::absolute(path));
        if (m_path.filename().empty())
            m_path = m_path.parent_path();
        if (fs::exists(m_path) && !fs::is_directory(m_path))
            throw SiteError(path + " is no folder");
        if (const std::string foreign = fs::exists(m_path) ? foreignFile(m_path) : ""; !foreign.empty())
            throw SiteError(path + " holds \"" + foreign +
                            "\", which is of no site; choose a folder for the site alone");
    } catch (const fs::filesystem_error& error) {
        throw SiteError("cannot write " + path + ": " + error.code().message());
    }
}

void SiteFolder::makeDraft()
{
    try {
        fs::create_directories(m_path.parent_path());
        const fs::path draft = draftOf(m_path, "new");
        if (!fs::create_directory(draft))
            throw SiteError(draft.string() + " is there already");
        m_draft = draft;
        if (fs::exists(m_path))
            fs::permissions(m_draft, fs::perms::owner_all);
    } catch (const fs::filesystem_error& error) {
        throw SiteError("cannot write " + m_path.string() + ": " + error.code().message());
    }
}

SiteFolder::~SiteFolder()
{
    std::error_code ignored;
    if (!m_draft.empty())
        fs::remove_all(m_draft, ignored);
}

void SiteFolder::add(const std::string& name, std::string_view content)
{
    if (m_draft.empty())
        makeDraft();
    const fs::path path = m_draft / name;
    if (path.parent_path() != m_lastFolder) {
        std::error_code error;
        fs::create_directories(path.parent_path(), error);
        m_lastFolder = path.parent_path();
    }
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    const bool isWritten = file && std::fwrite(content.data(), 1, content.size(), file) == content.size();
    const bool isClosed = file && std::fclose(file) == 0;
    if (!isWritten || !isClosed)
        throw SiteError("cannot write " + (m_path / name).string() + ": " + std::strerror(errno));
    m_names.push_back(name);
}

void SiteFolder::publish()
{
    std::string list;
    for (const std::string& name : m_names)
        list += name + "\n";
    add(k_listName, list);
    try {
        const fs::path earlier = draftOf(m_path, "old");
        const bool isReplaced = fs::exists(m_path);
        if (isReplaced) {
            takeOverAccess(m_draft, m_path);
            fs::rename(m_path, earlier);
        }
        std::error_code error;
        fs::rename(m_draft, m_path, error);
        if (error) {
            if (isReplaced)
                fs::rename(earlier, m_path);
            throw fs::filesystem_error("rename", error);
        }
        m_draft.clear();
        std::error_code ignored;
        fs::permissions(earlier, fs::perms::owner_all, ignored);
        fs::remove_all(earlier, ignored);
    } catch (const fs::filesystem_error& error) {
        throw SiteError("cannot write " + m_path.string() + ": " + error.code().message());
    }
}

} // namespace zu::cli
