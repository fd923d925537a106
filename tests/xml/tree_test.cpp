#include "xml/dom_tree.hpp"
#include "xml/tree.hpp"

#include <QtXml/QDomDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace zupackage::xml {

namespace {

/// The tree that the conversion makes of what Qt parsed.
Tree parsed(const char* xml)
{
    QDomDocument document;
    EXPECT_TRUE(document.setContent(QString(xml), true));
    return treeOf(document.documentElement());
}

std::vector<std::string> childNames(Node node)
{
    std::vector<std::string> names;
    for (const Node child : node.children())
        names.emplace_back(child.name());
    return names;
}

const QString k_high(QChar(0xD83E));
const QString k_low(QChar(0xDD16));

} // namespace

TEST(XmlTree, ChildrenAreAllNodesInDocumentOrder)
{
    const Tree tree = parsed("<a><b><c/></b>t<!--c--><?p?><![CDATA[d]]>&e;<d/></a>");
    EXPECT_EQ(tree.root().name(), "a");
    EXPECT_THAT(childNames(tree.root()), ElementsAre("b", "#text", "#comment", "p", "#cdata-section", "e", "d"));
    std::vector<bool> areElements;
    for (const Node child : tree.root().children()) {
        areElements.push_back(child.isElement());
        EXPECT_EQ(childNames(child).size(), child.name() == "b" ? 1u : 0u);
    }
    EXPECT_THAT(areElements, ElementsAre(true, false, false, false, false, false, true));
}

TEST(XmlTree, AttributesAreFoundByTheirNames)
{
    const Tree tree = parsed("<a x='1' z:y='2'><b x='3'/></a>");
    EXPECT_EQ(tree.root().attribute("x"), "1");
    EXPECT_EQ(tree.root().attribute("y"), "2");
    EXPECT_EQ(tree.root().attribute("z"), "");
    EXPECT_EQ((*tree.root().children().begin()).attribute("x"), "3");
}

TEST(XmlTree, TheLastOfEqualAttributesCounts)
{
    Tree tree;
    tree.startElement("a");
    tree.addAttribute("x", "1");
    tree.addAttribute("x", "2");
    tree.endElement();
    EXPECT_EQ(tree.root().attribute("x"), "2");
}

TEST(XmlTree, AttributeAndTextOfANonElementAreEmpty)
{
    const Tree tree = parsed("<a x='1'>text<?p x='2'?></a>");
    EXPECT_EQ(tree.root().text(), "text");
    for (const Node child : tree.root().children()) {
        EXPECT_EQ(child.attribute("x"), "");
        EXPECT_EQ(child.text(), "");
    }
}

TEST(XmlTree, TextIsThatOfAllTextAndCDataDescendants)
{
    EXPECT_EQ(parsed("<a>1<b>2<c>3</c><!--no--></b><![CDATA[4]]><?no no?>&no;5</a>").root().text(), "12345");
}

TEST(XmlTree, FlagIsTrueForTrueAndOneAlone)
{
    const Tree tree = parsed("<a t='true' o='1' u='TRUE' e=''/>");
    EXPECT_TRUE(tree.root().flag("t"));
    EXPECT_TRUE(tree.root().flag("o"));
    EXPECT_FALSE(tree.root().flag("u"));
    EXPECT_FALSE(tree.root().flag("e"));
    EXPECT_FALSE(tree.root().flag("absent"));
}

TEST(XmlTree, HalvesOfACharacterInTwoTextsBecomeTheCharacter)
{
    Tree tree;
    tree.startElement("a");
    tree.addText("\u00e9" + k_high);
    tree.addComment();
    tree.addCData(k_low + "x");
    tree.addText(k_low + k_high + "\ufeff");
    tree.endElement();
    EXPECT_EQ(tree.root().text(),
              (QString("\u00e9") + k_high + k_low + "x" + k_low + k_high + "\ufeff").toUtf8().toStdString());
    EXPECT_THAT(tree.root().text(), testing::StartsWith("\xc3\xa9\xf0\x9f\xa4\x96x"));
}

TEST(XmlTree, ANullElementIsAnElementWithoutAnything)
{
    const Tree tree = treeOf(QDomElement());
    EXPECT_TRUE(tree.root().isElement());
    EXPECT_EQ(tree.root().name(), "");
    EXPECT_THAT(childNames(tree.root()), IsEmpty());
}

TEST(XmlTree, AnElementNestedAsDeepAsItLikesIsConverted)
{
    QDomDocument document;
    QDomElement inner = document.createElement("a");
    inner.setAttribute("x", "1");
    constexpr int k_levels = 5000; // Qt itself needs the stack to destroy more
    QDomElement outer = inner;
    for (int i = 1; i < k_levels; ++i) {
        const QDomElement parent = document.createElement("a");
        QDomNode(parent).appendChild(outer);
        outer = parent;
    }
    const Tree tree = treeOf(outer);
    int levels = 1;
    Node node = tree.root();
    for (; !childNames(node).empty(); node = *node.children().begin())
        ++levels;
    EXPECT_EQ(levels, k_levels);
    EXPECT_EQ(node.attribute("x"), "1");
}

} // namespace zupackage::xml
