#include "support/encodings.hpp"

#include <zupackage/authoring/text_edit.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

std::optional<std::string> applied(const std::string& bytes, const std::vector<TextEdit>& edits)
{
    return applyEdits(SourceDocument::parse(bytes), edits);
}

} // namespace

TEST(TextEdit, WithoutEditsEveryByteStays)
{
    for (const char* bytes : {"<p/>", "", "\xef\xbb\xbf<p a='\xc3\xa9'>\r\n", "\xff\xfe<", "\xff<p>"})
        EXPECT_EQ(applied(bytes, {}), bytes);
}

TEST(TextEdit, RangesAreReplacedAndTextIsInserted)
{
    EXPECT_EQ(applied("<p>abc</p>", {{{3, 4}, "xy"}, {{4, 4}, "1"}, {{4, 4}, "2"}, {{4, 6}, ""}, {{10, 10}, "\n"}}),
              "<p>xy12</p>\n");
}

TEST(TextEdit, OverlappingOrDisorderedEditsAreRefused)
{
    EXPECT_FALSE(applied("<p>abc</p>", {{{3, 5}, ""}, {{4, 6}, ""}}));
    EXPECT_FALSE(applied("<p>abc</p>", {{{5, 6}, ""}, {{3, 4}, ""}}));
    EXPECT_FALSE(applied("<p>abc</p>", {{{5, 4}, ""}}));
    EXPECT_FALSE(applied("<p>abc</p>", {{{5, 11}, ""}}));
}

TEST(TextEdit, ACutCharacterOrByteOrderMarkIsRefused)
{
    EXPECT_FALSE(applied("<p>\xc3\xa9</p>", {{{4, 5}, ""}}));
    EXPECT_FALSE(applied("<p>\xc3\xa9</p>", {{{3, 4}, ""}}));
    EXPECT_FALSE(applied("\xef\xbb\xbf<p/>", {{{0, 0}, "x"}}));
    EXPECT_FALSE(applied(test::encoded("<p/>", "UTF-16LE"), {{{3, 4}, ""}}));
    EXPECT_TRUE(applied("<p>\xc3\xa9</p>", {{{3, 5}, ""}}));
}

TEST(TextEdit, AReplacementThatIsNoUtf8IsRefused) { EXPECT_FALSE(applied("<p/>", {{{0, 0}, "\xff"}})); }

TEST(TextEdit, AReplacementIsEncodedAsTheDocumentIs)
{
    const std::string text = "\xc3\xa9\xe2\x82\xac\xf0\x9f\xa4\x96";
    for (const char* encoding : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
        const std::string bytes = test::encoded("<p></p>", encoding);
        const std::size_t middle = test::encoded("<p>", encoding).size();
        EXPECT_EQ(applied(bytes, {{{middle, middle}, text}}), test::encoded("<p>" + text + "</p>", encoding))
            << encoding;
        EXPECT_EQ(encodedSize(SourceDocument::parse(bytes), text), test::encoded(text, encoding).size()) << encoding;
    }
    EXPECT_EQ(encodedSize(SourceDocument::parse("<p></p>"), text), text.size());
}

TEST(TextEdit, WhatTheEncodingDoesNotHaveBecomesAReference)
{
    const std::string text = "\xc3\xa9\xe2\x82\xac\xf0\x9f\xa4\x96";
    const std::pair<std::string, std::string> rows[] = {{"ISO-8859-1", "\xe9&#8364;&#129302;"},
                                                        {"windows-1252", "\xe9\x80&#129302;"},
                                                        {"KOI8-R", "&#233;&#8364;&#129302;"}};
    for (const auto& [encoding, expected] : rows) {
        const std::string start = "<?xml version='1.0' encoding='" + encoding + "'?><p>";
        EXPECT_EQ(applied(start + "</p>", {{{start.size(), start.size()}, text}}), start + expected + "</p>")
            << encoding;
        EXPECT_EQ(encodedSize(SourceDocument::parse(start + "</p>"), text), expected.size()) << encoding;
    }
}

} // namespace zu::authoring
