#include <zupackage/authoring/source_document.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

const SourceDocument k_document = SourceDocument::parse("<?xml version='1.0'?><!--c--><p a=''>"
                                                        "<names><name lang='en'>a<!---->b</name></names>"
                                                        "<y:b xmlns:y='u'/><names><name/><name/><?i?></names></p>");

} // namespace

TEST(ElementPath, EveryNodeIsFoundByItsPath)
{
    for (std::size_t i = 0; i < k_document.nodeCount(); ++i) {
        const SourceNode node = k_document.node(i);
        // The declaration has the path of the document.
        const SourceNode expected = node.kind() == NodeKind::XmlDeclaration ? node.parent() : node;
        EXPECT_EQ(k_document.find(node.path()), expected) << node.path();
    }
}

TEST(ElementPath, ANumberIsThereOnlyAmongSiblingsOfOneName)
{
    const SourceNode root = k_document.root();
    EXPECT_EQ(k_document.document().path(), "/");
    EXPECT_EQ(root.path(), "/p");
    EXPECT_EQ(root.child("names").path(), "/p/names[1]");
    EXPECT_EQ(root.child("names").child("name").path(), "/p/names[1]/name");
    EXPECT_EQ(root.child("b").path(), "/p/y:b");
    EXPECT_EQ(root.child("names").child("name").firstChild().path(), "/p/names[1]/name/text()[1]");
    EXPECT_EQ(root.child("b").nextSibling().firstChild().nextSibling().path(), "/p/names[2]/name[2]");
    EXPECT_EQ(k_document.find("/p/names[2]/processing-instruction()").name(), "i");
    EXPECT_EQ(k_document.find("/comment()").value(), "c");
    EXPECT_EQ(SourceNode().path(), "");
}

TEST(ElementPath, AnAttributeIsFoundByItsPath)
{
    const SourceAttribute lang = k_document.root().child("names").child("name").attribute("lang");
    EXPECT_EQ(lang.path(), "/p/names[1]/name/@lang");
    EXPECT_EQ(k_document.findAttribute(lang.path()).range(), lang.range());
    EXPECT_EQ(k_document.findAttribute("/p/@a").name(), "a");
    EXPECT_FALSE(k_document.findAttribute("/p/@b"));
    EXPECT_FALSE(k_document.findAttribute("/p"));
}

TEST(ElementPath, AMissingNumberIsTheFirst)
{
    EXPECT_EQ(k_document.find("/p/names/name"), k_document.find("/p/names[1]/name[1]"));
}

TEST(ElementPath, APathToNothingFindsNothing)
{
    for (const char* path : {"", "p", "/q", "/p/", "//p", "/p/names[3]", "/p/names[0]", "/p/names[-1]", "/p/names[x]",
                             "/p/names[1", "/p/names[1]x", "/p[99999999999999999999]", "/p/@a"})
        EXPECT_FALSE(k_document.find(path)) << path;
}

} // namespace zu::authoring
