#include "json/json_form.hpp"
#include "support/files.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;
using zu::authoring::Vocabulary;

std::string inCode(std::string_view text) { return "`" + std::string(text) + "`"; }

/// The entries whose elements the value of a key holds.
const ElementEntry& heldBy(const ElementEntry& entry)
{
    const ElementEntry* const content = contentOf(entry);
    return content ? *content : entry;
}

std::string wordsFor(const ElementEntry& entry)
{
    const ElementEntry& held = heldBy(entry);
    const AttributeEntry* const value = valueAttribute(held);
    const std::string ofValue = value ? ", its " + inCode(value->name) : "";
    switch (formOfAll(entry)) {
    case JsonForm::Text:
        return "a string" + ofValue;
    case JsonForm::Presence:
        return "true";
    case JsonForm::Names: {
        std::string words = "a list of strings:";
        for (const ElementEntry* const child : entry.children)
            words += (child == entry.children.front() ? " " : ", ") + inCode(child->name);
        return words;
    }
    case JsonForm::Object:
        return "an object";
    case JsonForm::List:
        return formOf(held) == JsonForm::Object ? "a list of objects" : "a list of strings" + ofValue;
    case JsonForm::Map:
    case JsonForm::ListMap:
        return "an object: under each " + inCode(held.attributes.front().name) +
               (formOfAll(entry) == JsonForm::Map ? " a string" : " a list of strings") + ofValue;
    }
    return "";
}

void appendRow(std::string& table, const std::string& key, const std::string& value, std::string_view purpose)
{
    table += "| " + inCode(key) + " | " + value + " | " + std::string(purpose) + " |\n";
}

void appendKeys(std::string& table, const ElementEntry& entry, const std::string& path)
{
    for (const AttributeEntry& attribute : entry.attributes)
        appendRow(table, path + std::string(attribute.name),
                  attribute.kind == ValueKind::Flag ? "true or false" : "a string", attribute.purpose);
    for (const ElementEntry* const child : entry.children) {
        const std::string childPath = path + std::string(child->name);
        appendRow(table, childPath, wordsFor(*child), child->purpose);
        if (formOf(heldBy(*child)) == JsonForm::Object && formOfAll(heldBy(*child)) != JsonForm::Map &&
            formOfAll(heldBy(*child)) != JsonForm::ListMap)
            appendKeys(table, heldBy(*child), childPath + (formOfAll(*child) == JsonForm::List ? "[]." : "."));
    }
}

std::string tableOfKeys()
{
    std::string table = "| key | value | what it is |\n|---|---|---|\n";
    appendRow(table, std::string(k_formatVersionKey), std::to_string(k_formatVersion),
              "The version of this form; always there.");
    appendKeys(table, Vocabulary::manifest().root(), "");
    return table;
}

} // namespace

// With ZU_UPDATE_GOLDEN in the environment the table is written anew.
TEST(JsonGuide, ListsAllKeys)
{
    const std::string begin = "<!-- keys -->\n";
    const std::filesystem::path path = zu::test::sourcePath("docs/guide/json.md");
    const std::string guide = zu::test::readFile(path);
    const std::size_t first = guide.find(begin) + begin.size();
    const std::size_t last = guide.find("<!-- end of keys -->");
    ASSERT_LT(first, last);
    if (std::getenv("ZU_UPDATE_GOLDEN")) {
        zu::test::writeFile(path, std::string(guide).replace(first, last - first, tableOfKeys()));
        return;
    }
    EXPECT_EQ(guide.substr(first, last - first), tableOfKeys());
}

TEST(JsonForm, NoObjectHasTwoMembersOfOneName)
{
    for (const ElementEntry& entry : Vocabulary::manifest().elements()) {
        std::set<std::string_view> names{k_formatVersionKey};
        for (const AttributeEntry& attribute : entry.attributes)
            EXPECT_TRUE(names.insert(attribute.name).second) << entry.path;
        for (const ElementEntry* const child : entry.children)
            EXPECT_TRUE(names.insert(child->name).second) << entry.path;
    }
}

TEST(JsonForm, FollowsFromWhatTheVocabularySaysOfAnElement)
{
    const std::pair<const char*, JsonForm> forms[] = {
        {"/package/names", JsonForm::Map},
        {"/package/supportedLanguages", JsonForm::List},
        {"/package/contents", JsonForm::Object},
        {"/package/contents/behaviorContent", JsonForm::List},
        {"/package/contents/behaviorContent/nature", JsonForm::Text},
        {"/package/contents/behaviorContent/tags", JsonForm::ListMap},
        {"/package/contents/behaviorContent/autonomous", JsonForm::ListMap},
        {"/package/contents/behaviorContent/permissions", JsonForm::Names},
        {"/package/contents/dialogContent/topic", JsonForm::Map},
        {"/package/contents/languageContent/engine", JsonForm::Object},
        {"/package/requirements/morvoRequirement", JsonForm::List},
        {"/package/services", JsonForm::List},
        {"/package/services/service/envVar", JsonForm::Map},
        {"/package/executableFiles", JsonForm::List}};
    for (const auto& [path, form] : forms)
        EXPECT_EQ(formOfAll(*Vocabulary::manifest().find(path)), form) << path;
}

} // namespace zupackage::authoring
