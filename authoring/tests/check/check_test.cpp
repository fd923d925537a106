#include "support/files.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>

#include <algorithm>

namespace zu::authoring {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

std::vector<std::string> idsOf(const std::vector<Diagnostic>& findings)
{
    std::vector<std::string> ids;
    for (const Diagnostic& finding : findings)
        ids.push_back(finding.rule);
    return ids;
}

const std::string k_faulty = "<package uuid='u' version='one'>\n"
                             "  <names><name lang='en'>N</name></names>\n"
                             "  <descriptions><description lang='en'>D</description></descriptions>\n"
                             "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
                             "  <contents>\n"
                             "    <behaviorContent path='a'><nature>solitary</nature></behaviorContent>\n"
                             "    <behaviorContent path='b'><nature>solitary</nature>\n"
                             "      <permissions><é/><canSitDown/><canSitDown/></permissions></behaviorContent>\n"
                             "  </contents>\n"
                             "</package>";

} // namespace

TEST(Check, FindsAllInTheOrderOfPlaces)
{
    const CheckReport report = check(SourceDocument::parse(k_faulty));
    ASSERT_THAT(idsOf(report.findings), ElementsAre("malformed-version", "unknown-permission", "repeated-permission"));
    EXPECT_EQ(report.findings[0].message, "\"one\" is no version of the form \"1.2\" or \"1.2.0-beta\"");
    EXPECT_EQ(report.findings[0].severity, Severity::Error);
    EXPECT_EQ(report.findings[0].range.path, "/package/@version");
    EXPECT_EQ(report.findings[0].range.begin, (Place{1, 28}));
    EXPECT_EQ(report.findings[0].range.end, (Place{1, 31}));
    EXPECT_EQ(report.findings[2].range.begin, (Place{8, 37}));
    EXPECT_EQ(report.findings[2].range.path, "/package/contents/behaviorContent[2]/permissions/canSitDown[2]");
    ASSERT_THAT(report.findings[2].related, SizeIs(1));
    EXPECT_EQ(report.findings[2].related[0].range.begin, (Place{8, 24}));
    EXPECT_EQ(report.omitted, 0U);
}

TEST(Check, FindsThePathsThatTheDocumentGives)
{
    const SourceDocument document = SourceDocument::parse(k_faulty);
    for (const Diagnostic& finding : check(document).findings)
        EXPECT_TRUE(document.find(finding.range.path) || document.findAttribute(finding.range.path))
            << finding.range.path;
}

TEST(Check, RulesHaveTheSeverityThatIsConfigured)
{
    CheckOptions options;
    options.severities["malformed-version"] = Severity::Info;
    options.severities["repeated-permission"] = std::nullopt;
    const CheckReport report = check(SourceDocument::parse(k_faulty), options);
    ASSERT_THAT(idsOf(report.findings), ElementsAre("malformed-version", "unknown-permission"));
    EXPECT_EQ(report.findings[0].severity, Severity::Info);
    ASSERT_THAT(idsOf(report.suppressed), ElementsAre("repeated-permission"));
    EXPECT_EQ(report.suppressed[0].severity, Severity::Warning);
}

TEST(Check, ReportsUpToTheLimitOfEachRule)
{
    std::string files;
    for (int i = 0; i < 10; ++i)
        files += "<file path='a'/>";
    CheckOptions options;
    options.limitPerRule = 3;
    const CheckReport report =
        check(SourceDocument::parse("<package><executableFiles>" + files + "</executableFiles></package>"), options);
    EXPECT_EQ(std::count_if(report.findings.begin(), report.findings.end(),
                            [](const Diagnostic& finding) { return finding.rule == "repeated-executable-file"; }),
              3);
    EXPECT_EQ(report.omitted, 6U);
}

TEST(Check, JudgesWhatAnErrorLeaves)
{
    const CheckReport report =
        check(SourceDocument::parse("<package uuid='u' version='one' date='x'><names></package>"));
    EXPECT_THAT(idsOf(report.findings),
                testing::IsSupersetOf({"malformed-version", "invalid-date", "not-well-formed"}));
}

TEST(Check, SaysWhatRobotsMakeOfAnIllFormedDocument)
{
    constexpr std::string_view k_refused = "; the robot refuses the whole manifest";
    constexpr std::string_view k_read = "; the robot overlooks it and reads the manifest all the same";
    for (const auto& [bytes, isRead] :
         std::vector<std::pair<std::string, bool>>{{"", false},
                                                   {"text", false},
                                                   {"<package>", false},
                                                   {"<package><names></package>", false},
                                                   {"<package/><package/>", false},
                                                   {"<package version=1/>", false},
                                                   {"<package version='<'/>", false},
                                                   {"<package>&</package>", false},
                                                   {"<package>]]></package>", false},
                                                   {"<package><!-- a -- b --></package>", false},
                                                   {" <?xml version='1.0'?><package/>", false},
                                                   {"<package uuid='u' uuid='v'/>", true},
                                                   {"<package uuid='u'version='1'/>", true},
                                                   {"<package>&nobody;</package>", true},
                                                   {"<package>\xFF</package>", true},
                                                   {"<?xml version='1.1'?><package/>", true},
                                                   {"<?xml version='1.0' encoding='none'?><package/>", true}}) {
        SCOPED_TRACE(bytes);
        PackageInfo package;
        EXPECT_EQ(readManifest(bytes, package), isRead);
        std::vector<std::string> messages;
        for (const Diagnostic& finding : check(SourceDocument::parse(bytes)).findings) {
            if (finding.rule == "not-well-formed")
                messages.push_back(finding.message);
        }
        EXPECT_THAT(messages, Not(IsEmpty()));
        EXPECT_THAT(messages, Each(EndsWith(std::string(isRead ? k_read : k_refused))));
    }
}

TEST(Check, TellsTheTextsThatTheReaderDropsFromThoseThatItKeeps)
{
    const std::string kept = "\"description\" holds white space alone";
    const std::string dropped = kept + ", which readers drop";
    for (const auto& [text, message] : std::vector<std::pair<std::string, std::string>>{{" ", dropped},
                                                                                        {"&#xA0;", dropped},
                                                                                        {"&#x3000;", dropped},
                                                                                        {" <!-- c -->&#xA0;", dropped},
                                                                                        {"<![CDATA[ ]]>", kept},
                                                                                        {" <![CDATA[ ]]> ", kept}}) {
        const auto findings = check(SourceDocument::parse("<package><descriptions><description lang='en'>" + text +
                                                          "</description></descriptions></package>"))
                                  .findings;
        const auto found = std::find_if(findings.begin(), findings.end(),
                                        [](const Diagnostic& finding) { return finding.rule == "blank-text"; });
        ASSERT_NE(found, findings.end()) << text;
        EXPECT_EQ(found->message, message);
    }
}

TEST(Check, TakesWhiteSpaceBetweenEntriesForNone)
{
    const std::string names = "<package><names>&#x3000;<name lang='en'>N</name>&#xA0;</names></package>";
    EXPECT_THAT(idsOf(check(SourceDocument::parse(names)).findings), Not(Contains("counted-node")));
    const std::string section = "<package><names><![CDATA[ ]]><name lang='en'>N</name></names></package>";
    EXPECT_THAT(idsOf(check(SourceDocument::parse(section)).findings), Contains("counted-node"));
}

TEST(Check, FindsAttributesOfWhiteSpaceAlone)
{
    for (const char* path :
         {"/package/@uuid", "/package/@author", "/package/names/name[1]/@lang",
          "/package/contents/behaviorContent/@path", "/package/contents/dialogContent/@topicName",
          "/package/contents/dialogContent/topic/@language", "/package/requirements/robotRequirement/@model"}) {
        const SourceDocument document = SourceDocument::parse(
            "<package uuid='&#9;' author=' '><names><name lang='&#xA0;'>N</name></names>"
            "<contents><behaviorContent path=' '/><dialogContent topicName=' '><topic language=' ' path=' '/>"
            "</dialogContent></contents><requirements><robotRequirement model=' '/></requirements></package>");
        const auto findings = check(document).findings;
        const SourceAttribute attribute = document.findAttribute(path);
        EXPECT_TRUE(std::any_of(findings.begin(), findings.end(), [&](const Diagnostic& finding) {
            return (finding.rule == "missing-attribute" || finding.rule == "blank-text") &&
                   finding.range.path == attribute.path();
        })) << path;
    }
}

TEST(Check, TakesAnyBytes)
{
    for (const std::string& bytes :
         {std::string(), std::string("\0", 1), std::string("\xFF\xFE"), std::string("\xFF\xFE<\0", 4)})
        EXPECT_THAT(check(SourceDocument::parse(bytes)).findings, SizeIs(testing::Ge(1U)));
}

TEST(Check, FindsNothingInAnEmptyFolderOfNoPackage)
{
    CheckOptions options;
    options.root = "/no/such/folder";
    EXPECT_THAT(idsOf(check(SourceDocument::parse(k_faulty), options).findings),
                testing::Contains("missing-file").Times(2));
}

TEST(Check, LooksForTheProgramsOfServices)
{
    const test::TemporaryFolder folder;
    folder.file("clock", "");
    CheckOptions options;
    options.root = folder.path().string();
    for (const auto& [command, id] :
         std::vector<std::pair<std::string, std::string>>{{"bin/missing --x", "missing-file"},
                                                          {"../../etc/x", "file-outside-package"},
                                                          {" ./missing", "missing-file"},
                                                          {"./", "not-a-regular-file"},
                                                          {"./clock --x", "service-not-executable"},
                                                          {"clock --x", "service-not-executable"},
                                                          {"/usr/bin/env sh", ""},
                                                          {"python3 main.py", ""}}) {
        std::vector<std::string> ids =
            idsOf(check(SourceDocument::parse("<package uuid='u' version='1'><names><name lang='en'>N</name></names>"
                                              "<descriptions><description lang='en'>D</description></descriptions>"
                                              "<descriptionLanguages><language>en</language></descriptionLanguages>"
                                              "<contents><webContent path='.'/></contents>"
                                              "<services><service name='s' execStart='" +
                                              command + "'/></services></package>"),
                        options)
                      .findings);
        ids.erase(std::remove(ids.begin(), ids.end(), "padded-text"), ids.end());
        EXPECT_EQ(ids, id.empty() ? std::vector<std::string>() : std::vector<std::string>{id}) << command;
    }
}

TEST(Check, FindsTopicsBesideThoseInThePackageItself)
{
    const test::TemporaryFolder folder;
    for (const char* file : {"food.talk", "drinks.talk", "manifest.xml", "notes.txt"})
        folder.file(file, "");
    CheckOptions options;
    options.root = folder.path().string();
    std::vector<std::string> messages;
    for (const Diagnostic& finding :
         check(SourceDocument::parse("<package><contents><dialogContent topicName='food'>"
                                     "<topic language='en' path='food.talk'/></dialogContent></contents></package>"),
               options)
             .findings) {
        if (finding.rule == "unlisted-topic")
            messages.push_back(finding.message);
    }
    EXPECT_THAT(messages, ElementsAre("no topic names \"drinks.talk\""));
}

TEST(Check, FindsExactlyTheTextsThatTrimmingDrops)
{
    const std::vector<std::pair<std::string, std::string>> places = {
        {"<names><name lang='fr'>N</name></names>", ""},
        {"<descriptions><description lang='fr'>D</description></descriptions>", ""},
        {"", "<behaviorContent path='b'><names><name lang='fr'>N</name></names></behaviorContent>"},
        {"", "<behaviorContent path='b'><descriptions><description lang='fr'>D</description></descriptions>"
             "</behaviorContent>"},
        {"", "<behaviorContent path='b'><tags><tag lang='fr'>T</tag></tags></behaviorContent>"},
        {"", "<behaviorContent path='b'><triggerSentences><sentence lang='fr'>S</sentence></triggerSentences>"
             "</behaviorContent>"},
        {"", "<behaviorContent path='b'><loadingResponses><sentence lang='fr'>S</sentence></loadingResponses>"
             "</behaviorContent>"},
        {"", "<dialogContent topicName='t'><topic language='fr' path='t.talk'/></dialogContent>"},
        {"", "<languageContent path='l'><names><name lang='fr'>N</name></names></languageContent>"}};
    for (const auto& [sections, contents] : places) {
        for (const std::string declared : {"en", "f", "fr", "fr_CA"}) {
            const std::string bytes = "<package><supportedLanguages><language>" + declared +
                                      "</language></supportedLanguages><descriptionLanguages><language>" + declared +
                                      "</language></descriptionLanguages>" + sections + "<contents>" + contents +
                                      "</contents></package>";
            PackageInfo package;
            ASSERT_TRUE(readManifest(bytes, package));
            const std::string before = package.saveToManifestContent();
            package.trimExtraInfo();
            const std::vector<std::string> ids = idsOf(check(SourceDocument::parse(bytes)).findings);
            EXPECT_EQ(package.saveToManifestContent() != before, testing::Value(ids, Contains("trimmed-text")))
                << bytes;
        }
    }
}

TEST(Check, OfTheExamplesFindsTheTextsThatTrimmingDrops)
{
    std::vector<std::string> ids;
    for (const std::filesystem::path& example : test::examplePackages()) {
        CheckOptions options;
        options.root = example.string();
        const CheckReport report = check(SourceDocument::parse(test::readFile(example / "manifest.xml")), options);
        for (const Diagnostic& finding : report.findings)
            ids.push_back(example.filename().string() + " " + finding.rule);
    }
    EXPECT_THAT(ids, ElementsAre("story-teller undeclared-language", "story-teller trimmed-text"));
}

} // namespace zu::authoring
