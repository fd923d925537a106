#include "xml/append.hpp"

#include <gtest/gtest.h>

namespace zupackage::xml {

namespace {

class XmlAppend : public testing::Test
{
protected:
    std::string written() const { return document.toString(-1).toStdString(); }

    QDomDocument document;
    QDomElement root = appendElement(document, document, "root");
};

} // namespace

TEST_F(XmlAppend, TextIsOneNodeEvenWhenEmpty)
{
    appendText(document, root, "");
    EXPECT_EQ(root.childNodes().size(), 1);
    appendText(document, root, "a<b");
    EXPECT_EQ(written(), "<root>a&lt;b</root>");
}

TEST_F(XmlAppend, CDataIsSplitWithinTheEndMark)
{
    appendCData(document, root, "a]]>b]]>");
    EXPECT_EQ(root.childNodes().size(), 3);
    EXPECT_EQ(written(), "<root><![CDATA[a]]]]><![CDATA[>b]]]]><![CDATA[>]]></root>");
    EXPECT_EQ(root.text(), "a]]>b]]>");
}

TEST_F(XmlAppend, AnEmptyMapWritesNothingAndAnEmptyTextNoChild)
{
    appendLangMap(document, root, {}, "names", "name", "lang");
    appendLangListMap(document, root, {}, "tags", "tag", "lang", false);
    EXPECT_EQ(written(), "<root/>");
    appendLangMap(document, root, {{"en", ""}}, "names", "name", "lang");
    appendLangListMap(document, root, {{"en", {}}, {"fr", {""}}}, "tags", "tag", "lang", true);
    EXPECT_EQ(written(), "<root><names/><tags/></root>");
}

TEST_F(XmlAppend, EntriesStandInKeyOrderWithTheirKeys)
{
    appendLangMap(document, root, {{"fr", "b"}, {"", "a"}}, "names", "name", "lang");
    appendLangListMap(document, root, {{"p", {"c", "", "d"}}}, "autonomous", "condition", "purpose", true);
    EXPECT_EQ(written(), "<root><names><name>a</name><name lang=\"fr\">b</name></names><autonomous>"
                         "<condition purpose=\"p\"><![CDATA[c]]></condition>"
                         "<condition purpose=\"p\"><![CDATA[d]]></condition></autonomous></root>");
}

TEST_F(XmlAppend, AttributesAndFlags)
{
    setAttribute(root, "a", "");
    setNonEmptyAttribute(root, "b", "");
    EXPECT_EQ(written(), "<root a=\"\"/>");
    setFlag(root, "a", true);
    EXPECT_EQ(written(), "<root a=\"true\"/>");
    setFlag(root, "a", false);
    EXPECT_EQ(written(), "<root a=\"false\"/>");
}

} // namespace zupackage::xml
