#include "includes.hpp"

#include "support/files.hpp"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace zu::test {

namespace fs = std::filesystem;

namespace {

/// Where the project's quoted includes start from, beside the folder of the file that has them.
constexpr const char* k_roots[] = {
    "framework/src/", "framework/tests/", "authoring/src/", "authoring/tests/", "src/", "cli/",
    "tests/",         "bench/",           "fuzz/"};

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

} // namespace

std::vector<Include> includesOf(const std::string& text)
{
    std::vector<Include> includes;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        char hash = 0;
        std::string directive;
        std::string name;
        if (!(words >> hash) || hash != '#' || !(words >> directive >> name) || directive != "include")
            continue;
        const bool quoted = name.front() == '"';
        const std::size_t end = name.find(quoted ? '"' : '>', 1);
        includes.push_back({name.substr(1, end - 1), quoted});
    }
    return includes;
}

std::string targetOf(const Include& include, const std::string& file)
{
    if (!include.quoted) {
        if (startsWith(include.name, "zu/"))
            return "framework/include/" + include.name;
        if (startsWith(include.name, "zupackage/authoring/"))
            return "authoring/include/" + include.name;
        if (startsWith(include.name, "zupackage/"))
            return "include/" + include.name;
        return include.name.find('/') == std::string::npos ? "std/" + include.name : include.name;
    }
    std::vector<std::string> roots = {fs::path(file).parent_path().string() + '/'};
    std::copy_if(std::begin(k_roots), std::end(k_roots), std::back_inserter(roots),
                 [&file](const char* root) { return startsWith(file, root); });
    roots.insert(roots.end(), std::begin(k_roots), std::end(k_roots));
    for (const std::string& root : roots)
        if (fs::exists(sourcePath(root + include.name)))
            return fs::path(root + include.name).lexically_normal().string();
    return "nowhere/" + include.name;
}

std::vector<std::string> sourcesAndHeaders()
{
    std::vector<std::string> files;
    for (const char* folder : {"authoring", "bench", "framework", "fuzz", "include", "src", "cli", "examples", "tests"})
        for (const auto& entry : fs::recursive_directory_iterator(sourcePath(folder)))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".hpp")
                files.push_back(fs::relative(entry.path(), sourcePath("")).string());
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace zu::test
