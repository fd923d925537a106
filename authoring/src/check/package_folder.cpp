#include "check/package_folder.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace zupackage::check {

namespace fs = std::filesystem;

namespace {

/// Whether `path` is `folder` or lies in it; both are canonical.
bool isWithin(const fs::path& path, const fs::path& folder)
{
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

FileKind kindOf(fs::file_type type)
{
    if (type == fs::file_type::regular)
        return FileKind::Regular;
    if (type == fs::file_type::directory)
        return FileKind::Folder;
    return type == fs::file_type::none || type == fs::file_type::not_found ? FileKind::Missing : FileKind::Special;
}

} // namespace

PackageFolder::PackageFolder(const std::string& root)
{
    std::error_code error;
    m_root = fs::canonical(root, error).string();
    if (error)
        m_root = root;
}

FileKind PackageFolder::find(std::string_view path) const
{
    const auto found = m_found.find(path);
    if (found != m_found.end())
        return found->second;
    return m_found.emplace(path, lookUp(path)).first->second;
}

FileKind PackageFolder::lookUp(std::string_view path) const
{
    const fs::path relative{path};
    const fs::path normal = relative.lexically_normal();
    if (relative.is_absolute() || (!normal.empty() && *normal.begin() == ".."))
        return FileKind::Outside;
    std::error_code error;
    const fs::path found = fs::canonical(m_root / relative, error);
    if (error)
        return FileKind::Missing;
    if (!isWithin(found, m_root))
        return FileKind::Outside;
    const fs::file_status status = fs::status(found, error);
    return error ? FileKind::Missing : kindOf(status.type());
}

std::vector<std::string> PackageFolder::list(const Siblings& siblings, FileKind kind) const
{
    std::vector<std::string> paths;
    if (find(siblings.folder) != FileKind::Folder)
        return paths;
    std::error_code error;
    fs::directory_iterator entry(fs::path(m_root) / siblings.folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::string path = siblings.folder.empty() ? name : siblings.folder + "/" + name;
        if (name.front() != '.' && (siblings.extension.empty() || extensionOf(name) == siblings.extension) &&
            find(path) == kind)
            paths.push_back(std::move(path));
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string normalPath(std::string_view path)
{
    std::string normal = fs::path(path).lexically_normal().string();
    if (normal.size() > 1 && normal.back() == '/')
        normal.pop_back();
    return normal;
}

std::string parentOf(const std::string& path) { return fs::path(path).parent_path().string(); }

std::string extensionOf(const std::string& path) { return fs::path(path).extension().string(); }

} // namespace zupackage::check
