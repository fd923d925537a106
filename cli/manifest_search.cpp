#include "manifest_search.hpp"

#include "output.hpp"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <system_error>
#include <utility>

namespace zu::cli {

namespace {

namespace fs = std::filesystem;

/// Whether the folder is the other or holds it, at any depth; both without links.
bool holds(const fs::path& folder, const fs::path& other)
{
    return std::mismatch(folder.begin(), folder.end(), other.begin(), other.end()).first == folder.end();
}

/// Looks through a folder and everything in it.
class FolderSearch
{
public:
    explicit FolderSearch(const std::string& source) : m_source(source) {}

    FoundManifests run()
    {
        std::error_code error;
        m_realSource = fs::canonical(m_source, error);
        if (error)
            fail(m_source, "search", error);
        else
            m_folders.push_back({m_source, m_realSource});
        while (!m_folders.empty() || !m_links.empty()) {
            if (m_folders.empty())
                followLink(m_links.extract(m_links.begin()).value());
            else
                searchNext();
        }
        std::sort(m_found.paths.begin(), m_found.paths.end());
        std::sort(m_found.failures.begin(), m_found.failures.end(),
                  [](const SearchFailure& left, const SearchFailure& right) { return left.path < right.path; });
        if (m_found.paths.empty() && m_found.failures.empty())
            m_found.failures.push_back({m_source.string(), "there is no manifest.xml in " + m_source.string()});
        return std::move(m_found);
    }

private:
    struct Folder
    {
        fs::path path; ///< as it was reached
        fs::path real; ///< without links
    };

    void searchNext()
    {
        const Folder folder = std::move(m_folders.back());
        m_folders.pop_back();
        if (!m_searched.insert(folder.real).second)
            return;
        std::error_code error;
        for (fs::directory_iterator entry(folder.path, error), end; !error && entry != end; entry.increment(error))
            take(*entry, folder);
        if (error)
            fail(folder.path, "search", error);
    }

    void take(const fs::directory_entry& entry, const Folder& folder)
    {
        const fs::path name = entry.path().filename();
        std::error_code error;
        std::error_code none;
        if (entry.is_directory(error)) {
            if (name.native().front() == '.')
                return;
            if (entry.is_symlink(none))
                m_links.insert(entry.path());
            else
                m_folders.push_back({entry.path(), folder.real / name});
        } else if (name == "manifest.xml") {
            if (entry.is_other(none)) // reading it might never end
                fail(entry.path(), "read", "Not a regular file");
            else
                m_found.paths.push_back(entry.path().lexically_normal().string());
        } else if (error == std::errc::permission_denied && name.native().front() != '.') {
            fail(entry.path(), "search", error);
        }
    }

    /// Only when all other folders are searched, so that those are found under their own paths.
    void followLink(const fs::path& link)
    {
        std::error_code error;
        const fs::path real = fs::canonical(link, error);
        if (error)
            fail(link, "search", error);
        else if (!holds(real, m_realSource))
            m_folders.push_back({link, real});
    }

    void fail(const fs::path& path, const char* verb, const std::string& reason)
    {
        const std::string name = path.lexically_normal().string();
        m_found.failures.push_back({name, std::string("cannot ") + verb + " " + name + ": " + reason});
    }

    void fail(const fs::path& path, const char* verb, const std::error_code& error)
    {
        fail(path, verb, error.message());
    }

    fs::path m_source;
    fs::path m_realSource;
    std::vector<Folder> m_folders; ///< still to be searched
    std::set<fs::path> m_links;    ///< to folders, still to be followed
    std::set<fs::path> m_searched; ///< without links
    FoundManifests m_found;
};

} // namespace

FoundManifests searchManifests(const std::vector<std::string>& sources)
{
    FoundManifests all;
    for (const std::string& source : sources) {
        std::error_code error;
        if (source == "-" || !fs::is_directory(source, error)) {
            all.paths.push_back(source);
            continue;
        }
        FoundManifests found = FolderSearch(source).run();
        std::move(found.paths.begin(), found.paths.end(), std::back_inserter(all.paths));
        std::move(found.failures.begin(), found.failures.end(), std::back_inserter(all.failures));
    }
    return all;
}

std::vector<std::string> manifestsIn(const std::vector<std::string>& sources, ExitCode& result)
{
    FoundManifests found = searchManifests(sources);
    for (const SearchFailure& failure : found.failures) {
        complain(failure.message);
        result = worse(result, k_inputFailed);
    }
    return std::move(found.paths);
}

} // namespace zu::cli
