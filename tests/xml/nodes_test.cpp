#include "xml/nodes.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::string_literals;

namespace zupackage::xml {

TEST(XmlNodes, TextCrossesWithItsLength)
{
    EXPECT_EQ(fromUtf8("a\0b"s).size(), 3);
    EXPECT_EQ(toUtf8(fromUtf8("a\0\xc3\xa9"s)), "a\0\xc3\xa9"s);
    EXPECT_EQ(toUtf8(QString()), "");
}

TEST(XmlNodes, ReadTextsKeepsTheLaterTextOfAKey)
{
    Tree tree;
    tree.startElement("names");
    for (const char* text : {"a", "b"}) {
        tree.startElement("n");
        tree.addAttribute("lang", "en");
        tree.addText(text);
        tree.endElement();
    }
    tree.addComment();
    tree.endElement();
    std::map<std::string, std::string> texts{{"fr", "kept"}};
    readTexts(tree.root(), "lang", texts);
    EXPECT_THAT(texts,
                testing::ElementsAre(testing::Pair("", ""), testing::Pair("en", "b"), testing::Pair("fr", "kept")));
}

} // namespace zupackage::xml
