#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/json_schema.hpp"
#include "support/program.hpp"
#include "support/property.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/package_json.hpp>
#include <zupackage/authoring/rule.hpp>
#include <zupackage/authoring/schema.hpp>

#include <gmock/gmock.h>

#include <regex>
#include <set>
#include <sstream>

namespace zu::authoring {

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// Validates documents against the schema, all of them by one process.
class Validation
{
public:
    Validation() : m_schema(m_folder.file("manifest.xsd", xmlSchema())) {}

    void add(const std::string& name, const std::string& document) { m_paths.push_back(m_folder.file(name, document)); }

    /// The names of the documents that are not valid.
    std::set<std::string> refused() const
    {
        std::vector<std::string> arguments{"--noout", "--nonet", "--schema", m_schema};
        arguments.insert(arguments.end(), m_paths.begin(), m_paths.end());
        const test::ProgramResult result = test::runProgram("/usr/bin/xmllint", arguments);
        EXPECT_THAT(result.errors, Not(testing::HasSubstr("WXS schema")));
        std::set<std::string> refused;
        for (const std::string& path : m_paths) {
            if (result.errors.find(path + " validates\n") == std::string::npos)
                refused.insert(std::filesystem::path(path).filename().string());
        }
        return refused;
    }

private:
    test::TemporaryFolder m_folder;
    std::string m_schema;
    std::vector<std::string> m_paths;
};

/// The rules in the guide's table of what is beyond a schema, each of them with a reason.
std::set<std::string> beyondSchemas()
{
    std::istringstream guide(test::readFile(test::sourcePath("docs/guide/schemas.md")));
    std::set<std::string> rules;
    const std::regex row("\\| `([a-z-]+)` \\| (.+) \\|");
    std::smatch parts;
    for (std::string line; std::getline(guide, line);) {
        if (std::regex_match(line, parts, row))
            rules.insert(parts[1]);
    }
    return rules;
}

/// A manifest without findings but those of the services in it.
std::string completeManifest(const std::string& services)
{
    return "<package uuid='u' version='1'><names><name lang='en'>N</name></names>"
           "<descriptions><description lang='en'>D</description></descriptions>"
           "<descriptionLanguages><language>en</language></descriptionLanguages><contents><webContent path='w'/>"
           "</contents><services>" +
           services + "</services></package>";
}

std::string manifestOf(const std::filesystem::path& folder) { return test::readFile(folder / "manifest.xml"); }

} // namespace

TEST(XmlSchema, EveryExamplePackageIsValid)
{
    Validation validation;
    for (const auto& folder : test::examplePackages())
        validation.add(folder.filename().string(), manifestOf(folder));
    EXPECT_THAT(validation.refused(), IsEmpty());
}

TEST(XmlSchema, DebianKnowsItByItsName)
{
    for (const char* script : {"cmake/debian/postinst", "cmake/debian/prerm"}) {
        EXPECT_THAT(test::readFile(test::sourcePath(script)), HasSubstr("\nschema=" + xmlSchemaUri() + "\n"));
    }
}

TEST(XmlSchema, WhatChecksFindNothingInIsValid)
{
    Validation validation;
    for (const Rule& rule : rules())
        validation.add(std::string(rule.id), manifestWith(rule, rule.goodExample));
    const std::string blankVariable = completeManifest("<service name='s' execStart='python3'>"
                                                       "<envVar name='A' value=' '/></service>");
    EXPECT_THAT(check(SourceDocument::parse(blankVariable)).findings, IsEmpty());
    validation.add("blank variable", blankVariable);
    EXPECT_THAT(validation.refused(), IsEmpty());
}

TEST(XmlSchema, RefusesEachBadExampleOrTheGuideSaysWhyNot)
{
    const std::set<std::string> beyond = beyondSchemas();
    Validation validation;
    for (const Rule& rule : rules())
        validation.add(std::string(rule.id), manifestWith(rule, rule.badExample));
    const std::set<std::string> refused = validation.refused();
    for (const Rule& rule : rules())
        EXPECT_NE(refused.count(std::string(rule.id)), beyond.count(std::string(rule.id))) << rule.id;
    for (const std::string& id : beyond)
        EXPECT_TRUE(findRule(id)) << id;
}

TEST(XmlSchema, ElementsStandInAnyOrder)
{
    Validation validation;
    validation.add("any order", "<package version='1.0' uuid='u'><contents><dialogContent topicName='t'>"
                                "<topic language='en' path='t'/></dialogContent><behaviorContent path='b'><names><name "
                                "lang='en'>B</name></names>"
                                "<nature>solitary</nature></behaviorContent></contents>"
                                "<names><name lang='en'>N</name></names></package>");
    EXPECT_THAT(validation.refused(), IsEmpty());
}

TEST(XmlSchema, WebContentStandsOnceAnywhereInTheContents)
{
    const std::string topic = "<dialogContent topicName='t'><topic language='en' path='t'/></dialogContent>";
    const std::string behavior = "<behaviorContent path='b'><nature>solitary</nature></behaviorContent>";
    const std::string web = "<webContent path='w'/>";
    Validation validation;
    const std::pair<const char*, std::string> contents[] = {{"none", ""},
                                                            {"alone", web},
                                                            {"first", web + behavior + topic},
                                                            {"within", behavior + web + topic},
                                                            {"last", topic + behavior + web},
                                                            {"twice", web + topic + web}};
    for (const auto& [name, content] : contents)
        validation.add(name, "<package uuid='u' version='1'><names><name lang='en'>N</name></names><contents>" +
                                 content + "</contents></package>");
    EXPECT_THAT(validation.refused(), testing::ElementsAre("twice"));
}

TEST(XmlSchema, WhatIsOptionalMayBeEmptyButForFlags)
{
    const std::string rest = "><names><name lang='en'>N</name></names><contents/></package>";
    Validation validation;
    validation.add("empty texts", "<package uuid='u' version='1' author='' date='' channel=''" + rest);
    validation.add("empty flag", "<package uuid='u' version='1' installOnlyAtStartup=''" + rest);
    validation.add("no day", "<package uuid='u' version='1' date='2026-02-30'" + rest);
    validation.add("padded", "<package uuid='u' version='1' author=' a'" + rest);
    EXPECT_THAT(validation.refused(), testing::ElementsAre("empty flag", "no day", "padded"));
}

TEST(JsonSchema, EveryExamplePackageIsValid)
{
    const test::TemporaryFolder folder;
    const std::string schema = folder.file("schema.json", jsonSchema());
    for (const auto& example : test::examplePackages()) {
        PackageInfo package;
        ASSERT_TRUE(package.loadFromManifestFile((example / "manifest.xml").string()));
        EXPECT_EQ(test::invalidityOfJson(toJson(package), schema), "") << example;
    }
}

TEST(JsonSchema, WhatIsWrittenIsValid)
{
    const test::TemporaryFolder folder;
    const std::string schema = folder.file("schema.json", jsonSchema());
    test::checkProperty(5, [&] {
        const PackageInfo package = *test::packages(test::byteStrings(), test::byteStrings());
        RC_ASSERT(test::invalidityOfJson(toJson(package), schema).empty());
    });
}

TEST(JsonSchema, WhatIsRefusedIsInvalid)
{
    const test::TemporaryFolder folder;
    const std::string schema = folder.file("schema.json", jsonSchema());
    for (const char* json :
         {R"({})", R"({"format_version": 2})", R"({"format_version": 1, "uid": "u"})",
          R"({"format_version": 1, "names": {"en": 1}})", R"({"format_version": 1, "services": [{"autorun": "true"}]})",
          R"({"format_version": 1, "contents": {"behaviorContent": [{"permissions": ["canFly"]}]}})",
          R"({"format_version": 1, "supportedLanguages": ["en", "en"]})",
          R"({"format_version": 1, "contents": {"behaviorContent": [{"permissions": ["canStandUp", "canStandUp"]}]}})",
          R"({"format_version": 1, "contents": {"behaviorContent": [{"tags": {"en": "t"}}]}})"}) {
        EXPECT_THROW(packageFromJson(json), PackageJsonError) << json;
        EXPECT_NE(test::invalidityOfJson(json, schema), "") << json;
    }
}

} // namespace zu::authoring
