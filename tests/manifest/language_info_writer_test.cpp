#include "support/manifests.hpp"

#include <gmock/gmock.h>

namespace zu {

namespace {

std::string written(const LanguageInfo& language)
{
    PackageInfo package;
    package.addLanguage(language);
    return package.saveToManifestContent();
}

} // namespace

TEST(LanguageWriter, EngineAndLocaleAreWrittenEvenWhenEmpty)
{
    EXPECT_THAT(written(LanguageInfo()), testing::HasSubstr("  <languageContent path=\"\">\n"
                                                            "   <engine name=\"\" version=\"\"/>\n"
                                                            "   <locale></locale>\n"
                                                            "  </languageContent>\n"));
}

TEST(LanguageWriter, WhatIsWrittenReadsBack)
{
    LanguageInfo language;
    language.setPath("lang/de");
    language.setEngineName("voice");
    language.setEngineVersion("2.0");
    language.setLocale("de");
    language.setName("German", "en");
    const std::string document = written(language);
    EXPECT_THAT(document, testing::HasSubstr("<locale>de</locale>\n   <names>\n    <name lang=\"en\">German</name>\n"));
    EXPECT_EQ(test::dumpOf(test::packageFrom(document).languages().front()), test::dumpOf(language));
}

} // namespace zu
