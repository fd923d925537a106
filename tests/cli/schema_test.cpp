#include "cli/zupackage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using test::zupackage;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const std::filesystem::path k_schemas = std::filesystem::path(ZUPACKAGE_MANUAL_FOLDER) / "zupackage/schemas";

/// Validates a manifest by the name that the catalog has the schema under.
test::ProgramResult validated(const std::string& path)
{
    return test::runProgram("/usr/bin/xmllint",
                            {"--noout", "--nonet", "--schema", "urn:zupackage:manifest:schema", path},
                            {{}, {}, {{"XML_CATALOG_FILES", (k_schemas / "catalog.xml").string()}}});
}

} // namespace

TEST(Schema, WritesWhatIsInstalled)
{
    const test::ProgramResult xsd = zupackage({"schema"});
    EXPECT_EQ(xsd.exitCode, 0);
    EXPECT_EQ(xsd.output, test::readFile(k_schemas / "manifest.xsd"));
    EXPECT_EQ(zupackage({"schema", "--format", "xsd"}).output, xsd.output);
    EXPECT_EQ(zupackage({"schema", "--format", "json"}).output, test::readFile(k_schemas / "manifest.schema.json"));
    EXPECT_EQ(zupackage({"schema", "--format", "dtd"}).exitCode, 2);
}

TEST(Schema, OutputThatCannotBeWrittenIsAFailureOfItsOwn)
{
    for (const char* format : {"xsd", "json"}) {
        const test::ProgramResult result =
            test::runProgram(ZUPACKAGE_PROGRAM, {"schema", "--format", format}, {{}, "/dev/full", {}});
        EXPECT_EQ(result.exitCode, 5);
        EXPECT_EQ(result.errors, "zupackage: cannot write to standard output: No space left on device\n");
    }
}

TEST(Schema, TheCatalogLeadsToItsFile)
{
    const std::string manifest = test::sourcePath("examples/packages/story-teller/manifest.xml").string();
    const test::ProgramResult valid = validated(manifest);
    EXPECT_EQ(valid.exitCode, 0) << valid.errors;
    const test::TemporaryFolder folder;
    EXPECT_NE(validated(folder.file("manifest.xml", "<package uid='u'/>")).exitCode, 0);
}

TEST(Schema, ANewManifestNamesItWhenAsked)
{
    const test::TemporaryFolder folder;
    const std::string named = (folder.path() / "named").string();
    const std::string plain = (folder.path() / "plain").string();
    EXPECT_EQ(zupackage({"new", "--schema", named}).exitCode, 0);
    EXPECT_EQ(zupackage({"new", plain}).exitCode, 0);
    EXPECT_THAT(test::readFile(named + "/manifest.xml"),
                HasSubstr("?>\n<?xml-model href=\"urn:zupackage:manifest:schema\" "
                          "schematypens=\"http://www.w3.org/2001/XMLSchema\"?>\n<package "));
    EXPECT_THAT(test::readFile(plain + "/manifest.xml"), Not(HasSubstr("xml-model")));
    const test::ProgramResult check = zupackage({"check", "--fail-on", "pedantic", named});
    EXPECT_EQ(check.exitCode, 0);
    EXPECT_THAT(check.output, IsEmpty());
    EXPECT_EQ(validated(named + "/manifest.xml").exitCode, 0);
}

} // namespace zu
