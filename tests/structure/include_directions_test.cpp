#include "includes.hpp"
#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace zu {

namespace {

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
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
constexpr char k_authoring[] = "authoring/include/zupackage/authoring/";

const std::vector<Rule> k_rules = {
    {"framework/include/", {k_framework, "boost/", "std/"}},
    {"framework/src/json.cpp", {"framework/src/", k_framework, "nlohmann/", "std/"}},
    {"framework/src/", {"framework/src/", k_framework, "boost/", "spdlog/", "std/"}},
    {"framework/examples/", {k_framework, "std/"}},
    {"framework/tests/allocation/", {"framework/tests/allocation/", k_framework, "dlfcn.h", "gtest/", "std/"}},
    {"framework/tests/", {"framework/tests/", k_framework, "boost/", "gmock/", "gtest/", "std/"}},

    // Public headers need the framework where values of its own stand in the interface, and nowhere else.
    {"include/zupackage/vxvalue.hpp", {k_package, k_framework, "std/"}},
    {"include/zupackage/package_info2.hpp", {k_package, k_framework, "std/"}},
    {"include/zupackage/package_info.hpp", {k_package, "framework/include/zu/forward.hpp", "QtCore/qglobal.h", "std/"}},
    {"include/zupackage/", {k_package, "QtCore/qglobal.h", "std/"}},

    // The rooms of the package library.
    {"src/records/", {"src/records/", k_package, "std/"}},
    {"src/xml/", {"src/xml/", "QtCore/", "QtXml/", "std/"}},
    {"src/variant/", {"src/variant/", "include/zupackage/vxvalue.hpp", k_framework, "std/"}},
    {"src/dump/", {"src/dump/", "src/records/", k_package, "std/"}},
    {"src/manifest/package_log.", {"src/manifest/", k_framework, "std/"}},
    {"src/manifest/manifest_saver.",
     {"src/manifest/", "src/records/", "src/xml/", k_package, "QtCore/", "sys/", "std/"}},
    {"src/manifest/", {"src/manifest/", "src/records/", "src/xml/", k_package, "QtCore/", "QtXml/", "std/"}},
    {"src/wire/", {"src/wire/", "src/records/", "src/variant/", k_package, "std/"}},
    {"src/value_model/",
     {"src/value_model/", "src/manifest/", "src/records/", "src/xml/", k_package, k_framework, "QtCore/", "std/"}},
    {"src/types/", {"src/", k_package, k_framework, "std/"}},

    {"authoring/include/", {k_authoring, k_package, "std/"}},
    {"authoring/src/json/", {"authoring/src/", k_authoring, k_package, "nlohmann/", "std/"}},
    {"authoring/src/schema/", {"authoring/src/", k_authoring, k_package, "nlohmann/", "std/"}},
    {"authoring/src/", {"authoring/src/", k_authoring, k_package, "QtCore/", "std/"}},
    {"authoring/generate/", {"nlohmann/", "std/"}},
    // What makes allocations fail needs nothing of the framework, and is there whichever framework is built against.
    {"authoring/tests/allocation/", {"framework/tests/allocation/", k_authoring, k_package, "gtest/", "std/"}},
    {"authoring/tests/",
     {"authoring/", "tests/", k_package, k_framework, "QtCore/", "QtXml/", "gmock/", "gtest/", "std/"}},

    {"cli/site/site_folder.", {"cli/site/", "sys/", "std/"}},
    {"cli/", {"cli/", k_authoring, k_package, "QtCore/", "CLI/", "nlohmann/", "std/"}},
    {"bench/",
     {"bench/", k_authoring, k_package, k_framework, "QtCore/", "QtXml/", "benchmark/", "boost/", "nlohmann/", "std/"}},
    {"fuzz/", {"fuzz/", "tests/support/", "authoring/tests/support/", k_authoring, k_package, k_framework, "std/"}},
    {"examples/api/", {k_authoring, k_package, k_framework, "std/"}},
    {"tests/consumer/", {k_authoring, k_package, k_framework, "std/"}},
    {"tests/hostile/", {"tests/", k_authoring, k_package, k_framework, "gmock/", "gtest/", "sys/", "std/"}},
    {"tests/loading/", {"tests/", k_package, k_framework, "gmock/", "gtest/", "std/"}},
    {"tests/structure/version_test.cpp", {"tests/", k_authoring, k_package, k_framework, "gtest/", "std/"}},
    {"tests/site/", {"tests/", "cli/site/", "gmock/", "gtest/", "sys/", "std/"}},
    {"tests/cli/", {"tests/", "QtCore/", "gmock/", "gtest/", "sys/", "std/"}},
    {"tests/",
     {"tests/", "src/", k_package, k_framework, "QtCore/", "QtXml/", "boost/", "linux/", "gmock/", "gtest/", "sys/",
      "std/"}},
};

/// What a file includes and must not.
std::vector<std::string> forbiddenIncludes(const std::string& file, const std::string& text)
{
    const auto rule =
        std::find_if(k_rules.begin(), k_rules.end(), [&file](const Rule& r) { return startsWith(file, r.prefix); });
    if (rule == k_rules.end())
        return {"anything, having no rule"};
    std::vector<std::string> forbidden;
    for (const test::Include& include : test::includesOf(text)) {
        const std::string target = test::targetOf(include, file);
        if (std::none_of(rule->allowed.begin(), rule->allowed.end(),
                         [&target](const std::string& prefix) { return startsWith(target, prefix); }))
            forbidden.push_back(target);
    }
    return forbidden;
}

} // namespace

TEST(Structure, EveryIncludeFollowsTheDirections)
{
    for (const std::string& file : test::sourcesAndHeaders()) {
        for (const std::string& forbidden : forbiddenIncludes(file, test::readFile(test::sourcePath(file))))
            ADD_FAILURE() << file << " must not include " << forbidden;
    }
}

TEST(Structure, EachForbiddenDirectionIsFound)
{
    const std::pair<const char*, const char*> forbidden[] = {
        {"framework/src/x.cpp", "#include <zupackage/package_info.hpp>"},
        {"framework/src/x.cpp", "#include <QtCore/QString>"},
        {"framework/src/x.cpp", "#include <nlohmann/json.hpp>"},
        {"framework/include/zu/x.hpp", "#include <spdlog/spdlog.h>"},
        {"framework/tests/x.cpp", "#include \"log_handlers.hpp\""},
        {"include/zupackage/x.hpp", "#include <zu/log.hpp>"},
        {"include/zupackage/package_info.hpp", "#include <zu/any_value.hpp>"},
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
        {"src/manifest/x.cpp", "#include <zupackage/authoring/source_document.hpp>"},
        {"include/zupackage/x.hpp", "#include <zupackage/authoring/source_document.hpp>"},
        {"authoring/include/zupackage/authoring/x.hpp", "#include <QtCore/QString>"},
        {"authoring/src/x.cpp", "#include \"xml/guard.hpp\""},
        {"authoring/src/x.cpp", "#include <zu/log.hpp>"},
        {"cli/x.cpp", "#include <zu/log.hpp>"},
        {"cli/x.cpp", "#include \"scanner.hpp\""},
        {"cli/x.cpp", "#include \"records/package_info_p.hpp\""},
        {"tests/cli/x.cpp", "#include <zupackage/package_info.hpp>"},
    };
    for (const auto& [file, text] : forbidden)
        EXPECT_THAT(forbiddenIncludes(file, text), testing::SizeIs(1)) << file << ": " << text;
    EXPECT_THAT(forbiddenIncludes("src/manifest/package_log.cpp", "#include <zu/log.hpp>\n#include <string>"),
                testing::IsEmpty());
}

} // namespace zu
