#include "support/manifests.hpp"

namespace zu {

namespace {

LanguageInfo languageFrom(const std::string& element) { return test::packageWithContent(element).languages().front(); }

} // namespace

TEST(LanguageReader, ReadsEveryElement)
{
    const LanguageInfo language = languageFrom("<languageContent path='lang/de'><names><name lang='en'>German</name>"
                                               "<other lang='de'>Deutsch</other></names><locale>de</locale>"
                                               "<engine name='voice' version='2.0'/></languageContent>");
    EXPECT_EQ(language.path(), "lang/de");
    EXPECT_EQ(language.engineName(), "voice");
    EXPECT_EQ(language.engineVersion(), "2.0");
    EXPECT_EQ(language.locale(), "de");
    EXPECT_EQ(language.name("en"), "German");
    EXPECT_EQ(language.name("de"), "Deutsch");
}

TEST(LanguageReader, AnEmptyElementLeavesTheDefaults)
{
    EXPECT_EQ(test::dumpOf(languageFrom("<languageContent/>")), test::dumpOf(LanguageInfo()));
}

TEST(LanguageReader, EngineAndLocaleAreThoseOfTheLastElements)
{
    const LanguageInfo language =
        languageFrom("<languageContent><engine name='a' version='1'/><locale>de</locale>"
                     "<engine name='b'/><locale>fr</locale><Locale>no</Locale></languageContent>");
    EXPECT_EQ(language.engineName(), "b");
    EXPECT_EQ(language.engineVersion(), "");
    EXPECT_EQ(language.locale(), "fr");
}

TEST(LanguageReader, ACommentAmongTheNamesIsAnEmptyName)
{
    const LanguageInfo language = languageFrom("<languageContent><names><!-- c --></names></languageContent>");
    EXPECT_NE(test::dumpOf(language).find("Names:\n   -> \n"), std::string::npos);
}

} // namespace zu
