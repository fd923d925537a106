#include <zupackage/authoring/check.hpp>

#include <gmock/gmock.h>

namespace zu::authoring {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

const std::string k_english = "<descriptionLanguages><language>en</language></descriptionLanguages>";

CheckReport checked(const std::string& sections, const std::string& inBehavior = "")
{
    return check(SourceDocument::parse("<package uuid='u' version='1'><names><name lang='en'>N</name></names>" +
                                       sections + "<contents><behaviorContent path='b'><nature>solitary</nature>" +
                                       inBehavior + "</behaviorContent></contents></package>"));
}

std::vector<std::string> found(const std::string& sections, const std::string& inBehavior = "")
{
    std::vector<std::string> ids;
    for (const Diagnostic& finding : checked(sections, inBehavior).findings)
        ids.push_back(finding.rule);
    return ids;
}

} // namespace

TEST(MissingDescriptions, AreToldOnceWhereTheLanguagesAreDeclared)
{
    const CheckReport report = checked(k_english);
    ASSERT_THAT(report.findings, SizeIs(1));
    const Diagnostic& finding = report.findings.front();
    EXPECT_EQ(finding.rule, "missing-descriptions");
    EXPECT_EQ(finding.severity, Severity::Info);
    EXPECT_EQ(finding.message, "the package has no description in any language");
    EXPECT_EQ(finding.range.path, "/package/descriptionLanguages");
    EXPECT_FALSE(finding.fix);
}

TEST(MissingDescriptions, AreThoseOfThePackage)
{
    const std::string descriptions = "<descriptions><description lang='en'>D</description></descriptions>";
    EXPECT_THAT(found(k_english, descriptions), ElementsAre("missing-descriptions"));
    EXPECT_THAT(found(descriptions + k_english), IsEmpty());
}

TEST(MissingDescriptions, AreMissingFromASectionThatHoldsNone)
{
    for (const char* section :
         {"<descriptions/>", "<descriptions></descriptions>", "<descriptions> \n&#xA0;</descriptions>"})
        EXPECT_THAT(found(section + k_english), ElementsAre("empty-section", "missing-descriptions")) << section;
}

// Readers take it for an entry, but it describes the package in no language, as it will when it is mended.
TEST(MissingDescriptions, AreNotMadeUpForByACommentOrAText)
{
    for (const char* node : {"<!-- to do -->", "Says hello", "<![CDATA[Says hello]]>"})
        EXPECT_THAT(found("<descriptions>" + std::string(node) + "</descriptions>" + k_english),
                    Contains("missing-descriptions"))
            << node;
}

TEST(MissingDescriptions, AreNotMissedBesideOneThatOtherRulesJudge)
{
    const auto foundBeside = [](const std::string& description) {
        return found("<descriptions>" + description + "</descriptions>" + k_english);
    };
    EXPECT_THAT(foundBeside("<description lang='en'/>"), ElementsAre("empty-text"));
    EXPECT_THAT(foundBeside("<description lang='en'> </description>"), ElementsAre("blank-text"));
    EXPECT_THAT(foundBeside("<summary lang='en'>D</summary>"), ElementsAre("unknown-element"));
    EXPECT_THAT(foundBeside("<description lang='fr'>D</description>"),
                ElementsAre("missing-description", "trimmed-text"));
}

TEST(MissingDescriptions, AreNotAskedForWhereNoLanguageIsDeclared)
{
    for (const char* languages : {"", "<descriptionLanguages/>",
                                  "<descriptionLanguages><language/><language> </language></descriptionLanguages>",
                                  "<descriptionLanguages><language><![CDATA[ ]]></language></descriptionLanguages>",
                                  "<supportedLanguages><language>en</language></supportedLanguages>"}) {
        EXPECT_THAT(found(languages), Not(Contains("missing-descriptions"))) << languages;
    }
}

TEST(MissingDescriptions, MayStandBehindWhatWasNotUnderstood)
{
    for (const Diagnostic& finding :
         check(SourceDocument::parse("<package uuid='u' version='1'>" + k_english + "<contents></package>")).findings) {
        EXPECT_NE(finding.rule, "missing-descriptions");
    }
}

} // namespace zu::authoring
