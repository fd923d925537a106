#include "support/read_as.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/rule.hpp>
#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>

#include <map>

namespace zu::authoring {

using test::readAs;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

enum class Outcome
{
    Same,   ///< reads as it did
    AsGood, ///< reads as the good example
    Other,
};

/// What becomes of the bad example of a rule, which has findings of that rule alone and needs no files to be fixed.
std::map<std::string_view, Outcome> outcomes(bool alsoUnsafe)
{
    std::map<std::string_view, Outcome> result;
    for (const Rule& rule : rules()) {
        const SourceDocument bad = SourceDocument::parse(manifestWith(rule, rule.badExample));
        const std::string fixed = applyFixes(bad, check(bad).findings, alsoUnsafe);
        if (fixed == bad.text())
            continue;
        const std::string read = readAs(fixed);
        result[rule.id] = read == readAs(bad.text())                             ? Outcome::Same
                          : read == readAs(manifestWith(rule, rule.goodExample)) ? Outcome::AsGood
                                                                                 : Outcome::Other;
        // Who is going to make the fix has to hear that it makes another package.
        if (result[rule.id] != Outcome::Same) {
            EXPECT_THAT(std::string(rule.explanation), HasSubstr(" fix ")) << rule.id;
        }
    }
    return result;
}

} // namespace

TEST(Fixes, ThatAreSafeLeaveThePackageAsItReads)
{
    EXPECT_EQ(outcomes(false), (std::map<std::string_view, Outcome>{{"wide-reference", Outcome::AsGood},
                                                                    {"repeated-element", Outcome::Same},
                                                                    {"repeated-permission", Outcome::Same},
                                                                    {"repeated-web-content", Outcome::Same},
                                                                    {"repeated-language", Outcome::Same},
                                                                    {"repeated-env-var", Outcome::Same}}));
}

TEST(Fixes, ThatAreNotSafeMakeOfThePackageWhatTheirRulesSay)
{
    EXPECT_EQ(outcomes(true),
              (std::map<std::string_view, Outcome>{
                  {"wide-reference", Outcome::AsGood},       {"unknown-root", Outcome::Same},
                  {"unknown-element", Outcome::AsGood},      {"unknown-attribute", Outcome::AsGood},
                  {"counted-node", Outcome::AsGood},         {"stray-text", Outcome::Same},
                  {"invalid-flag", Outcome::AsGood},         {"unknown-nature", Outcome::AsGood},
                  {"user-requestable-text", Outcome::Other}, {"padded-text", Outcome::AsGood},
                  {"repeated-element", Outcome::Same},       {"repeated-permission", Outcome::Same},
                  {"repeated-web-content", Outcome::Same},   {"repeated-language", Outcome::Same},
                  {"repeated-env-var", Outcome::Same},       {"repeated-service", Outcome::Other},
                  {"repeated-behavior", Outcome::Other},     {"repeated-dialog-topic", Outcome::Other},
                  {"repeated-requirement", Outcome::AsGood}, {"repeated-executable-file", Outcome::AsGood},
                  {"repeated-text", Outcome::Other}}));
}

TEST(Fixes, OfWideReferencesReadAsTheCharacterThatWasMeant)
{
    const std::string before = "<package><names><name lang='en'>";
    const std::string after = "</name></names></package>";
    const SourceDocument document = SourceDocument::parse(before + "a&#x1F600;z" + after);
    const std::string fixed = applyFixes(document, check(document).findings, false);
    EXPECT_EQ(fixed, before + "a\xF0\x9F\x98\x80z" + after);
    PackageInfo package;
    ASSERT_TRUE(readManifest(fixed, package));
    EXPECT_EQ(package.name("en"), "a\xF0\x9F\x98\x80z");
    PackageInfo cut;
    ASSERT_TRUE(readManifest(document.text(), cut));
    EXPECT_NE(cut.name("en"), package.name("en"));
}

TEST(Fixes, TakeAUserRequestableThatSaysNoAtItsWord)
{
    const SourceDocument document = SourceDocument::parse(
        "<package><contents><behaviorContent><userRequestable>no</userRequestable></behaviorContent></contents>"
        "</package>");
    EXPECT_EQ(applyFixes(document, check(document).findings, true),
              "<package><contents><behaviorContent></behaviorContent></contents></package>");
}

TEST(Fixes, OfRepeatedEntriesKeepTheFirst)
{
    const SourceDocument document = SourceDocument::parse(
        "<package><services><service name='a' execStart='x'/><service name='a' execStart='y'/></services></package>");
    EXPECT_EQ(applyFixes(document, check(document).findings, true),
              "<package><services><service name='a' execStart='x'/></services></package>");
}

TEST(Fixes, OfPaddedFlagsMakeThemWhatWasMeant)
{
    const SourceDocument document = SourceDocument::parse("<package installOnlyAtStartup=' true '/>");
    EXPECT_EQ(applyFixes(document, check(document).findings, false), "<package installOnlyAtStartup='true'/>");
}

TEST(Fixes, TakeTheLineOfWhatTheyRemove)
{
    const std::string before = "<package>\r\n  <contents>\r\n    <behaviorContent path='a'>\r\n      <permissions>\r\n"
                               "        <canSitDown/>\r\n        <canSitDown/>\r\n      </permissions>";
    const std::string end = "</behaviorContent></contents></package>";
    const SourceDocument document = SourceDocument::parse(before + end);
    std::vector<std::size_t> applied;
    const auto findings = check(document).findings;
    EXPECT_EQ(applyFixes(document, findings, false, &applied),
              "<package>\r\n  <contents>\r\n    <behaviorContent path='a'>\r\n      <permissions>\r\n"
              "        <canSitDown/>\r\n      </permissions>" +
                  end);
    ASSERT_THAT(applied, SizeIs(1));
    EXPECT_EQ(findings[applied[0]].rule, "repeated-permission");
}

TEST(Fixes, ThatAreNotSafeWaitUntilTheyAreAskedFor)
{
    const SourceDocument document = SourceDocument::parse("<package versoin='1'/>");
    const auto findings = check(document).findings;
    EXPECT_EQ(applyFixes(document, findings, false), document.text());
    EXPECT_EQ(applyFixes(document, findings, true), "<package version='1'/>");
}

} // namespace zu::authoring
