#include <zupackage/authoring/manifest_path.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu::authoring {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const SourceDocument& document()
{
    static const SourceDocument result = SourceDocument::parse(R"(<package version="1.0" y:version="2" xmlns:y="u">
  <names><name lang="en">One &amp; all</name><name lang='fr'><![CDATA[Un]]>e</name></names>
  <supportedLanguages><language>en</language><language>fr</language></supportedLanguages>
  <contents>
    <behaviorContent path="a"><tags><tag lang="en">x</tag><tag lang="en">y</tag><tag lang="fr">z</tag></tags>
    </behaviorContent>
    <behaviorContent path="it's"><nature>solitary</nature></behaviorContent>
    <webContent path="web"/>
  </contents>
</package>)");
    return result;
}

std::vector<std::string> texts(const std::string& path)
{
    std::vector<std::string> result;
    for (const PathTarget& target : select(document(), ManifestPath(path)))
        result.push_back(target.text());
    return result;
}

std::string nearest(const std::string& path) { return nearestPath(document(), ManifestPath(path)); }

/// "COLUMN: MESSAGE", or nothing for a path.
std::string syntaxError(std::string_view path)
{
    try {
        const ManifestPath parsed(path);
        return "";
    } catch (const PathSyntaxError& error) {
        return std::to_string(error.column()) + ": " + error.what();
    }
}

} // namespace

TEST(ManifestPath, LeadsToAttributesAndElementsFromTheRootOn)
{
    EXPECT_THAT(texts("@version"), ElementsAre("1.0"));
    EXPECT_THAT(texts("@y:version"), ElementsAre("2"));
    EXPECT_THAT(texts("./@version"), ElementsAre("1.0"));
    EXPECT_THAT(texts("names/name"), ElementsAre("One & all", "Une"));
    EXPECT_THAT(texts("contents/behaviorContent/nature"), ElementsAre("solitary"));
    EXPECT_THAT(texts("contents/*/@path"), ElementsAre("a", "it's", "web"));
    EXPECT_EQ(select(document(), ManifestPath(".")).front().element, document().root());
}

TEST(ManifestPath, PredicatesTellElementsFromEachOther)
{
    EXPECT_THAT(texts("names/name[@lang='fr']"), ElementsAre("Une"));
    EXPECT_THAT(texts("names/name[ @lang = \"fr\" ]"), ElementsAre("Une"));
    EXPECT_THAT(texts("names/name[2]/@lang"), ElementsAre("fr"));
    EXPECT_THAT(texts("supportedLanguages/language[.='fr']"), ElementsAre("fr"));
    EXPECT_THAT(texts("contents/behaviorContent[nature='solitary']/@path"), ElementsAre("it's"));
    EXPECT_THAT(texts("contents/behaviorContent[@path=\"it's\"]/nature"), ElementsAre("solitary"));
    EXPECT_THAT(texts("contents/*[3]/@path"), ElementsAre("web"));
}

TEST(ManifestPath, PredicatesApplyOneAfterTheOtherInEachParent)
{
    EXPECT_THAT(texts("contents/behaviorContent/tags/tag[@lang='en'][2]"), ElementsAre("y"));
    EXPECT_THAT(texts("contents/behaviorContent/tags/tag[2][@lang='fr']"), IsEmpty());
    EXPECT_THAT(texts("names/name[3]"), IsEmpty());
}

TEST(ManifestPath, TakesThePathsOfFindings)
{
    for (std::size_t i = 1; i < document().nodeCount(); ++i) {
        const SourceNode node = document().node(i);
        if (!node.isElement())
            continue;
        const std::vector<PathTarget> targets = select(document(), ManifestPath(node.path()));
        ASSERT_EQ(targets.size(), 1U) << node.path();
        EXPECT_EQ(targets.front().element, node);
        for (const SourceAttribute attribute : node.attributes())
            EXPECT_THAT(texts(attribute.path()), ElementsAre(attribute.value()));
    }
    EXPECT_THAT(texts("/other/names"), IsEmpty());
}

TEST(ManifestPath, OtherTextsAreRefusedWithTheColumn)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", "1: expected the name of an element, an attribute as \"@name\", \"*\" or \".\""},
        {"names/", "7: expected the name of an element, an attribute as \"@name\", \"*\" or \".\""},
        {"//name", "2: expected the name of an element, an attribute as \"@name\", \"*\" or \".\""},
        {"..", "2: expected \"/\", \"[\" or the end"},
        {"@", "2: expected the name of an attribute"},
        {"/@uuid", "3: only elements have attributes"},
        {"@a/b", "3: nothing stands behind an attribute"},
        {"n\xc3\xa9[", "4: expected a position, an attribute, a child or \".\""},
        {"n[0]", "3: expected a position from 1 on"},
        {"n[99999999999999999999]", "3: expected a position from 1 on"},
        {"n[2", "4: expected \"]\""},
        {"n[@]", "4: expected the name of an attribute"},
        {"n[@a]", "5: expected \"=\""},
        {"n[@a=b]", "6: expected a text in quotes"},
        {"n[@a='b]", "7: the text has no closing quote"},
        {"n[@a='b'", "9: expected \"]\""},
        {"n[@a='b'] ", "10: expected \"/\", \"[\" or the end"},
        {"n\xff", "1: the path is no UTF-8"},
    };
    for (const auto& [path, error] : cases)
        EXPECT_EQ(syntaxError(path), error) << path;
}

TEST(NearestPath, GoesAlongTheSameStepsThenToTheMostSimilar)
{
    EXPECT_EQ(nearest("names/name[@lang='ft']"), "names/name[@lang='fr']");
    EXPECT_EQ(nearest("names/nam"), "names/name[@lang='fr']");
    EXPECT_EQ(nearest("nmaes/name"), "names");
    EXPECT_EQ(nearest("@versoin"), "@version");
    EXPECT_EQ(nearest("supportedLanguages/language[.='it']"), "supportedLanguages/language[.='en']");
    EXPECT_EQ(nearest("contents/behaviorContent[@path=\"its\"]"), "contents/behaviorContent[@path=\"it's\"]");
    EXPECT_EQ(nearest("contents/behaviorContent[@path='a']/tags/tag[7]"),
              "contents/behaviorContent[@path='a']/tags/tag[1]");
    EXPECT_EQ(nearest("contents/webContent/@pth"), "contents/webContent/@path");
    EXPECT_EQ(nearest("/package/name"), "/package/names");
}

TEST(NearestPath, IsOneThatCanBeRead)
{
    const SourceDocument files = SourceDocument::parse(
        "<package><executableFiles><file path=\"it's &quot;it&quot;\"/></executableFiles></package>");
    EXPECT_EQ(nearestPath(files, ManifestPath("executableFiles/file[@path='it']")), "executableFiles/file");
}

TEST(NearestPath, IsTheRootElementWhereNothingIsSimilar)
{
    EXPECT_EQ(nearest("executableFiles/file"), "/package");
    EXPECT_EQ(nearest("/manifest/names"), "/package");
    EXPECT_EQ(nearestPath(SourceDocument(), ManifestPath("names")), "");
}

} // namespace zu::authoring
