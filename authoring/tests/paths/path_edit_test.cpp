#include "support/encodings.hpp"
#include "support/files.hpp"
#include "support/texts.hpp"

#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu::authoring {

using test::replaced;

namespace {

SetText setting(const char* path, std::string text) { return {ManifestPath(path), std::move(text)}; }
AddEntry adding(const char* path, std::vector<SetText> parts = {}) { return {ManifestPath(path), std::move(parts)}; }
Remove removing(const char* path) { return {ManifestPath(path)}; }

std::string edit(const std::string& bytes, const std::vector<PathEdit>& edits,
                 VocabularyGuard guard = VocabularyGuard::Enforced)
{
    return edited(SourceDocument::parse(bytes), edits, guard).text();
}

std::string waived(const std::string& bytes, const PathEdit& one)
{
    return edit(bytes, {one}, VocabularyGuard::Waived);
}

/// Why the edits are not made.
std::string failure(const std::string& bytes, const std::vector<PathEdit>& edits,
                    VocabularyGuard guard = VocabularyGuard::Enforced)
{
    try {
        return "made: " + edit(bytes, edits, guard);
    } catch (const PathEditError& error) {
        return (error.reason() == PathEditError::Reason::NotThere ? "not there: " : "refused: ") +
               std::string(error.what());
    }
}

const std::string k_manifest = R"(<?xml version='1.0'?>
<package uuid='a'  version="1.0">
  <!-- Words. -->
  <names>
    <name lang="en">One &#38; all</name> <!-- fine -->
    <name lang='fr'>Un</name>
  </names>

  <contents/>
</package>)";

} // namespace

TEST(PathEdit, SettingATextLeavesEverythingElse)
{
    EXPECT_EQ(edit(k_manifest, {setting("@version", "2.0")}), replaced(k_manifest, "1.0\">", "2.0\">"));
    EXPECT_EQ(edit(k_manifest, {setting("@uuid", "it's \"b\"")}), replaced(k_manifest, "'a'", "'it&apos;s \"b\"'"));
    EXPECT_EQ(edit(k_manifest, {setting("names/name[@lang='fr']", "<Une>")}),
              replaced(k_manifest, ">Un<", ">&lt;Une&gt;<"));
    EXPECT_EQ(edit(k_manifest, {setting("names/name[1]/@lang", "en_GB")}), replaced(k_manifest, "\"en\"", "\"en_GB\""));
}

TEST(PathEdit, ATextThatIsThereAlreadyChangesNoByte)
{
    EXPECT_EQ(edit(k_manifest, {setting("names/name[@lang='en']", "One & all"), setting("@version", "1.0")}),
              k_manifest);
}

TEST(PathEdit, SettingReachesAllThatThePathLeadsTo)
{
    EXPECT_EQ(edit("<p><names><name lang='a'>x</name><name lang='b'/></names></p>", {setting("names/name", "y")}),
              "<p><names><name lang='a'>y</name><name lang='b'>y</name></names></p>");
}

TEST(PathEdit, CDataSectionsStayAndCommentsInTextsToo)
{
    const std::string path = "contents/behaviorContent/autonomous/condition";
    const auto condition = [](const std::string& text) {
        return "<p><contents><behaviorContent><autonomous><condition purpose='p'>" + text +
               "</condition></autonomous></behaviorContent></contents></p>";
    };
    const auto set = [&](const std::string& text, const std::string& now) {
        return edit(condition(text), {setting(path.c_str(), now)});
    };
    EXPECT_EQ(set("<![CDATA[a<b]]>", "a&b"), condition("<![CDATA[a&b]]>"));
    EXPECT_EQ(set("<![CDATA[a<b]]>", "a]]>b"), condition("a]]&gt;b"));
    EXPECT_EQ(set(" <![CDATA[a]]> <!-- c -->b", "x"), condition("<![CDATA[x]]><!-- c -->"));
    EXPECT_EQ(set("\n a<!-- c -->\n", "x"), condition("x<!-- c -->"));
    EXPECT_EQ(set("<!-- c -->", "x"), condition("<!-- c -->x"));
}

TEST(PathEdit, WhatIsMissingIsMadeWhereManifestsHaveIt)
{
    EXPECT_EQ(edit(k_manifest, {setting("names/name[@lang='de']", "Eins")}),
              replaced(k_manifest, ">Un</name>", ">Un</name>\n    <name lang=\"de\">Eins</name>"));
    EXPECT_EQ(edit(k_manifest, {setting("descriptions/description[@lang='en']", "All")}),
              replaced(k_manifest, "</names>\n",
                       "</names>\n  <descriptions>\n    <description lang='en'>All</description>\n"
                       "  </descriptions>\n"));
    EXPECT_EQ(edit(k_manifest, {setting("contents/behaviorContent[@path='b']/nature", "solitary")}),
              replaced(k_manifest, "<contents/>",
                       "<contents>\n    <behaviorContent path='b'>\n      <nature>solitary</nature>\n"
                       "    </behaviorContent>\n  </contents>"));
    EXPECT_EQ(edit(k_manifest, {setting("@author", "I")}), replaced(k_manifest, "\"1.0\">", "\"1.0\" author='I'>"));
}

TEST(PathEdit, WhatComesFirstStandsFirst)
{
    EXPECT_EQ(edit("<package\n  version='1'>\n  <contents/>\n</package>",
                   {setting("@uuid", "a"), setting("names/name[@lang='en']", "A")}),
              "<package\n  uuid='a'\n  version='1'>\n  <names>\n    <name lang='en'>A</name>\n  </names>\n  "
              "<contents/>\n</package>");
}

TEST(PathEdit, PartsThatAreAlikeAreEntriesOfTheirOwn)
{
    const SetText fun = setting("tags/tag[@lang='en']", "fun");
    EXPECT_EQ(edit("<p><contents><behaviorContent path='a'/></contents></p>",
                   {adding("contents/behaviorContent[@path='b']", {fun, fun})}),
              "<p><contents><behaviorContent path='a'/><behaviorContent path='b'><tags><tag lang='en'>fun</tag>"
              "<tag lang='en'>fun</tag></tags></behaviorContent></contents></p>");
}

TEST(PathEdit, NewEntriesAreLaidOutAsTheirNeighbours)
{
    const AddEntry german = adding("names/name", {setting("@lang", "de"), setting(".", "E")});
    EXPECT_EQ(edit("<p><names><name lang='en'>A</name></names></p>", {german}),
              "<p><names><name lang='en'>A</name><name lang='de'>E</name></names></p>");
    EXPECT_EQ(edit("<p>\r\n\t<names>\r\n\t</names>\r\n</p>\r\n", {german}),
              "<p>\r\n\t<names>\r\n\t\t<name lang=\"de\">E</name>\r\n\t</names>\r\n</p>\r\n");
    EXPECT_EQ(
        edit("<p>\n <names>\n   <name lang='en'/><!-- 1 -->  <!-- 2 -->\n </names>\n</p>", {german}),
        "<p>\n <names>\n   <name lang='en'/><!-- 1 -->  <!-- 2 -->\n   <name lang='de'>E</name>\n </names>\n</p>");
    EXPECT_EQ(edit("<p>\n <names>\n  <!-- none -->\n </names>\n</p>", {german}),
              "<p>\n <names>\n  <!-- none -->\n  <name lang=\"de\">E</name>\n </names>\n</p>");
    EXPECT_EQ(edit("<p/>", {german}), "<p>\n  <names>\n    <name lang=\"de\">E</name>\n  </names>\n</p>");
}

TEST(PathEdit, AnEntryIsAppendedWithAttributesChildrenAndTexts)
{
    EXPECT_EQ(edit("<p>\n  <contents/>\n</p>",
                   {adding("contents/behaviorContent",
                           {setting("names/name[@lang='en']", "B"), setting("names/name[@lang='fr']", "C"),
                            setting("nature", "solitary"), setting("userRequestable", ""),
                            setting("autonomous/condition[@purpose='p']", "a\n<b"), setting("@path", "b")})}),
              R"(<p>
  <contents>
    <behaviorContent path="b">
      <userRequestable/>
      <nature>solitary</nature>
      <names>
        <name lang="en">B</name>
        <name lang="fr">C</name>
      </names>
      <autonomous>
        <condition purpose="p"><![CDATA[a
<b]]></condition>
      </autonomous>
    </behaviorContent>
  </contents>
</p>)");
    EXPECT_EQ(edit("<p><supportedLanguages/></p>", {adding("supportedLanguages/language[.='fr']")}),
              "<p><supportedLanguages><language>fr</language></supportedLanguages></p>");
}

TEST(PathEdit, PartsOfOnePathAreEntriesOfTheirOwnInAList)
{
    EXPECT_EQ(edit("<p><contents/></p>",
                   {adding("contents/behaviorContent", {setting("@path", "a"), setting("tags/tag[@lang='en']", "1"),
                                                        setting("tags/tag[@lang='en']", "2"),
                                                        setting("tags/tag/@lang", "fr"), setting("tags/tag", "3")})}),
              "<p><contents><behaviorContent path=\"a\"><tags><tag lang=\"en\">1</tag><tag lang=\"en\">2</tag>"
              "<tag lang=\"fr\">3</tag></tags></behaviorContent></contents></p>");
}

TEST(PathEdit, ContradictionsAreRefused)
{
    const std::pair<PathEdit, const char*> cases[] = {
        {adding("contents/behaviorContent[@path='x']", {setting("@path", "a")}),
         "refused: \"@path\" cannot become \"a\" and something else, too"},
        {adding("contents/behaviorContent[@path='x']",
                {setting("nature", "solitary"), setting("nature", "interactive")}),
         "refused: \"nature\" cannot become \"interactive\" and something else, too"},
        {adding("contents/behaviorContent[@path='x']",
                {setting("names/name[@lang='en']", "a"), setting("names/name[@lang='en']", "b")}),
         "refused: there is a \"name\" for \"en\" already"},
        {setting("contents/behaviorContent[@path='a'][@path='b']/userRequestable", ""),
         "refused: \"behaviorContent[@path='a'][@path='b']\" does not say what to make"},
        {setting("supportedLanguages/language[.='fr']", "de"),
         "not there: there is no supportedLanguages/language[.='fr']; the nearest is /package"},
        {setting("names/name[@lang='de']/@lang", "es"),
         "not there: there is no names/name[@lang='de']/@lang; the nearest is names/name[@lang='en']"},
    };
    for (const auto& [one, reason] : cases)
        EXPECT_EQ(failure(k_manifest, {one}), reason);
}

TEST(PathEdit, RemovingTakesTheLineOfAnElementAndTheBlankBeforeAnAttribute)
{
    EXPECT_EQ(edit(k_manifest, {removing("names/name[@lang='fr']")}),
              replaced(k_manifest, "    <name lang='fr'>Un</name>\n", ""));
    EXPECT_EQ(edit(k_manifest + "\n", {removing("names")}).find("names"), std::string::npos);
    EXPECT_EQ(edit("<p author='a' channel='b'/>", {removing("@author"), removing("@channel")}), "<p/>");
    EXPECT_EQ(edit("<p><tags><a/> <b/></tags></p>", {removing("tags/*")}), "<p><tags> </tags></p>");
}

TEST(PathEdit, EachEditSeesWhatThoseBeforeItMade)
{
    EXPECT_EQ(edit("<p><names/></p>", {setting("names/name[@lang='en']", "x"), setting("names/name[1]", "y"),
                                       setting("names/name[@lang='fr']", "z"), removing("names/name[1]")}),
              "<p><names><name lang=\"fr\">z</name></names></p>");
}

TEST(PathEdit, AllEditsAreMadeOrNone)
{
    EXPECT_EQ(failure(k_manifest, {setting("@version", "2"), removing("names/name[@lang='fx']")}),
              "not there: there is no names/name[@lang='fx']; the nearest is names/name[@lang='fr']");
}

TEST(PathEdit, APathThatLeadsNowhereNamesTheNearest)
{
    EXPECT_EQ(failure(k_manifest, {setting("names/name[5]", "x")}),
              "not there: there is no names/name[5]; the nearest is names/name[@lang='fr']");
    EXPECT_EQ(failure(k_manifest, {setting("contents/*/@path", "x")}),
              "not there: there is no contents/*/@path; the nearest is contents");
    EXPECT_EQ(failure(k_manifest, {setting("/manifest/names", "x")}),
              "not there: there is no /manifest/names; the nearest is /package");
    EXPECT_EQ(failure(k_manifest, {removing("names/name/@lnag")}),
              "not there: there is no names/name/@lnag; the nearest is names/name/@lang");
}

TEST(PathEdit, WhatWouldReadWrongIsRefused)
{
    const std::pair<PathEdit, const char*> cases[] = {
        {setting("nmaes/name[@lang='de']", "x"), "\"package\" has no element \"nmaes\"; did you mean \"names\"?"},
        {setting("names/nam[@lang='de']", "x"), "\"names\" has no element \"nam\"; did you mean \"name\"?"},
        {setting("@versoin", "1"), "\"package\" has no attribute \"versoin\"; did you mean \"version\"?"},
        {setting("names/name[@land='de']", "x"), "\"name\" has no attribute \"land\"; did you mean \"lang\"?"},
        {setting("@installOnlyAtStartup", "yes"), "\"yes\" is no flag: \"true\", \"1\", \"false\" or \"0\""},
        {setting("@version", "one"), "\"one\" is no version of the form \"1.2\""},
        {setting("@version", ""), "\"package\" needs \"version\""},
        {setting("@date", "today"), "\"today\" is no date of the form \"2026-09-12\""},
        {setting("names/name[@lang='not a code']", "x"), "\"not a code\" is no language code"},
        {setting("contents/behaviorContent[@path='b']/nature", "shy"),
         "\"shy\" is neither \"interactive\" nor \"solitary\""},
        {setting("names", "x"), "\"names\" holds elements, which a text would replace"},
        {setting("contents", "x"), "\"x\" stands where no text does"},
        {setting("services/service[@name='s']/@autorun", "true"), "\"service\" needs \"execStart\""},
        {adding("names/name", {setting(".", "x")}), "\"name\" needs \"lang\""},
        {adding("names/name[@lang='fr']"), "there is a \"name\" for \"fr\" already"},
        {adding("contents"), "there is a \"contents\" already"},
        {adding("@uuid"), "\"@uuid\" leads to no element that could be appended to a list"},
        {adding("/package"), "\"/package\" leads to no element that could be appended to a list"},
        {adding("names/name", {setting("/x", "")}), "\"/x\" is not relative to the new entry"},
        {adding("names/name[2]"), "\"name[2]\" does not say what to make"},
        {removing("@uuid"), "\"package\" needs \"uuid\""},
        {removing("."), "a document needs its root element"},
        {setting("@author", "\x01"), "\"\xef\xbf\xbd\" has a character that XML cannot carry"},
        {setting("@author", "\xff"), "\"\xef\xbf\xbd\" is no UTF-8"},
    };
    for (const auto& [one, reason] : cases)
        EXPECT_EQ(failure(k_manifest, {one}), std::string("refused: ") + reason);
}

TEST(PathEdit, WithoutTheGuardAllIsMadeThatIsWellFormed)
{
    EXPECT_EQ(waived("<p/>", setting("@x", "yes")), "<p x=\"yes\"/>");
    EXPECT_EQ(waived("<p><names><name>a</name></names></p>", setting("names", "x")), "<p><names>x</names></p>");
    EXPECT_EQ(waived("<p>a</p>", adding("q")), "<p>a<q/></p>");
    EXPECT_EQ(failure("<p/>", {setting("q:x", "")}, VocabularyGuard::Waived),
              "refused: that would be no well-formed XML: the namespace prefix 'q' is not declared");
    EXPECT_EQ(failure("<p/>", {setting("@x", std::string(1, '\0'))}, VocabularyGuard::Waived),
              std::string("refused: \"\xef\xbf\xbd\" has a character that XML cannot carry"));
}

TEST(PathEdit, UnknownPartsThatAreThereAlreadyCanBeChanged)
{
    EXPECT_EQ(edit("<p x='1'><q>a</q></p>", {setting("@x", "2"), setting("q", "b")}), "<p x='2'><q>b</q></p>");
}

TEST(PathEdit, KeepsTheEncoding)
{
    for (const char* encoding : {"UTF-16LE", "UTF-16BE", "UTF-32LE"}) {
        const auto bytes = [encoding](const std::string& text) { return test::encoded(text, encoding); };
        EXPECT_EQ(edit(bytes("<p><names/>\n</p>"), {setting("names/name[@lang='en']", "\xe2\x82\xac")}),
                  bytes("<p><names><name lang=\"en\">\xe2\x82\xac</name></names>\n</p>"))
            << encoding;
    }
    const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?><p author='\xe9'><q><![CDATA[a]]></q></p>";
    EXPECT_EQ(edit(latin, {setting("q", "\xc3\xa9\xe2\x82\xac")}),
              "<?xml version='1.0' encoding='ISO-8859-1'?><p author='\xe9'><q>\xe9&#8364;</q></p>");
}

} // namespace zu::authoring
