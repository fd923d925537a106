#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>

namespace zu {

namespace fs = std::filesystem;

namespace {

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

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

/// Where the project's quoted includes start from, beside the folder of the file that has them.
constexpr const char* k_roots[] = {"framework/src/", "framework/tests/", "src/", "cli/", "tests/", "bench/"};

/// What an include names: the path of a file of ours, or as it stands, below "std/" when it is in no folder.
std::string targetOf(const Include& include, const std::string& file)
{
    if (!include.quoted) {
        if (startsWith(include.name, "zu/"))
            return "framework/include/" + include.name;
        if (startsWith(include.name, "zupackage/"))
            return "include/" + include.name;
        return include.name.find('/') == std::string::npos ? "std/" + include.name : include.name;
    }
    std::vector<std::string> roots = {fs::path(file).parent_path().string() + '/'};
    std::copy_if(std::begin(k_roots), std::end(k_roots), std::back_inserter(roots),
                 [&file](const char* root) { return startsWith(file, root); });
    roots.insert(roots.end(), std::begin(k_roots), std::end(k_roots));
    for (const std::string& root : roots)
        if (fs::exists(test::sourcePath(root + include.name)))
            return root + include.name;
    return "nowhere/" + include.name;
}

/// What the files under a path prefix may include, by prefixes of what an include names. The first that fits a file
/// decides.
struct Rule
{
    std::string prefix;
    std::vector<std::string> allowed;
};

constexpr char k_framework[] = "framework/include/zu/";
constexpr char k_package[] = "include/zupackage/";

const std::vector<Rule> k_rules = {
    {"framework/include/", {k_framework, "boost/", "std/"}},
    {"framework/src/", {"framework/src/", k_framework, "boost/", "spdlog/", "std/"}},
    {"framework/examples/", {k_framework, "std/"}},
    {"framework/tests/", {"framework/tests/", k_framework, "boost/", "gmock/", "gtest/", "std/"}},

    // Public headers need the framework where values of its own stand in the interface, and nowhere else.
    {"include/zupackage/vxvalue.hpp", {k_package, k_framework, "std/"}},
    {"include/zupackage/package_info2.hpp", {k_package, k_framework, "std/"}},
    {"include/zupackage/", {k_package, "QtCore/qglobal.h", "std/"}},

    // The rooms of the package library.
    {"src/records/", {"src/records/", k_package, "std/"}},
    {"src/xml/", {"src/xml/", "QtCore/", "QtXml/", "std/"}},
    {"src/variant/", {"src/variant/", "include/zupackage/vxvalue.hpp", k_framework, "std/"}},
    {"src/dump/", {"src/dump/", "src/records/", k_package, "std/"}},
    {"src/manifest/package_log.", {"src/manifest/", k_framework, "std/"}},
    {"src/manifest/", {"src/manifest/", "src/records/", "src/xml/", k_package, "QtCore/", "QtXml/", "std/"}},
    {"src/wire/", {"src/wire/", "src/records/", "src/variant/", k_package, "std/"}},
    {"src/value_model/",
     {"src/value_model/", "src/manifest/", "src/records/", "src/xml/", k_package, k_framework, "QtCore/", "std/"}},
    {"src/types/", {"src/", k_package, k_framework, "std/"}},

    {"cli/", {"cli/", k_package, "QtCore/", "CLI/", "std/"}},
    {"bench/", {"bench/", k_package, k_framework, "QtCore/", "benchmark/", "boost/", "nlohmann/", "std/"}},
    {"examples/api/", {k_package, k_framework, "std/"}},
    {"tests/consumer/", {k_package, k_framework, "std/"}},
    {"tests/loading/", {"tests/", k_package, k_framework, "gmock/", "gtest/", "std/"}},
    {"tests/cli/", {"tests/", "QtCore/", "gmock/", "gtest/", "std/"}},
    {"tests/", {"tests/", "src/", k_package, k_framework, "QtCore/", "QtXml/", "boost/", "gmock/", "gtest/", "std/"}},
};

/// What a file includes and must not.
std::vector<std::string> forbiddenIncludes(const std::string& file, const std::string& text)
{
    const auto rule =
        std::find_if(k_rules.begin(), k_rules.end(), [&file](const Rule& r) { return startsWith(file, r.prefix); });
    if (rule == k_rules.end())
        return {"anything, having no rule"};
    std::vector<std::string> forbidden;
    for (const Include& include : includesOf(text)) {
        const std::string target = targetOf(include, file);
        if (std::none_of(rule->allowed.begin(), rule->allowed.end(),
                         [&target](const std::string& prefix) { return startsWith(target, prefix); }))
            forbidden.push_back(target);
    }
    return forbidden;
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
        for (const std::string& forbidden : forbiddenIncludes(file, test::readFile(path)))
            ADD_FAILURE() << file << " must not include " << forbidden;
    }
}

TEST(Structure, EachForbiddenDirectionIsFound)
{
    const std::pair<const char*, const char*> forbidden[] = {
        {"framework/src/x.cpp", "#include <zupackage/package_info.hpp>"},
        {"framework/src/x.cpp", "#include <QtCore/QString>"},
        {"framework/include/zu/x.hpp", "#include <spdlog/spdlog.h>"},
        {"framework/tests/x.cpp", "#include \"log_handlers.hpp\""},
        {"include/zupackage/x.hpp", "#include <zu/log.hpp>"},
        {"include/zupackage/x.hpp", "#include <QtCore/QString>"},
        {"src/xml/x.cpp", "#include \"records/behavior_info_p.hpp\""},
        {"src/xml/x.cpp", "#include \"records/keyed_texts.hpp\""},
        {"src/xml/x.cpp", "#include \"manifest/manifest_names.hpp\""},
        {"src/xml/x.cpp", "#include <zupackage/behavior_info.hpp>"},
        {"src/dump/x.cpp", "#include \"xml/nodes.hpp\""},
        {"src/dump/x.cpp", "#include <QtXml/QDomNode>"},
        {"src/variant/x.cpp", "#include \"records/package_info_p.hpp\""},
        {"src/variant/x.cpp", "#include \"wire/wire_form.hpp\""},
        {"src/variant/x.cpp", "#include <zupackage/package_info.hpp>"},
        {"src/records/x.cpp", "#include <QtXml/QDomDocument>"},
        {"src/records/x.cpp", "#include \"wire/wire_form.hpp\""},
        {"src/records/x.cpp", "#include \"xml/nodes.hpp\""},
        {"src/records/x.cpp", "#include <zu/log.hpp>"},
        {"src/wire/x.cpp", "#include \"manifest/manifest_names.hpp\""},
        {"src/wire/x.cpp", "#include <zu/registry.hpp>"},
        {"src/manifest/x.cpp", "#include \"variant/vxarrays.hpp\""},
        {"src/manifest/x.cpp", "#include \"value_model/package_info2_keys.hpp\""},
        {"src/manifest/x.cpp", "#include <zu/log.hpp>"},
        {"src/value_model/x.cpp", "#include \"wire/wire_form.hpp\""},
        {"src/new_room/x.cpp", "#  include <string> // comment"},
        {"cli/x.cpp", "#include <zu/log.hpp>"},
        {"cli/x.cpp", "#include \"records/package_info_p.hpp\""},
        {"tests/cli/x.cpp", "#include <zupackage/package_info.hpp>"},
    };
    for (const auto& [file, text] : forbidden)
        EXPECT_THAT(forbiddenIncludes(file, text), testing::SizeIs(1)) << file << ": " << text;
    EXPECT_THAT(forbiddenIncludes("src/manifest/package_log.cpp", "#include <zu/log.hpp>\n#include <string>"),
                testing::IsEmpty());
}

} // namespace zu
