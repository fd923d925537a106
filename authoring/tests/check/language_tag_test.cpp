#include "check/language_tag.hpp"

#include <gtest/gtest.h>

namespace zupackage::check {

TEST(LanguageTag, HasItsParts)
{
    const auto tag = parseLanguageTag("zh-Hant-TW-1994-u-co-stroke-x-a");
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->language, "zh");
    EXPECT_EQ(tag->script, "Hant");
    EXPECT_EQ(tag->region, "TW");
    EXPECT_EQ(tag->separator, '-');
    EXPECT_EQ(parseLanguageTag("fr_CA")->separator, '_');
    EXPECT_EQ(parseLanguageTag("en")->separator, '\0');
    EXPECT_EQ(parseLanguageTag("es-419")->region, "419");
    EXPECT_EQ(parseLanguageTag("x-robot")->language, "");
}

TEST(LanguageTag, IsRefusedWhenItIsNotWellFormed)
{
    for (const char* code : {"",
                             "e",
                             "english",
                             "en-",
                             "-en",
                             "en--GB",
                             "en_GB-x",
                             "en GB",
                             "en-GB-US",
                             "en-Latn-Latn",
                             "en.UTF-8",
                             "e1",
                             "en-u",
                             "en-x",
                             "x",
                             "x-",
                             "en-GB-variantthatistoolong",
                             "\xC3\xA9n",
                             "i-nobody",
                             "i",
                             "en_GB-oed",
                             "zh-cmn-yue-nan-wuu",
                             "en-USA",
                             "fr_FRA",
                             "deu-DEU",
                             "en-abc-GB",
                             "en-A-"})
        EXPECT_FALSE(parseLanguageTag(code)) << code;
}

TEST(LanguageTag, MayExtendALanguage)
{
    const auto tag = parseLanguageTag("zh-cmn-Hans-CN");
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->language, "zh");
    EXPECT_EQ(tag->script, "Hans");
    EXPECT_EQ(tag->region, "CN");
    for (const char* code : {"zh-yue", "sgn-ase", "zh_yue_HK", "zh-min-nan", "no-bok", "AR-ARZ-EG", "kok-gom"})
        EXPECT_EQ(unknownPart(*parseLanguageTag(code)), "") << code;
}

TEST(LanguageTag, MayBeOlderThanItsSyntax)
{
    for (const char* code :
         {"i-default", "i-klingon", "I_Klingon", "en-GB-oed", "sgn-BE-FR", "art-lojban", "zh-guoyu"}) {
        const auto tag = parseLanguageTag(code);
        ASSERT_TRUE(tag) << code;
        EXPECT_EQ(unknownPart(*tag), "") << code;
    }
    EXPECT_EQ(canonicalSpelling("EN_gb_OED"), "en_GB_oed");
    EXPECT_EQ(canonicalSpelling("I-KLINGON"), "i-klingon");
}

TEST(LanguageTag, HasASuccessorWhenItsLanguageIsAFormerCode)
{
    EXPECT_EQ(successor(*parseLanguageTag("iw-IL")), "he");
    EXPECT_EQ(successor(*parseLanguageTag("IN")), "id");
    EXPECT_EQ(successor(*parseLanguageTag("ji")), "yi");
    EXPECT_EQ(unknownPart(*parseLanguageTag("iw")), "");
    EXPECT_EQ(successor(*parseLanguageTag("he")), "");
    EXPECT_EQ(successor(*parseLanguageTag("x-iw")), "");
}

TEST(LanguageTag, KnowsTheCodesOfTheStandards)
{
    for (const char* code : {"en", "EN", "ja", "haw", "zh-Hant-TW", "sr_latn_rs", "es-419", "x-robot", "de-1996"})
        EXPECT_EQ(unknownPart(*parseLanguageTag(code)), "") << code;
    EXPECT_EQ(unknownPart(*parseLanguageTag("xq")), "xq");
    EXPECT_EQ(unknownPart(*parseLanguageTag("qqq-DE")), "qqq");
    EXPECT_EQ(unknownPart(*parseLanguageTag("en-UK")), "UK");
    EXPECT_EQ(unknownPart(*parseLanguageTag("en-Lxtn-GB")), "Lxtn");
}

TEST(LanguageTag, HasACanonicalSpelling)
{
    EXPECT_EQ(canonicalSpelling("FR-fr"), "fr-FR");
    EXPECT_EQ(canonicalSpelling("ZH_HANT_tw"), "zh_Hant_TW");
    EXPECT_EQ(canonicalSpelling("en"), "en");
    EXPECT_EQ(canonicalSpelling("No Code"), "No Code");
}

} // namespace zupackage::check
