#include "manifest_search.hpp"

#include "output.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace zu::cli {

namespace fs = std::filesystem;

std::vector<std::string> findManifests(const std::string& source)
{
    std::error_code error;
    if (source == "-" || !fs::is_directory(source, error))
        return {source};
    std::vector<std::string> manifests;
    constexpr auto k_options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(source, k_options, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (entry->is_directory(error) && name.front() == '.')
            entry.disable_recursion_pending();
        else if (name == "manifest.xml" && !entry->is_directory(error))
            manifests.push_back(entry->path().lexically_normal().string());
    }
    std::sort(manifests.begin(), manifests.end());
    return manifests;
}

std::vector<std::string> manifestsIn(const std::vector<std::string>& sources, ExitCode& result)
{
    std::vector<std::string> manifests;
    for (const std::string& source : sources) {
        const std::vector<std::string> found = findManifests(source);
        if (found.empty()) {
            complain("there is no manifest.xml in " + source);
            result = worse(result, k_inputFailed);
        }
        manifests.insert(manifests.end(), found.begin(), found.end());
    }
    return manifests;
}

} // namespace zu::cli
