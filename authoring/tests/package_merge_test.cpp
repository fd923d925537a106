#include "support/manifests.hpp"
#include "support/records.hpp"

#include <zupackage/authoring/package_merge.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>

namespace zu::authoring {

using test::packageFrom;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The merge of packages with these elements under the root.
PackageMerge merge(const std::string& base, const std::string& ours, const std::string& theirs)
{
    return mergePackages(packageFrom(test::manifest(base)), packageFrom(test::manifest(ours)),
                         packageFrom(test::manifest(theirs)));
}

PackageMerge mergeOfBehaviors(const std::string& base, const std::string& ours, const std::string& theirs)
{
    const auto contents = [](const std::string& children) {
        return "<contents><behaviorContent path='b'>" + children + "</behaviorContent></contents>";
    };
    return merge(contents(base), contents(ours), contents(theirs));
}

std::vector<std::string> linesOf(const std::vector<MergeConflict>& conflicts)
{
    std::vector<std::string> lines;
    for (const MergeConflict& conflict : conflicts)
        lines.push_back(conflict.path + ": " + conflict.base + " | " + conflict.ours + " | " + conflict.theirs);
    return lines;
}

std::list<std::string> mergedTags(const std::vector<std::string>& base, const std::vector<std::string>& ours,
                                  const std::vector<std::string>& theirs)
{
    const auto packageWith = [](const std::vector<std::string>& tags) {
        BehaviorInfo behavior = test::behaviorAt("b");
        for (const std::string& tag : tags)
            behavior.addTag(tag, "en");
        PackageInfo package;
        package.addBehavior(behavior);
        return package;
    };
    const PackageMerge merged = mergePackages(packageWith(base), packageWith(ours), packageWith(theirs));
    EXPECT_THAT(merged.conflicts, IsEmpty());
    return merged.ours.behaviors().front().tags("en");
}

PackageInfo packageWithBehaviors(const std::vector<std::string>& paths)
{
    PackageInfo package;
    for (const std::string& path : paths)
        package.addBehavior(test::behaviorAt(path));
    return package;
}

std::vector<std::string> mergedPaths(const std::vector<std::string>& base, const std::vector<std::string>& ours,
                                     const std::vector<std::string>& theirs)
{
    const PackageMerge merged =
        mergePackages(packageWithBehaviors(base), packageWithBehaviors(ours), packageWithBehaviors(theirs));
    EXPECT_THAT(merged.conflicts, IsEmpty());
    std::vector<std::string> paths;
    for (const BehaviorInfo& behavior : merged.ours.behaviors())
        paths.push_back(behavior.path());
    return paths;
}

} // namespace

TEST(PackageMerge, TakesWhatEachSideChanged)
{
    const PackageMerge merged = mergePackages(packageFrom("<p version='1' author='A' channel='c'/>"),
                                              packageFrom("<p version='2' author='A' channel='c' uuid='u'/>"),
                                              packageFrom("<p version='1' author='B' installOnlyAtStartup='1'/>"));
    EXPECT_THAT(merged.conflicts, IsEmpty());
    EXPECT_EQ(merged.ours.version(), "2");
    EXPECT_EQ(merged.ours.author(), "B");
    EXPECT_EQ(merged.ours.uuid(), "u");
    EXPECT_EQ(merged.ours.channel(), "");
    EXPECT_TRUE(merged.ours.installOnlyAtStartup());
}

TEST(PackageMerge, EntriesAreMergedByWhatIdentifiesThem)
{
    const PackageMerge merged = merge("<names><n lang='en'>A</n><n lang='de'>B</n></names>",
                                      "<names><n lang='de'>B</n><n lang='en'>A</n><n lang='fr'>C</n></names>",
                                      "<names><n lang='en'>X</n><n lang='ja'>D</n></names>");
    EXPECT_THAT(merged.conflicts, IsEmpty());
    EXPECT_THAT(merged.ours.names(),
                ElementsAre(testing::Pair("en", "X"), testing::Pair("fr", "C"), testing::Pair("ja", "D")));
}

TEST(PackageMerge, PartsOfOneBehaviorAreMerged)
{
    const PackageMerge merged =
        mergeOfBehaviors("<nature>solitary</nature><permissions><canStandUp/></permissions>",
                         "<nature>interactive</nature><tags><t lang='en'>a</t></tags>"
                         "<permissions><canStandUp/><canSitDown/></permissions>",
                         "<userRequestable/><nature>solitary</nature><tags><t lang='en'>b</t></tags>");
    EXPECT_THAT(merged.conflicts, IsEmpty());
    const BehaviorInfo& behavior = merged.ours.behaviors().front();
    EXPECT_EQ(behavior.nature(), "interactive");
    EXPECT_TRUE(behavior.isUserRequestable());
    EXPECT_THAT(behavior.tags("en"), ElementsAre("a", "b"));
    EXPECT_THAT(behavior.permissions(), ElementsAre("canSitDown"));
}

TEST(PackageMerge, WhatBothSidesDidIsDoneOnce)
{
    const PackageMerge merged = merge("<supportedLanguages><l>en</l><l>de</l></supportedLanguages>",
                                      "<supportedLanguages><l>en</l><l>fr</l><l>ja</l></supportedLanguages>"
                                      "<executableFiles><file path='x'/></executableFiles>",
                                      "<supportedLanguages><l>en</l><l>fr</l></supportedLanguages>"
                                      "<executableFiles><file path='x'/></executableFiles>");
    EXPECT_THAT(merged.conflicts, IsEmpty());
    EXPECT_THAT(merged.ours.supportedLanguages(), ElementsAre("en", "fr", "ja"));
    EXPECT_THAT(merged.ours.executableFiles(), ElementsAre("x"));
}

TEST(PackageMerge, WhatBothSidesAddedInDifferentPlacesIsThereOnce)
{
    EXPECT_THAT(mergedTags({"d"}, {"g", "d"}, {"g"}), ElementsAre("g"));
    EXPECT_THAT(mergedTags({"e"}, {"b"}, {"e", "m", "b"}), ElementsAre("m", "b"));
    EXPECT_THAT(mergedTags({"a", "b"}, {"g", "b"}, {"a", "g"}), ElementsAre("g"));
    EXPECT_THAT(mergedTags({"d"}, {"g"}, {"g"}), ElementsAre("g"));
}

TEST(PackageMerge, TheOrderOfTheSideThatChangedItStands)
{
    EXPECT_THAT(mergedPaths({"a", "b", "c"}, {"a", "b", "c"}, {"c", "a", "b"}), ElementsAre("c", "a", "b"));
    EXPECT_THAT(mergedPaths({"a", "b", "c"}, {"c", "a", "b"}, {"a", "b", "c"}), ElementsAre("c", "a", "b"));
    EXPECT_THAT(mergedPaths({"a", "b", "c"}, {"c", "a", "b"}, {"b", "a", "c"}), ElementsAre("b", "c", "a"));
}

TEST(PackageMerge, WhatIsNewStandsBehindItsNeighbourAndOursFirst)
{
    EXPECT_THAT(mergedPaths({"a", "b"}, {"a", "b", "ours"}, {"a", "b", "theirs"}),
                ElementsAre("a", "b", "ours", "theirs"));
    EXPECT_THAT(mergedPaths({"a", "b"}, {"b"}, {"new", "a", "newer", "b"}), ElementsAre("new", "newer", "b"));
}

TEST(PackageMerge, ATextThatBothSidesChangedIsAConflict)
{
    const PackageMerge merged = merge("<names><n lang='en'>A</n></names>", "<names><n lang='en'>B</n></names>",
                                      "<names><n lang='en'>C</n><n lang='fr'>D</n></names>");
    EXPECT_THAT(linesOf(merged.conflicts), ElementsAre("names/name[@lang='en']: A | B | C"));
    EXPECT_EQ(merged.ours.name("en"), "B");
    EXPECT_EQ(merged.theirs.name("en"), "C");
    EXPECT_EQ(merged.ours.name("fr"), "D");
    EXPECT_EQ(merged.theirs.name("fr"), "D");
}

TEST(PackageMerge, ATextWithoutANameThatBothSidesChangedIsAConflict)
{
    const PackageMerge merged = mergeOfBehaviors("<triggerSentences><s lang='en'>Go</s></triggerSentences>",
                                                 "<triggerSentences><s lang='en'>Go!</s></triggerSentences>",
                                                 "<triggerSentences><s lang='en'>Start</s></triggerSentences>");
    EXPECT_THAT(linesOf(merged.conflicts),
                ElementsAre("contents/behaviorContent[@path='b']/triggerSentences/sentence[@lang='en']: "
                            "Go | Go! | Start"));
}

TEST(PackageMerge, ATextThatOneSideRemovedAndTheOtherChangedIsAConflict)
{
    EXPECT_THAT(
        linesOf(mergePackages(packageFrom("<p author='A'/>"), packageFrom("<p/>"), packageFrom("<p author='B'/>"))
                    .conflicts),
        ElementsAre("@author: A |  | B"));
    EXPECT_THAT(linesOf(merge("<names><n lang='en'>A</n></names>", "<names><n lang='en'>B</n></names>", "").conflicts),
                ElementsAre("names/name[@lang='en']: A | B | "));
}

TEST(PackageMerge, AnEntryThatOneSideRemovedAndTheOtherChangedIsAConflict)
{
    const std::string base = "<contents><dialogContent topicName='t'/></contents>";
    const std::string changed = "<contents><dialogContent topicName='t' typeVersion='1'/></contents>";
    const std::string markup = "<dialogContent topicName=\"t\" typeVersion=\"1\"/>";
    const PackageMerge removedByUs = merge(base, "", changed);
    EXPECT_THAT(linesOf(removedByUs.conflicts), ElementsAre("contents/dialogContent[@topicName='t']:  |  | " + markup));
    EXPECT_THAT(removedByUs.ours.dialogs(), IsEmpty());
    EXPECT_EQ(removedByUs.theirs.dialogs().size(), 1U);
    const PackageMerge removedByThem = merge(base, changed, "");
    EXPECT_THAT(linesOf(removedByThem.conflicts),
                ElementsAre("contents/dialogContent[@topicName='t']:  | " + markup + " | "));
    EXPECT_EQ(removedByThem.ours.dialogs().size(), 1U);
    EXPECT_THAT(removedByThem.theirs.dialogs(), IsEmpty());
}

TEST(PackageMerge, AnEntryThatBothSidesAddedIsMergedPartByPart)
{
    const PackageMerge merged = merge("", "<services><service name='s' execStart='x' autorun='1'/></services>",
                                      "<services><service name='s' execStart='y' autorun='1'>"
                                      "<envVar name='A' value='1'/></service></services>");
    EXPECT_THAT(linesOf(merged.conflicts), ElementsAre("services/service[@name='s']/@execStart:  | x | y"));
    ASSERT_EQ(merged.ours.services().size(), 1U);
    EXPECT_EQ(merged.ours.services().front().envVars.size(), 1U);
}

TEST(PackageMerge, TextsOfWhiteSpaceStay)
{
    PackageInfo ours;
    ours.setName("  ", "en");
    ours.setName("\r\n", "fr");
    EXPECT_EQ(mergePackages({}, ours, {}).ours.names(), ours.names());
}

TEST(ManifestMerge, WithoutTheirChangesEveryByteOfOursStays)
{
    const std::string base = "<package version='1'/>";
    const std::string ours =
        "<!-- ours -->\r\n<package\n author = 'A'  version='2'><odd/><names ><name lang='en'/></names>"
        "</package>";
    for (const std::string& theirs : {base, ours, std::string("<p version=\"1\" ></p>")}) {
        const ManifestMerge merged = mergeManifests(base, ours, theirs);
        EXPECT_EQ(merged.ours, ours);
        EXPECT_EQ(merged.theirs, ours);
        EXPECT_THAT(merged.conflicts, IsEmpty());
    }
}

TEST(ManifestMerge, TellsWhatTheyChangedThatIsNoPartOfThePackage)
{
    const std::string base = "<p><!-- a --><names>\n</names></p>";
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"<p><!-- b --></p>", {"-<!-- a -->", "+<!-- b -->"}},
        {"<p/>", {"-<!-- a -->"}},
        {"<p odd='1'><!-- a --></p>", {"+odd='1'"}},
        {"<p><!-- a --><odd><x a='1'/><!-- b --></odd></p>", {"+<odd><x a='1'/><!-- b --></odd>"}},
        {"<p><!-- a --><?odd?></p>", {"+<?odd?>"}},
        {"<p><!-- a --><!-- a --></p>", {"+<!-- a -->"}},
        {"<p><!-- a --><contents><webContent path='w'/></contents></p>", {"+<webContent path='w'/>"}},
        {"<p  version='2'><!-- a --></p>", {}},
        {"<p><!-- a --><names><n lang='en'>A</n></names></p>", {}},
    };
    for (const auto& [theirs, expected] : cases) {
        std::vector<std::string> texts;
        for (const UnmergedText& text : mergeManifests(base, base, theirs).leftBehind)
            texts.push_back((text.isRemoved ? "-" : "+") + text.text);
        EXPECT_EQ(texts, expected) << theirs;
    }
}

TEST(ManifestMerge, LeavesNothingBehindThatOursHasOrThatGoesWithAnEntry)
{
    const std::string commented = "<p><!-- b --></p>";
    EXPECT_THAT(mergeManifests("<p><!-- a --></p>", commented, commented).leftBehind, IsEmpty());
    EXPECT_THAT(mergeManifests("<p/>", "<p><!-- a --><!-- b --></p>", commented).leftBehind, IsEmpty());
    const std::string base = "<p><services><service name='s'><!-- a --></service></services></p>";
    EXPECT_THAT(mergeManifests(base, base, "<p><services/></p>").leftBehind, IsEmpty());
}

TEST(ManifestMerge, ABaseWithoutBytesIsAnEmptyPackage)
{
    EXPECT_THAT(linesOf(mergeManifests("", "<p version='1'/>", "<p version='2'/>").conflicts),
                ElementsAre("@version:  | 1 | 2"));
}

TEST(ManifestMerge, TheirChangesAreMadeInOurText)
{
    const std::string base = "<package version=\"1\"><names><name lang=\"en\">A</name></names></package>";
    const ManifestMerge merged = mergeManifests(
        base,
        "<package version = '1'>\n  <!-- names -->\n  <names>\n    <name lang='de'/>\n"
        "    <name lang='en'>A</name>\n  </names>\n</package>",
        "<package version=\"2\"><names><name lang=\"en\">A</name><name lang=\"fr\">B &amp; C</name></names></package>");
    EXPECT_THAT(merged.conflicts, IsEmpty());
    EXPECT_EQ(merged.ours,
              "<package version = '2'>\n  <!-- names -->\n  <names>\n    <name lang='de'/>\n"
              "    <name lang='en'>A</name>\n    <name lang=\"fr\">B &amp; C</name>\n  </names>\n</package>");
}

TEST(ManifestMerge, EmptyTextsOfOursStay)
{
    const std::string ours = "<p version='1'><names><name lang='de'/></names><contents><behaviorContent path='b'><tags>"
                             "<tag lang='en'></tag></tags></behaviorContent></contents></p>";
    EXPECT_EQ(mergeManifests("<p version='1'/>", ours, "<p version='2'/>").ours,
              std::string(ours).replace(ours.find('1'), 1, "2"));
}

TEST(ManifestMerge, TheTextsOfBothSidesDifferInTheConflictAlone)
{
    const std::string ours = "<p  author='A' version='2'>\n</p>";
    const ManifestMerge merged = mergeManifests("<p version='1'/>", ours, "<p version='3' uuid='u'/>");
    EXPECT_THAT(linesOf(merged.conflicts), ElementsAre("@version: 1 | 2 | 3"));
    EXPECT_EQ(std::string(merged.ours).replace(merged.ours.find('2'), 1, "3"), merged.theirs);
    EXPECT_NE(merged.ours.find("uuid='u'"), std::string::npos);
}

} // namespace zu::authoring
