#include "support/files.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/rule.hpp>

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <sstream>

namespace zu::authoring {

void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.id; }

using testing::Each;
using testing::IsEmpty;
using testing::MatchesRegex;

namespace {

/// The package that a rule's examples belong to, on disk.
class ExamplePackage : public testing::TestWithParam<Rule>
{
protected:
    ExamplePackage()
    {
        std::istringstream files(std::string(GetParam().files) + " hello/main.steps");
        for (std::string file; files >> file;) {
            std::filesystem::create_directories((m_folder.path() / file).parent_path());
            m_folder.file(file, "");
        }
    }

    /// The ids of the rules that find something in an example.
    std::vector<std::string> found(std::string_view example) const
    {
        std::vector<std::string> ids;
        for (const Diagnostic& finding : check(documentWith(example), options()).findings)
            ids.push_back(finding.rule);
        return ids;
    }

    SourceDocument documentWith(std::string_view example) const
    {
        return SourceDocument::parse(manifestWith(GetParam(), example));
    }

    CheckOptions options() const
    {
        CheckOptions options;
        if (!GetParam().files.empty())
            options.root = m_folder.path().string();
        return options;
    }

private:
    test::TemporaryFolder m_folder;
};

std::string testNameOf(const testing::TestParamInfo<Rule>& info)
{
    std::string name(info.param.id);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace

TEST_P(ExamplePackage, OfTheRuleIsBadForItAlone)
{
    const std::vector<std::string> ids = found(GetParam().badExample);
    EXPECT_THAT(ids, Not(IsEmpty()));
    EXPECT_THAT(ids, Each(std::string(GetParam().id)));
}

TEST_P(ExamplePackage, OfTheRuleIsGoodForAll) { EXPECT_THAT(found(GetParam().goodExample), IsEmpty()); }

TEST_P(ExamplePackage, IsFixedAtOnce)
{
    const SourceDocument document = documentWith(GetParam().badExample);
    const std::vector<Diagnostic> findings = check(document, options()).findings;
    const bool hasFixes =
        std::any_of(findings.begin(), findings.end(), [](const Diagnostic& finding) { return finding.fix; });
    const SourceDocument fixed = SourceDocument::parse(applyFixes(document, findings, true));
    EXPECT_EQ(fixed.text() == document.text(), !hasFixes);
    EXPECT_EQ(applyFixes(fixed, check(fixed, options()).findings, true), fixed.text());
}

INSTANTIATE_TEST_SUITE_P(Each, ExamplePackage, testing::ValuesIn(rules()), testNameOf);

TEST(Rules, AreDescribed)
{
    std::set<std::string_view> ids;
    for (const Rule& rule : rules()) {
        SCOPED_TRACE(rule.id);
        EXPECT_TRUE(ids.insert(rule.id).second);
        EXPECT_THAT(std::string(rule.id), MatchesRegex("[a-z]+(-[a-z]+)*"));
        EXPECT_THAT(std::string(rule.summary), MatchesRegex("[A-Z\"].*[^.]"));
        EXPECT_THAT(std::string(rule.explanation), MatchesRegex("[A-Z\"].*\\."));
        EXPECT_EQ(findRule(rule.id), &rule);
    }
    EXPECT_EQ(findRule("no-such-rule"), nullptr);
}

} // namespace zu::authoring
