#include "xml/nodes.hpp"

#include <QtXml/QDomDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using namespace std::string_literals;

namespace zupackage::xml {

namespace {

QDomElement root(const char* xml)
{
    QDomDocument document;
    EXPECT_TRUE(document.setContent(QByteArray(xml)));
    return document.documentElement();
}

} // namespace

TEST(XmlNodes, TextCrossesWithItsLength)
{
    EXPECT_EQ(fromUtf8("a\0b"s).size(), 3);
    EXPECT_EQ(toUtf8(fromUtf8("a\0\xc3\xa9"s)), "a\0\xc3\xa9"s);
    EXPECT_EQ(toUtf8(QString()), "");
}

TEST(XmlNodes, ChildrenAreAllNodesInDocumentOrder)
{
    std::vector<std::string> names;
    for (const QDomNode& child : children(root("<a><b/>t<!--c--><?p?><d/></a>")))
        names.push_back(toUtf8(child.nodeName()));
    EXPECT_THAT(names, testing::ElementsAre("b", "#text", "#comment", "p", "d"));
    for (const QDomNode& child : children(root("<a/>")))
        FAIL() << toUtf8(child.nodeName());
    for (const QDomNode& child : children(QDomNode()))
        FAIL() << toUtf8(child.nodeName());
}

TEST(XmlNodes, AttributeAndTextOfANonElementAreEmpty)
{
    const QDomElement element = root("<a x='1'>text</a>");
    EXPECT_EQ(attribute(element, "x"), "1");
    EXPECT_EQ(attribute(element, "y"), "");
    EXPECT_EQ(text(element), "text");
    EXPECT_EQ(attribute(element.firstChild(), "x"), "");
    EXPECT_EQ(text(element.firstChild()), "");
}

TEST(XmlNodes, FlagIsTrueForTrueAndOneAlone)
{
    const QDomElement element = root("<a t='true' o='1' u='TRUE' e=''/>");
    EXPECT_TRUE(flag(element, "t"));
    EXPECT_TRUE(flag(element, "o"));
    EXPECT_FALSE(flag(element, "u"));
    EXPECT_FALSE(flag(element, "e"));
    EXPECT_FALSE(flag(element, "absent"));
}

TEST(XmlNodes, ReadTextsKeepsTheLaterTextOfAKey)
{
    std::map<std::string, std::string> texts{{"fr", "kept"}};
    readTexts(root("<names><n lang='en'>a</n><n lang='en'>b</n><!-- c --></names>"), "lang", texts);
    EXPECT_THAT(texts,
                testing::ElementsAre(testing::Pair("", ""), testing::Pair("en", "b"), testing::Pair("fr", "kept")));
}

} // namespace zupackage::xml
