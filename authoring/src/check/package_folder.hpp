#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace zupackage::check {

enum class FileKind : std::uint8_t
{
    Missing, ///< or one that may not be looked at
    Outside, ///< absolute, above the folder, or behind a link that leads out of it; whether it is there or not
    Regular,
    Folder,
    Special ///< a device, a pipe, a socket
};

/// Where files of one kind lie together.
struct Siblings
{
    std::string folder;    ///< relative to the package; empty for the package itself
    std::string extension; ///< with its dot; empty for any

    friend bool operator<(const Siblings& left, const Siblings& right)
    {
        return std::tie(left.folder, left.extension) < std::tie(right.folder, right.extension);
    }
};

/// The folder of a package on disk. Looks at entries, at each once, and opens no file.
class PackageFolder
{
public:
    explicit PackageFolder(const std::string& root);

    /// What a path of the manifest leads to.
    FileKind find(std::string_view path) const;

    /// The paths of that kind in a folder of the package, hidden ones left out, sorted.
    std::vector<std::string> list(const Siblings& siblings, FileKind kind) const;

private:
    FileKind lookUp(std::string_view path) const;

    std::string m_root;
    mutable std::map<std::string, FileKind, std::less<>> m_found; ///< several rules ask for the same files
};

/// A path without what does not matter in it: "./bin//clock" is "bin/clock".
std::string normalPath(std::string_view path);

/// The folder that holds it, as the beginning of a normal path; empty for one without a slash.
std::string parentOf(const std::string& path);

/// With its dot; empty when there is none.
std::string extensionOf(const std::string& path);

} // namespace zupackage::check
