#include "support/captured_log.hpp"
#include "support/manifests.hpp"

#include <gmock/gmock.h>

namespace zu {

using log::Level;
using test::CapturedLog;
using test::LogLine;
using test::manifest;
using test::packageFrom;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

TEST(PackageReader, ReadsTheRootAttributes)
{
    const PackageInfo package = packageFrom(
        manifest("", "uuid='u' version='v' author='a' organization='o' date='d' typeVersion='t' channel='c' "
                     "installOnlyAtStartup='true' installer='i' path='p' unknown='x'"));
    EXPECT_EQ(package.uuid(), "u");
    EXPECT_EQ(package.version(), "v");
    EXPECT_EQ(package.author(), "a");
    EXPECT_EQ(package.organization(), "o");
    EXPECT_EQ(package.date(), "d");
    EXPECT_EQ(package.typeVersion(), "t");
    EXPECT_EQ(package.channel(), "c");
    EXPECT_TRUE(package.installOnlyAtStartup());
    EXPECT_EQ(package.installer(), "");
    EXPECT_EQ(package.path(), "");
}

TEST(PackageReader, ReadsADocumentWithAnyRoot) { EXPECT_EQ(packageFrom("<anything uuid='u'/>").uuid(), "u"); }

TEST(PackageReader, BooleansAreTrueForTrueAndOneAlone)
{
    for (const char* yes : {"true", "1"})
        EXPECT_TRUE(packageFrom(manifest("", std::string("installOnlyAtStartup='") + yes + "'")).installOnlyAtStartup())
            << yes;
    for (const char* no : {"yes", "TRUE", "True", " true", "true ", "01", "", "0", "false"})
        EXPECT_FALSE(packageFrom(manifest("", std::string("installOnlyAtStartup='") + no + "'")).installOnlyAtStartup())
            << no;
    EXPECT_FALSE(packageFrom(manifest("")).installOnlyAtStartup());
}

TEST(PackageReader, AbsentRootAttributesEmptyTheirFields)
{
    PackageInfo package;
    package.setUuid("u");
    package.setChannel("c");
    package.setInstallOnlyAtStartup(true);
    package.setInstaller("i");
    package.setPath("p");
    EXPECT_TRUE(package.loadFromManifestContent("<package version='v'/>"));
    EXPECT_EQ(package.uuid(), "");
    EXPECT_EQ(package.channel(), "");
    EXPECT_FALSE(package.installOnlyAtStartup());
    EXPECT_EQ(package.installer(), "i");
    EXPECT_EQ(package.path(), "p");
}

TEST(PackageReader, LaterTextsOfALanguageWinAcrossElements)
{
    const PackageInfo package = packageFrom(
        manifest("<names><name lang='en'>a</name><name lang='fr'>b</name></names><descriptions><x lang='en'>d</x>"
                 "</descriptions><names><any lang='en'>c</any><name lang='en'>e</name></names>"));
    EXPECT_THAT(package.names(), ElementsAre(Pair("en", "e"), Pair("fr", "b")));
    EXPECT_THAT(package.descriptions(), ElementsAre(Pair("en", "d")));
}

TEST(PackageReader, EveryKindOfChildNodeOfALanguageContainerCounts)
{
    const std::string nodes = "<!-- comment -->loose text<![CDATA[section]]><?instruction?>";
    const PackageInfo package = packageFrom(
        manifest("<names>" + nodes + "</names><descriptions>" + nodes + "</descriptions><supportedLanguages>" + nodes +
                 "</supportedLanguages><descriptionLanguages>" + nodes + "</descriptionLanguages>"));
    EXPECT_THAT(package.names(), ElementsAre(Pair("", "")));
    EXPECT_THAT(package.descriptions(), ElementsAre(Pair("", "")));
    EXPECT_THAT(package.supportedLanguages(), ElementsAre(""));
    EXPECT_THAT(package.descriptionLanguages(), ElementsAre(""));
}

TEST(PackageReader, LanguagesAreKeptOnceInOrder)
{
    const PackageInfo package = packageFrom(
        manifest("<supportedLanguages><language>en</language><language>en</language><any>fr</any></supportedLanguages>"
                 "<descriptionLanguages><language>fr</language><language>fr</language></descriptionLanguages>"));
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("en", "fr"));
    EXPECT_THAT(package.descriptionLanguages(), ElementsAre("fr"));
}

TEST(PackageReader, RequirementsKeepDocumentOrderWithinTheirLists)
{
    const PackageInfo package = packageFrom(manifest(
        "<requirements><robotRequirement model='a' minHeadVersion='1' maxHeadVersion='2' minBodyVersion='3' "
        "maxBodyVersion='4'/><morvoRequirement minVersion='5' maxVersion='6'/><other/><!-- c --><robotRequirement "
        "model='b'/></requirements><requirements><morvoRequirement/></requirements>"));
    ASSERT_THAT(package.robotRequirements(), SizeIs(2));
    const RobotRequirement& robot = package.robotRequirements().front();
    EXPECT_EQ(robot.model + robot.minHeadVersion + robot.maxHeadVersion + robot.minBodyVersion + robot.maxBodyVersion,
              "a1234");
    EXPECT_EQ(package.robotRequirements().back().model, "b");
    ASSERT_THAT(package.morvoRequirements(), SizeIs(2));
    EXPECT_EQ(package.morvoRequirements().front().minVersion, "5");
    EXPECT_EQ(package.morvoRequirements().front().maxVersion, "6");
}

TEST(PackageReader, ReadsServicesAndSkipsOtherChildren)
{
    const PackageInfo package = packageFrom(
        manifest("<services><service name='n' execStart='bin/run --fast' autorun='1'><envVar name='B' value='2'/>"
                 "<other name='C' value='3'/>text<envVar name='A' value='1'/></service><other/><service/></services>"));
    ASSERT_THAT(package.services(), SizeIs(2));
    const PackageService& service = package.services().front();
    EXPECT_EQ(service.name, "n");
    EXPECT_EQ(service.execStart, "bin/run --fast");
    EXPECT_TRUE(service.autoRun);
    EXPECT_THAT(service.envVars, ElementsAre(Pair("A", "1"), Pair("B", "2")));
    EXPECT_FALSE(package.services().back().autoRun);
}

TEST(PackageReader, TheAutorunAttributeIsSpelledInLowerCase)
{
    EXPECT_FALSE(packageFrom(manifest("<services><service autoRun='true'/></services>")).services().front().autoRun);
}

TEST(PackageReader, ARepeatedEnvVarKeepsTheFirstValueWithAWarningEach)
{
    const CapturedLog log;
    const PackageInfo package = packageFrom(
        manifest("<services><service><envVar name='A' value='1'/><envVar name='A' value='2'/><envVar name='A' "
                 "value='3'/></service><service><envVar name='A' value='4'/></service></services>"));
    EXPECT_THAT(package.services().front().envVars, ElementsAre(Pair("A", "1")));
    EXPECT_THAT(package.services().back().envVars, ElementsAre(Pair("A", "4")));
    const LogLine warning{Level::Warning, "zu.package.info", "src/package_info", "zu::_fillPackageService",
                          "A assignement skipped because it has already been set"};
    EXPECT_THAT(log.lines(), ElementsAre(warning, warning));
}

TEST(PackageReader, EveryFileElementIsAppended)
{
    const PackageInfo package =
        packageFrom(manifest("<executableFiles><file path='b'/><file path='a'/><other path='x'/><file/><file path='b'/>"
                             "</executableFiles>"));
    EXPECT_THAT(package.executableFiles(), ElementsAre("b", "a", "", "b"));
}

TEST(PackageReader, ContentsMixInAnyOrderAndUnknownOnesAreSkipped)
{
    const CapturedLog log;
    const PackageInfo package = test::packageWithContent(
        "<languageContent path='l'/><webContent path='w'/><behaviorContent path='b1'/><!-- c --><dialogContent "
        "topicName='d'/><foo/>text<behaviorContent path='b2'/>");
    ASSERT_THAT(package.behaviors(), SizeIs(2));
    EXPECT_EQ(package.behaviors().front().path(), "b1");
    EXPECT_EQ(package.behaviors().back().path(), "b2");
    EXPECT_THAT(package.dialogs(), SizeIs(1));
    EXPECT_THAT(package.languages(), SizeIs(1));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(PackageReader, UnknownElementsUnderTheRootAreIgnoredWithoutAMessage)
{
    const CapturedLog log;
    const PackageInfo package =
        packageFrom(manifest("<webContent path='w'/><foo/><Names><name lang='en'>n</name></Names><!-- c -->text<?pi?>"
                             "<behaviorContent path='outside'/>"));
    EXPECT_EQ(test::dumpOf(package), test::dumpOf(PackageInfo()));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(PackageReader, ReadingTwiceDoublesTheListsButNotTheLanguages)
{
    const std::string document = manifest(
        "<names><name lang='en'>n</name></names><supportedLanguages><language>en</language></supportedLanguages>"
        "<descriptionLanguages><language>en</language></descriptionLanguages><contents><behaviorContent/>"
        "<dialogContent/><languageContent/></contents><requirements><robotRequirement/><morvoRequirement/>"
        "</requirements><services><service/></services><executableFiles><file/></executableFiles>");
    PackageInfo package = packageFrom(document);
    EXPECT_TRUE(package.loadFromManifestContent(document));
    EXPECT_THAT(package.names(), SizeIs(1));
    EXPECT_THAT(package.supportedLanguages(), SizeIs(1));
    EXPECT_THAT(package.descriptionLanguages(), SizeIs(1));
    EXPECT_THAT(package.behaviors(), SizeIs(2));
    EXPECT_THAT(package.dialogs(), SizeIs(2));
    EXPECT_THAT(package.languages(), SizeIs(2));
    EXPECT_THAT(package.robotRequirements(), SizeIs(2));
    EXPECT_THAT(package.morvoRequirements(), SizeIs(2));
    EXPECT_THAT(package.services(), SizeIs(2));
    EXPECT_THAT(package.executableFiles(), SizeIs(2));
}

} // namespace zu
