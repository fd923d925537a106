#include "support/edited_packages.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"
#include "support/records.hpp"
#include "support/whole_package.hpp"

#include <zupackage/authoring/package_difference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace zu::authoring {

using test::packageFrom;
using test::packageWithContent;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Each change as "added PATH: BEFORE | AFTER".
std::vector<std::string> changes(const PackageInfo& before, const PackageInfo& after)
{
    std::vector<std::string> lines;
    for (const PackageChange& change : differences(before, after))
        lines.push_back(std::string(nameOf(change.kind)) + " " + change.path + ": " + change.before + " | " +
                        change.after);
    return lines;
}

/// The changes between two packages with one element under the root each.
std::vector<std::string> changes(const std::string& before, const std::string& after)
{
    return changes(packageFrom(test::manifest(before)), packageFrom(test::manifest(after)));
}

std::vector<std::string> changesOfContent(const std::string& before, const std::string& after)
{
    return changes(packageWithContent(before), packageWithContent(after));
}

std::vector<std::string> changesOfBehavior(const std::string& before, const std::string& after)
{
    return changesOfContent("<behaviorContent path='b'>" + before + "</behaviorContent>",
                            "<behaviorContent path='b'>" + after + "</behaviorContent>");
}

} // namespace

TEST(PackageDifference, FieldsAreAddedChangedAndRemoved)
{
    EXPECT_THAT(changes(packageFrom("<p version='1' author='A'/>"),
                        packageFrom("<p uuid='u' version='2' installOnlyAtStartup='1'/>")),
                ElementsAre("added @uuid:  | u", "changed @version: 1 | 2", "removed @author: A | ",
                            "changed @installOnlyAtStartup: false | true"));
}

TEST(PackageDifference, TextsAreKnownByTheirLanguage)
{
    EXPECT_THAT(changes("<names><name lang='en'>A</name><name lang='de'>B</name></names>",
                        "<names><name lang='fr'>C</name><name lang='en'>D</name></names>"),
                ElementsAre("removed names/name[@lang='de']: B | ", "changed names/name[@lang='en']: A | D",
                            "added names/name[@lang='fr']:  | C"));
}

TEST(PackageDifference, PartsOfABehaviorAreNamed)
{
    EXPECT_THAT(changesOfBehavior("<userRequestable/><nature>solitary</nature><permissions><canStandUp/></permissions>",
                                  "<nature>interactive</nature>"
                                  "<autonomous><condition purpose='p'>x &lt; 1</condition></autonomous>"),
                ElementsAre("removed contents/behaviorContent[@path='b']/userRequestable:  | ",
                            "changed contents/behaviorContent[@path='b']/nature: solitary | interactive",
                            "added contents/behaviorContent[@path='b']/autonomous/condition[@purpose='p']:  | x < 1",
                            "removed contents/behaviorContent[@path='b']/permissions/canStandUp:  | "));
}

TEST(PackageDifference, AnEntryThatIsNewOrGoneIsOneChangeWithAllThatItHolds)
{
    EXPECT_THAT(changesOfContent("<dialogContent topicName='t'/>",
                                 "<behaviorContent path='b'><nature>&lt;</nature></behaviorContent>"),
                ElementsAre("added contents/behaviorContent[@path='b']:  | "
                            "<behaviorContent path=\"b\">\n  <nature>&lt;</nature>\n</behaviorContent>",
                            "removed contents/dialogContent[@topicName='t']:  | "));
}

TEST(PackageDifference, AMovedEntryHasItsMarkupInBothPackages)
{
    const std::string a = "<dialogContent topicName='a' typeVersion='1'/>";
    const std::vector<PackageChange> moved = differences(packageWithContent("<dialogContent topicName='b'/>" + a),
                                                         packageWithContent(a + "<dialogContent topicName='b'/>"));
    EXPECT_THAT(moved, ElementsAre(PackageChange{"contents/dialogContent[@topicName='a']", ChangeKind::Moved,
                                                 "<dialogContent topicName=\"a\" typeVersion=\"1\"/>",
                                                 "<dialogContent topicName=\"a\" typeVersion=\"1\"/>", true}));
}

TEST(PackageDifference, EntriesAreKnownByWhatIdentifiesThem)
{
    EXPECT_THAT(changesOfContent("<dialogContent topicName='t'><topic language='en' path='x'/></dialogContent>",
                                 "<dialogContent topicName='t'><topic language='en' path='y'/></dialogContent>"),
                ElementsAre("changed contents/dialogContent[@topicName='t']/topic[@language='en']/@path: x | y"));
    EXPECT_THAT(changes("<services><service name='s'><envVar name='A' value='1'/></service></services>",
                        "<services><service name='s' autorun='1'><envVar name='A' value='2'/></service></services>"),
                ElementsAre("changed services/service[@name='s']/@autorun: false | true",
                            "changed services/service[@name='s']/envVar[@name='A']/@value: 1 | 2"));
    EXPECT_THAT(changes("<requirements><robotRequirement model='m'/><morvoRequirement minVersion='1'/></requirements>",
                        "<requirements><robotRequirement model='m' maxHeadVersion='2'/>"
                        "<morvoRequirement minVersion='3'/></requirements>"),
                ElementsAre("changed requirements/morvoRequirement/@minVersion: 1 | 3",
                            "added requirements/robotRequirement[@model='m']/@maxHeadVersion:  | 2"));
    EXPECT_THAT(
        changes("<executableFiles><file path='a'/></executableFiles>",
                "<executableFiles><file path='b'/></executableFiles>"),
        ElementsAre("removed executableFiles/file[@path='a']:  | ", "added executableFiles/file[@path='b']:  | "));
}

TEST(PackageDifference, ASpeechLanguageIsKnownByItsLocaleWhenItsPathChanges)
{
    EXPECT_THAT(changesOfContent("<languageContent path='x'><engine name='e'/><locale>de</locale></languageContent>",
                                 "<languageContent path='y'><engine name='f'/><locale>de</locale></languageContent>"),
                ElementsAre("changed contents/languageContent[@path='y']/@path: x | y",
                            "changed contents/languageContent[@path='y']/engine/@name: e | f"));
}

TEST(PackageDifference, MovedIsWhatLeftTheOrderOfTheOthers)
{
    PackageInfo before;
    PackageInfo after;
    for (const char* path : {"a", "b", "c", "d"})
        before.addBehavior(test::behaviorAt(path));
    for (const char* path : {"d", "a", "b", "new", "c"})
        after.addBehavior(test::behaviorAt(path));
    EXPECT_THAT(changes(before, after), ElementsAre("moved contents/behaviorContent[@path='d']:  | ",
                                                    "added contents/behaviorContent[@path='new']:  | "));
    EXPECT_THAT(changes("<supportedLanguages><l>en</l><l>fr</l></supportedLanguages>",
                        "<supportedLanguages><l>fr</l><l>en</l></supportedLanguages>"),
                ElementsAre("moved supportedLanguages/language[.='fr']: fr | fr"));
    EXPECT_THAT(changesOfBehavior("<permissions><canStandUp/><canSitDown/></permissions>",
                                  "<permissions><canSitDown/><canStandUp/></permissions>"),
                ElementsAre("moved contents/behaviorContent[@path='b']/permissions/canSitDown:  | "));
}

TEST(PackageDifference, ATextInThePlaceOfAnotherIsAChangedOne)
{
    const std::string path = "contents/behaviorContent[@path='b']/tags/tag";
    EXPECT_THAT(changesOfBehavior("<tags><t lang='en'>a</t><t lang='en'>b</t><t lang='fr'>c</t></tags>",
                                  "<tags><t lang='en'>a</t><t lang='en'>x</t><t lang='fr'>c</t></tags>"),
                ElementsAre("changed " + path + "[@lang='en'][2]: b | x"));
    EXPECT_THAT(changesOfBehavior("<tags><t lang='en'>a</t></tags>", "<tags><t lang='fr'>b</t></tags>"),
                ElementsAre("removed " + path + "[@lang='en']: a | ", "added " + path + "[@lang='fr']:  | b"));
    EXPECT_THAT(changesOfBehavior("<tags><t lang='en'>a</t><t lang='en'>b</t></tags>",
                                  "<tags><t lang='en'>b</t><t lang='en'>c</t></tags>"),
                ElementsAre("removed " + path + "[@lang='en'][1]: a | ", "added " + path + "[@lang='en'][2]:  | c"));
}

TEST(PackageDifference, WhatATextIdentifiesBadlyIsNumbered)
{
    PackageInfo before;
    PackageInfo after;
    for (const char* path : {"twice", "twice", "", "it's", "'\"", "\n"})
        after.addExecutableFile(path);
    EXPECT_THAT(changes(before, after),
                ElementsAre("added executableFiles/file[@path='twice'][1]:  | ",
                            "added executableFiles/file[@path='twice'][2]:  | ", "added executableFiles/file[3]:  | ",
                            "added executableFiles/file[@path=\"it's\"]:  | ", "added executableFiles/file[5]:  | ",
                            "added executableFiles/file[6]:  | "));
}

TEST(PackageDifference, CarriageReturnsOfConditionsCount)
{
    const std::string begin = "<autonomous><condition purpose='p'>a";
    EXPECT_THAT(changesOfBehavior(begin + "\nb</condition></autonomous>", begin + "&#13;\nb</condition></autonomous>"),
                ElementsAre("changed contents/behaviorContent[@path='b']/autonomous/condition[@purpose='p']: "
                            "a\nb | a\r\nb"));
}

TEST(PackageDifference, WhatManifestsDoNotCarryDoesNotCount)
{
    PackageInfo package = test::wholePackage();
    package.setInstaller("another");
    package.setPath("another");
    package.setName("", "xx");
    EXPECT_THAT(changes(test::wholePackage(), package), IsEmpty());
    EXPECT_THAT(changes("<names/><contents/>", "<!-- a comment --><foo/><descriptions></descriptions>"), IsEmpty());
}

TEST(PackageDifference, AThousandEntriesMayAllChangePlaces)
{
    PackageInfo before;
    PackageInfo after;
    for (int i = 0; i < 1'000; ++i) {
        before.addBehavior(test::behaviorAt(std::to_string(i)));
        after.addBehavior(test::behaviorAt(std::to_string(999 - i)));
    }
    EXPECT_EQ(differences(before, after).size(), 999U);
}

TEST(PackageDifferenceProperties, PackagesDifferExactlyWhenThereAreDifferences)
{
    int equal = 0;
    const int count = test::checkProperty(test::k_inputs, [&equal] {
        const PackageInfo before = test::anySmallPackage();
        PackageInfo after = before;
        test::editAnything(after, 3);
        RC_ASSERT(differences(before, before).empty());
        const bool isEqual = differences(before, after).empty();
        RC_ASSERT(isEqual == (test::asManifestsCarry(before) == test::asManifestsCarry(after)));
        equal += isEqual ? 1 : 0;
    });
    if (count >= 2'000) { // of few inputs all may be of one kind by chance
        EXPECT_GT(equal, count / 100);
        EXPECT_LT(equal, count - count / 100);
    }
}

TEST(PackageDifferenceProperties, TheWayBackHasTheSameFieldsAndEntriesTheOtherWay)
{
    test::checkProperty(2'000, [] {
        const PackageInfo before = test::anySmallPackage();
        PackageInfo after = before;
        test::editAnything(after, 4);
        const auto count = [](const std::vector<PackageChange>& all, ChangeKind kind) {
            return std::count_if(all.begin(), all.end(), [kind](const PackageChange& c) { return c.kind == kind; });
        };
        const std::vector<PackageChange> there = differences(before, after);
        const std::vector<PackageChange> back = differences(after, before);
        RC_ASSERT(there.size() == back.size());
        RC_ASSERT(count(there, ChangeKind::Added) == count(back, ChangeKind::Removed));
        RC_ASSERT(count(there, ChangeKind::Changed) == count(back, ChangeKind::Changed));
        RC_ASSERT(count(there, ChangeKind::Moved) == count(back, ChangeKind::Moved));
    });
}

} // namespace zu::authoring
