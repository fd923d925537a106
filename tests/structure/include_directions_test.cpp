#include "support/files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>

namespace zu {

namespace fs = std::filesystem;

namespace {

/// Where an #include leads, by what it names.
enum class Layer
{
    FrameworkPublic,
    FrameworkPrivate,
    PackagePublic,
    PackagePrivate,
    Cli,
    Tests,
    Qt,
    Spdlog,
    Cli11,
    Other
};

struct Include
{
    std::string name;
    bool quoted;
};

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

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

Layer layerOf(const Include& include, const std::string& file)
{
    const std::string& name = include.name;
    if (include.quoted) {
        if (startsWith(name, "support/"))
            return Layer::Tests;
        for (const auto& [folder, layer] : {std::pair("framework/src/", Layer::FrameworkPrivate),
                                            std::pair("src/", Layer::PackagePrivate), std::pair("cli/", Layer::Cli)})
            if (fs::exists(test::sourcePath(folder + name)) &&
                (startsWith(file, folder) || !fs::exists(test::sourcePath(file).parent_path() / name)))
                return layer;
        return Layer::Tests;
    }
    if (startsWith(name, "zu/"))
        return Layer::FrameworkPublic;
    if (startsWith(name, "zupackage/"))
        return Layer::PackagePublic;
    if (startsWith(name, "Qt") || startsWith(name, "Q"))
        return Layer::Qt;
    if (startsWith(name, "spdlog/"))
        return Layer::Spdlog;
    return startsWith(name, "CLI/") ? Layer::Cli11 : Layer::Other;
}

/// What the files under a path prefix may include; the first prefix that fits a file decides.
struct Rule
{
    std::string prefix;
    std::vector<Layer> allowed;
};

const std::vector<Rule> k_rules = {
    {"framework/include/", {Layer::FrameworkPublic, Layer::Other}},
    {"framework/src/", {Layer::FrameworkPublic, Layer::FrameworkPrivate, Layer::Spdlog, Layer::Other}},
    {"framework/examples/", {Layer::FrameworkPublic, Layer::Other}},
    {"framework/tests/", {Layer::FrameworkPublic, Layer::Tests, Layer::Other}},
    {"bench/", {Layer::FrameworkPublic, Layer::PackagePublic, Layer::Tests, Layer::Qt, Layer::Other}},
    {"include/zupackage/vxvalue.hpp", {Layer::PackagePublic, Layer::FrameworkPublic, Layer::Other}},
    {"include/zupackage/package_info2.hpp", {Layer::PackagePublic, Layer::FrameworkPublic, Layer::Other}},
    {"include/zupackage/", {Layer::PackagePublic, Layer::Qt, Layer::Other}},
    // The places of the package library that may know the framework.
    {"src/value_model/",
     {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Qt, Layer::Other}},
    {"src/types/", {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Other}},
    {"src/variant/vxvalue_type.", {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Other}},
    {"src/variant/vxvalueconverter.",
     {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Other}},
    {"src/manifest/package_log.",
     {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Qt, Layer::Other}},
    {"src/", {Layer::PackagePublic, Layer::PackagePrivate, Layer::Qt, Layer::Other}},
    {"cli/", {Layer::PackagePublic, Layer::Cli, Layer::Qt, Layer::Cli11, Layer::Other}},
    {"examples/api/", {Layer::PackagePublic, Layer::FrameworkPublic, Layer::Other}},
    {"tests/consumer/", {Layer::PackagePublic, Layer::FrameworkPublic, Layer::Other}},
    {"tests/loading/", {Layer::PackagePublic, Layer::FrameworkPublic, Layer::Tests, Layer::Other}},
    {"tests/cli/", {Layer::Tests, Layer::Qt, Layer::Other}},
    {"tests/",
     {Layer::PackagePublic, Layer::PackagePrivate, Layer::FrameworkPublic, Layer::Tests, Layer::Qt, Layer::Other}},
};

/// The name of the first #include that a file must not have.
std::optional<std::string> forbiddenInclude(const std::string& file, const std::string& text)
{
    const auto rule =
        std::find_if(k_rules.begin(), k_rules.end(), [&file](const Rule& r) { return startsWith(file, r.prefix); });
    if (rule == k_rules.end())
        return "anything, having no rule";
    for (const Include& include : includesOf(text)) {
        const Layer layer = layerOf(include, file);
        if (std::find(rule->allowed.begin(), rule->allowed.end(), layer) == rule->allowed.end())
            return include.name;
    }
    return std::nullopt;
}

std::vector<fs::path> sourcesAndHeaders()
{
    std::vector<fs::path> files;
    for (const char* folder : {"bench", "framework", "include", "src", "cli", "examples", "tests"})
        for (const auto& entry : fs::recursive_directory_iterator(test::sourcePath(folder)))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".hpp")
                files.push_back(entry.path());
    return files;
}

} // namespace

TEST(Structure, EveryIncludeFollowsTheDirections)
{
    for (const fs::path& path : sourcesAndHeaders()) {
        const std::string file = fs::relative(path, test::sourcePath("")).string();
        if (const auto forbidden = forbiddenInclude(file, test::readFile(path)))
            ADD_FAILURE() << file << " must not include " << *forbidden;
    }
}

TEST(Structure, ForbiddenDirectionsAreFound)
{
    const std::pair<const char*, const char*> forbidden[] = {
        {"framework/src/x.cpp", "#include <zupackage/package_info.hpp>"},
        {"framework/src/x.cpp", "#include <QString>"},
        {"framework/include/zu/x.hpp", "#include <spdlog/spdlog.h>"},
        {"framework/tests/x.cpp", "#include \"log_handlers.hpp\""},
        {"include/zupackage/x.hpp", "#include <zu/log.hpp>"},
        {"src/records/behavior_info.cpp", "#include <zu/log.hpp>"},
        {"src/x.cpp", "#  include <CLI/CLI.hpp> // comment"},
        {"cli/x.cpp", "#include <zu/log.hpp>"},
        {"cli/x.cpp", "#include \"package_info_p.hpp\""},
        {"tests/cli/x.cpp", "#include <zupackage/package_info.hpp>"},
        {"elsewhere/x.cpp", ""},
    };
    for (const auto& [file, text] : forbidden)
        EXPECT_TRUE(forbiddenInclude(file, text)) << file << ": " << text;
    EXPECT_FALSE(forbiddenInclude("src/manifest/package_log.cpp", "#include <zu/log.hpp>\n#include <string>"));
}

} // namespace zu
