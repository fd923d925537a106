#include "support/encodings.hpp"

#include <zupackage/authoring/check.hpp>

#include <gmock/gmock.h>

/// Checks see what readers take from a manifest, however that is written.
namespace zu::authoring {

using testing::Contains;
using testing::Not;

namespace {

std::vector<std::string> idsFoundIn(const std::string& manifest)
{
    std::vector<std::string> ids;
    for (const Diagnostic& finding : check(SourceDocument::parse(manifest)).findings)
        ids.push_back(finding.rule);
    return ids;
}

} // namespace

TEST(CheckReading, FindsLostCharactersHoweverTheyAreWritten)
{
    const std::string lost = "\xEF\xBF\xBD";
    const std::string text = "<p author='A'><names><name lang='en'>Caf" + lost + "</name></names></p>";
    for (const std::string& bytes :
         {text, test::encoded("<?xml version='1.0' encoding='UTF-16BE'?>" + text, "UTF-16BE"),
          std::string("<p><names><name lang='en'>Caf&#xFFFD;</name></names></p>"), "<p author='" + lost + "'/>",
          std::string("<p author='&#xFFFD;'/>")}) {
        EXPECT_THAT(idsFoundIn(bytes), Contains("replacement-character")) << bytes;
    }
}

TEST(CheckReading, TakesForOneWhatReadersTakeForOne)
{
    const auto idsWith = [](const std::string& second) {
        return idsFoundIn("<package><services><service name='s' execStart='python3'>"
                          "<envVar name='a b'/><envVar name='" +
                          second + "'/></service></services></package>");
    };
    EXPECT_THAT(idsWith("a&#32;b"), Contains("repeated-env-var"));
    EXPECT_THAT(idsWith("a\tb"), Not(Contains("repeated-env-var")));
}

TEST(CheckReading, TakesAnyElementAmongSentencesForOne)
{
    const auto idsWith = [](const std::string& sentence) {
        return idsFoundIn("<package><contents><behaviorContent path='b'><userRequestable/>"
                          "<triggerSentences>" +
                          sentence + "</triggerSentences></behaviorContent></contents></package>");
    };
    EXPECT_THAT(idsWith("<phrase lang='en'>Go</phrase>"), Not(Contains("unasked-behavior")));
    EXPECT_THAT(idsWith(""), Contains("unasked-behavior"));
}

} // namespace zu::authoring
