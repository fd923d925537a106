#include "support/files.hpp"

#include <zupackage/authoring/vocabulary.hpp>
#include <zupackage/behavior_info.hpp>
#include <zupackage/package_info.hpp>
#include <zupackage/package_info2.hpp>

#include <gmock/gmock.h>

#include <regex>
#include <set>

namespace zu::authoring {

using testing::IsEmpty;
using testing::MatchesRegex;

namespace {

const std::vector<ElementEntry>& elements() { return Vocabulary::manifest().elements(); }

/// A manifest that holds one element, with "1" in it and in all its attributes, but for what `varied` names: an
/// attribute, "." for the text, "" for the element itself.
std::string manifestWith(const ElementEntry& entry, std::string_view varied, std::string_view value)
{
    std::string element(entry.name);
    for (const AttributeEntry& attribute : entry.attributes)
        element.append(" ")
            .append(attribute.name)
            .append("='")
            .append(attribute.name == varied ? value : "1")
            .append("'");
    const std::string text = entry.text == ValueKind::None ? "" : std::string(varied == "." ? value : "1");
    std::string manifest = "<" + element + ">" + text + "</" + std::string(entry.name) + ">";
    if (varied.empty() && value.empty())
        manifest.clear();
    for (const ElementEntry* parent = entry.parent; parent; parent = parent->parent)
        manifest =
            "<" + std::string(parent->name) + " path='1' lang='1'>" + manifest + "</" + std::string(parent->name) + ">";
    return manifest;
}

/// All that the two readers make of a manifest.
std::string readBothWays(const std::string& manifest)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", manifest);
    PackageInfo package;
    EXPECT_TRUE(package.loadFromManifestFile(path)) << manifest;
    const PackageInfo2 values = loadManifest(path);
    return package.saveToManifestContent() + values.web().path;
}

std::set<std::string> namesOfReaders()
{
    const std::string source = test::readFile(test::sourcePath("src/manifest/manifest_names.hpp"));
    const std::regex name("std::string_view k_\\w+ = \"(\\w+)\"");
    std::set<std::string> names;
    for (std::sregex_iterator match(source.begin(), source.end(), name), end; match != end; ++match)
        names.insert((*match)[1]);
    for (const std::string& permission : BehaviorInfo::supportedPermissions())
        names.insert(permission);
    return names;
}

} // namespace

TEST(Vocabulary, NamesAllThatReadersKnow)
{
    std::set<std::string> names;
    for (const ElementEntry& entry : elements()) {
        names.emplace(entry.name);
        for (const AttributeEntry& attribute : entry.attributes)
            names.emplace(attribute.name);
    }
    EXPECT_EQ(names, namesOfReaders());
}

TEST(Vocabulary, NamesNothingThatNoReaderTakes)
{
    for (const ElementEntry& entry : elements()) {
        for (const AttributeEntry& attribute : entry.attributes)
            EXPECT_NE(readBothWays(manifestWith(entry, attribute.name, "1")),
                      readBothWays(manifestWith(entry, attribute.name, "0")))
                << entry.path << "/@" << attribute.name;
        if (entry.text != ValueKind::None) {
            EXPECT_NE(readBothWays(manifestWith(entry, ".", "1")), readBothWays(manifestWith(entry, ".", "0")))
                << entry.path;
        }
        const bool isPresence = entry.text == ValueKind::None && entry.attributes.empty() && entry.children.empty();
        if (isPresence) {
            EXPECT_NE(readBothWays(manifestWith(entry, "", "1")), readBothWays(manifestWith(entry, "", "")))
                << entry.path;
        }
    }
}

TEST(Vocabulary, KnowsTheListsOfWhichEveryChildCounts)
{
    for (const ElementEntry& entry : elements()) {
        if (entry.children.size() != 1 || !entry.parent)
            continue;
        std::string manifest = "<" + std::string(entry.name) + "><other lang='1' path='1' language='1'>1</other></" +
                               std::string(entry.name) + ">";
        for (const ElementEntry* parent = entry.parent; parent; parent = parent->parent)
            manifest = "<" + std::string(parent->name) + ">" + manifest + "</" + std::string(parent->name) + ">";
        EXPECT_EQ(readBothWays(manifest).find(">1<") != std::string::npos ||
                      readBothWays(manifest).find("[1]") != std::string::npos,
                  entry.countsEveryChild)
            << entry.path;
    }
}

TEST(Vocabulary, SaysWhatEverythingIsFor)
{
    for (const ElementEntry& entry : elements()) {
        EXPECT_THAT(std::string(entry.purpose), MatchesRegex("[A-Z].*\\.")) << entry.path;
        for (const AttributeEntry& attribute : entry.attributes)
            EXPECT_THAT(std::string(attribute.purpose), MatchesRegex("[A-Z].*\\.")) << entry.path << attribute.name;
    }
}

TEST(Vocabulary, IdentifiesEntriesByWhatTheyHave)
{
    for (const ElementEntry& entry : elements()) {
        const bool isThere =
            entry.identity == "." ? entry.text != ValueKind::None : entry.attribute(entry.identity) != nullptr;
        EXPECT_TRUE(entry.identity.empty() || isThere) << entry.path;
    }
}

TEST(Vocabulary, FindsEntriesByPathAndName)
{
    const Vocabulary& vocabulary = Vocabulary::manifest();
    const ElementEntry* const name = vocabulary.find("/package/contents/behaviorContent/names/name");
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->parent->parent->name, "behaviorContent");
    EXPECT_EQ(&vocabulary.elements()[name->index], name);
    EXPECT_EQ(name->parent->child("name"), name);
    EXPECT_EQ(name->parent->child("nom"), nullptr);
    EXPECT_EQ(name->attribute("language"), nullptr);
    EXPECT_EQ(vocabulary.find("/package/name"), nullptr);
    EXPECT_EQ(vocabulary.root().parent, nullptr);
}

} // namespace zu::authoring
