#include <zupackage/authoring/language_matrix.hpp>
#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace zu::authoring {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

namespace {

std::vector<std::string> codesOf(const LanguageMatrix& matrix)
{
    std::vector<std::string> codes;
    for (const MatrixLanguage& language : matrix.languages)
        codes.push_back(language.code);
    return codes;
}

const MatrixLanguage& language(const LanguageMatrix& matrix, const std::string& code)
{
    return *std::find_if(matrix.languages.begin(), matrix.languages.end(),
                         [&](const MatrixLanguage& one) { return one.code == code; });
}

PackageInfo greeter()
{
    PackageInfo package;
    package.setName("Greeter", "en");
    package.setName("Grüßer", "de");
    package.addDescriptionLanguage("en");
    package.addDescriptionLanguage("de");
    package.addDescriptionLanguage("fr");
    package.addSupportedLanguage("en");
    package.addSupportedLanguage("fr");
    return package;
}

} // namespace

TEST(LanguageMatrix, AnEmptyPackageHasARowForItsNamesAndNoLanguages)
{
    const LanguageMatrix matrix = languageMatrix({});
    EXPECT_THAT(matrix.languages, IsEmpty());
    ASSERT_THAT(matrix.parts, SizeIs(1));
    ASSERT_THAT(matrix.parts[0].rows, SizeIs(1));
    EXPECT_EQ(matrix.parts[0].rows[0].kind, TextKind::Names);
}

TEST(LanguageMatrix, NamesAreExpectedInDescriptionLanguages)
{
    const LanguageMatrix matrix = languageMatrix(greeter());
    EXPECT_THAT(codesOf(matrix), ElementsAre("de", "en", "fr"));
    const MatrixRow& names = matrix.parts[0].rows[0];
    EXPECT_THAT(names.counts, ElementsAre(Pair(0, 1), Pair(1, 1)));
    EXPECT_FALSE(matrix.isMissing(names, 0));
    EXPECT_TRUE(matrix.isMissing(names, 2));
}

TEST(LanguageMatrix, ListsAreExpectedInSupportedLanguages)
{
    PackageInfo package = greeter();
    BehaviorInfo behavior;
    behavior.setPath("greet");
    behavior.addTriggerSentence("hello", "en");
    behavior.addTriggerSentence("good morning", "en");
    package.addBehavior(behavior);

    const LanguageMatrix matrix = languageMatrix(package);
    const MatrixPart& part = matrix.parts[1];
    EXPECT_EQ(part.kind, PartKind::Behavior);
    EXPECT_EQ(part.name, "greet");
    ASSERT_THAT(part.rows, SizeIs(1)); // what it has in no language it lacks in none
    EXPECT_EQ(part.rows[0].kind, TextKind::TriggerSentences);
    EXPECT_THAT(part.rows[0].counts, ElementsAre(Pair(1, 2)));
    EXPECT_FALSE(matrix.isMissing(part.rows[0], 0));
    EXPECT_TRUE(matrix.isMissing(part.rows[0], 2));
}

TEST(LanguageMatrix, DialogsHaveTheirTopics)
{
    PackageInfo package = greeter();
    DialogInfo dialog;
    dialog.setTopicName("weather");
    dialog.setTopic("fr", "weather.fr.talk");
    package.addDialog(dialog);

    const LanguageMatrix matrix = languageMatrix(package);
    EXPECT_EQ(matrix.parts[1].kind, PartKind::Dialog);
    EXPECT_EQ(matrix.parts[1].name, "weather");
    EXPECT_TRUE(matrix.isMissing(matrix.parts[1].rows[0], 1));
    EXPECT_FALSE(matrix.isMissing(matrix.parts[1].rows[0], 2));
}

TEST(LanguageMatrix, CoverageCountsWhatIsExpected)
{
    PackageInfo package = greeter();
    package.setDescription("Says hello", "en");
    BehaviorInfo behavior;
    behavior.addTag("hello", "en");
    behavior.addTag("Gruß", "de"); // not expected, and so not counted
    package.addBehavior(behavior);

    const LanguageMatrix matrix = languageMatrix(package);
    EXPECT_EQ(language(matrix, "en").coverage.percent(), 100);
    EXPECT_EQ(language(matrix, "de").coverage.expected, 2U);
    EXPECT_EQ(language(matrix, "de").coverage.percent(), 50);
    EXPECT_EQ(language(matrix, "fr").coverage.expected, 3U);
    EXPECT_EQ(language(matrix, "fr").coverage.percent(), 0);
}

TEST(LanguageMatrix, OnlyWhatIsCompleteHasAHundredPercent)
{
    EXPECT_EQ((Coverage{1000, 999}).percent(), 99);
    EXPECT_EQ((Coverage{1000, 1000}).percent(), 100);
    EXPECT_EQ((Coverage{0, 0}).percent(), 100);
}

TEST(LanguageMatrix, RequiredLanguagesAreExpectedEverywhere)
{
    PackageInfo package = greeter();
    DialogInfo dialog;
    dialog.setTopic("en", "weather.en.talk");
    package.addDialog(dialog);

    const LanguageMatrix matrix = languageMatrix(package, {"de", "ja"});
    EXPECT_EQ(language(matrix, "de").coverage.expected, 2U);
    EXPECT_EQ(language(matrix, "de").coverage.present, 1U);
    EXPECT_EQ(language(matrix, "ja").coverage.expected, 2U);
    EXPECT_EQ(language(matrix, "ja").coverage.present, 0U);
    EXPECT_FALSE(language(matrix, "ja").isStray());
}

TEST(LanguageMatrix, LanguagesThatNobodyDeclaredAreStray)
{
    PackageInfo package = greeter();
    package.setName("Kitchen", "en_US");
    const LanguageMatrix matrix = languageMatrix(package);
    EXPECT_TRUE(language(matrix, "en_US").isStray());
    EXPECT_EQ(language(matrix, "en_US").coverage.expected, 0U);
    EXPECT_FALSE(language(matrix, "en").isStray());
}

TEST(LanguageMatrix, TextsOfWhiteSpaceAreNone)
{
    PackageInfo package = greeter();
    package.setName(" \n\t", "fr");
    package.setName("", "it");
    package.setName("\u00A0\u3000", "es");
    const LanguageMatrix matrix = languageMatrix(package);
    EXPECT_THAT(codesOf(matrix), ElementsAre("de", "en", "fr"));
    EXPECT_TRUE(matrix.isMissing(matrix.parts[0].rows[0], 2));
}

TEST(LanguageMatrix, NoListGrowsWhenItIsLookedAt)
{
    PackageInfo package = greeter();
    BehaviorInfo behavior;
    behavior.addTag("hello", "en");
    package.addBehavior(behavior);
    languageMatrix(package, {"ja"});
    EXPECT_THAT(package.behaviors().front().languagesToTriggerSentences(), IsEmpty());
}

TEST(LanguageMatrix, OfTooManyLanguagesTheDeclaredOnesAreKept)
{
    PackageInfo package = greeter();
    for (int i = 0; i < 600; ++i)
        package.setName("name", "a" + std::to_string(i));
    const LanguageMatrix matrix = languageMatrix(package, {"zz"});
    EXPECT_THAT(matrix.languages, SizeIs(500));
    EXPECT_EQ(matrix.omittedLanguages, 104U);
    EXPECT_TRUE(language(matrix, "fr").isSupported);
    EXPECT_TRUE(language(matrix, "zz").isRequired);
}

} // namespace zu::authoring
