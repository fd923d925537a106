#include "support/manifests.hpp"

namespace zu {

TEST(LanguageDump, ItsNamesHeadingHasNoBlank)
{
    LanguageInfo language;
    EXPECT_EQ(test::dumpOf(language), "ISO 639 code: \nRelative path: \nEngine name: \nEngine version: \nNames:\n");
    language.setLocale("de");
    language.setPath("lang/de");
    language.setEngineName("voice");
    language.setEngineVersion("2.0");
    language.setName("German", "en");
    language.setName("Deutsch", "de");
    EXPECT_EQ(test::dumpOf(language),
              "ISO 639 code: de\nRelative path: lang/de\nEngine name: voice\nEngine version: 2.0\n"
              "Names:\n  de -> Deutsch\n  en -> German\n");
}

} // namespace zu
