#include "xml/escaping.hpp"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace zupackage::xml {

namespace {

std::string escaped(std::string_view text, Place place)
{
    std::string document = "]]"; // which must not matter to what follows
    appendEscaped(document, text, place);
    return document.substr(2);
}

const std::string k_replacement = "\xef\xbf\xbd";

} // namespace

TEST(XmlEscaping, MarkupBecomesReferencesWhereItWouldBeRead)
{
    EXPECT_EQ(escaped("a<b>c&d\"e'f", Place::Content), "a&lt;b>c&amp;d\"e'f");
    EXPECT_EQ(escaped("a<b>c&d\"e'f", Place::AttributeValue), "a&lt;b>c&amp;d&quot;e'f");
    EXPECT_EQ(escaped("a<b>c&d\"e'f", Place::CData), "a<b>c&d\"e'f");
}

TEST(XmlEscaping, WhiteSpaceBecomesReferencesWhereParsersWouldChangeIt)
{
    EXPECT_EQ(escaped(" \t\n\r", Place::Content), " \t\n&#xd;");
    EXPECT_EQ(escaped(" \t\n\r", Place::AttributeValue), " &#x9;&#xa;&#xd;");
    EXPECT_EQ(escaped(" \t\n\r", Place::CData), " \t\n\r");
}

TEST(XmlEscaping, AnEndMarkIsReferredToOrSpreadOverTwoSections)
{
    EXPECT_EQ(escaped("]]>]>]]]>>", Place::Content), "]]&gt;]>]]]&gt;>");
    EXPECT_EQ(escaped("]]>", Place::AttributeValue), "]]&gt;");
    EXPECT_EQ(escaped("a]]>]]>", Place::CData), "a]]]]><![CDATA[>]]]]><![CDATA[>");
    for (const Place place : {Place::Content, Place::AttributeValue, Place::CData})
        EXPECT_EQ(escaped(">]>", place), ">]>");
}

TEST(XmlEscaping, WhatXmlCannotCarryIsReplacedEverywhere)
{
    for (const Place place : {Place::Content, Place::AttributeValue, Place::CData}) {
        EXPECT_EQ(escaped("a\0b\x1f"s, place), "a" + k_replacement + "b" + k_replacement);
        EXPECT_EQ(escaped("\xef\xbf\xbe\xef\xbf\xbf", place), k_replacement + k_replacement);
        EXPECT_EQ(escaped("\x7f\xc2\x80\xef\xbf\xbd\xf0\x9f\xbf\xbe", place),
                  "\x7f\xc2\x80\xef\xbf\xbd\xf0\x9f\xbf\xbe");
    }
}

TEST(XmlEscaping, EachByteThatIsNoUtf8IsReplaced)
{
    for (const char* sequence :
         {"\x80", "\xff", "\xc0\x80", "\xc1\xbf", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf\xbf",
          "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xc3", "\xe6\x97", "\xf0\x9f\xa4", "\xef\xbb"}) {
        std::string expected = "a";
        for (std::size_t i = 0; i < std::string_view(sequence).size(); ++i)
            expected += k_replacement;
        EXPECT_EQ(escaped("a"s + sequence, Place::Content), expected);
        EXPECT_EQ(escaped("a"s + sequence + "b", Place::Content), expected + "b");
    }
}

TEST(XmlEscaping, AByteOrderMarkIsLeftOutAtTheStartOnly)
{
    const std::string mark = "\xef\xbb\xbf";
    EXPECT_EQ(escaped(mark + mark + "a" + mark, Place::Content), mark + "a" + mark);
}

} // namespace zupackage::xml
