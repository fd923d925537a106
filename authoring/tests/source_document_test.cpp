#include <zupackage/authoring/source_document.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

/// What the children of a node are, as they stand there.
std::vector<std::string> sources(SourceNode parent, const SourceDocument& document)
{
    std::vector<std::string> result;
    for (const SourceNode child : parent.children())
        result.emplace_back(document.source(child.range()));
    return result;
}

} // namespace

TEST(SourceDocument, TextIsTheInput)
{
    for (const char* bytes : {"<p/>", "", "<p>\r\n</p>", "<p a='1' a='2'", "\xef\xbb\xbf<p/>", "\xff\xfe<", "\xff"})
        EXPECT_EQ(SourceDocument::parse(bytes).text(), bytes);
}

TEST(SourceDocument, AnElementHasTheRangesOfItsParts)
{
    const SourceDocument document = SourceDocument::parse("<p><name lang = 'en'  >a</name ></p>");
    const SourceNode name = document.root().child("name");
    EXPECT_EQ(document.source(name.range()), "<name lang = 'en'  >a</name >");
    EXPECT_EQ(document.source(name.startTagRange()), "<name lang = 'en'  >");
    EXPECT_EQ(document.source(name.endTagRange()), "</name >");
    EXPECT_EQ(document.source(name.contentRange()), "a");
    EXPECT_EQ(name.nameRange(), (ByteRange{4, 8}));
}

TEST(SourceDocument, AnAttributeHasTheRangesOfItsParts)
{
    const SourceDocument document = SourceDocument::parse("<p lang = 'e\"n' b=\"\"/>");
    const SourceAttribute lang = document.root().attribute("lang");
    EXPECT_EQ(document.source(lang.range()), "lang = 'e\"n'");
    EXPECT_EQ(document.source(lang.nameRange()), "lang");
    EXPECT_EQ(document.source(lang.valueRange()), "e\"n");
    EXPECT_EQ(lang.quote(), '\'');
    EXPECT_EQ(document.root().attribute("b").quote(), '"');
    EXPECT_TRUE(document.root().attribute("b").valueRange().isEmpty());
}

TEST(SourceDocument, AnEmptyTagHasNeitherContentNorEndTag)
{
    const SourceDocument document = SourceDocument::parse("<p />");
    const SourceNode root = document.root();
    EXPECT_TRUE(root.isEmptyTag());
    EXPECT_EQ(root.contentRange(), (ByteRange{5, 5}));
    EXPECT_EQ(root.endTagRange(), (ByteRange{5, 5}));
}

TEST(SourceDocument, EveryNodeOfADocumentIsThere)
{
    const SourceDocument document =
        SourceDocument::parse("<?xml version='1.0'?>\n<!--c--><!DOCTYPE p [<!ENTITY e 'x'>]><?i d?>"
                              "<p>a<b/>&e;<![CDATA[<]]></p>\n");
    EXPECT_THAT(sources(document.document(), document),
                testing::ElementsAre("<?xml version='1.0'?>", "\n", "<!--c-->", "<!DOCTYPE p [<!ENTITY e 'x'>]>",
                                     "<?i d?>", "<p>a<b/>&e;<![CDATA[<]]></p>", "\n"));
    EXPECT_THAT(sources(document.root(), document), testing::ElementsAre("a", "<b/>", "&e;", "<![CDATA[<]]>"));
    EXPECT_EQ(document.root().textContent(), "ax<");
    EXPECT_TRUE(document.isWellFormed());
}

TEST(SourceDocument, NodesInDocumentOrderComeByTheirNumbers)
{
    const SourceDocument document = SourceDocument::parse("<p><a><b/></a><c/></p>");
    ASSERT_EQ(document.nodeCount(), 5u);
    EXPECT_EQ(document.node(0), document.document());
    EXPECT_EQ(document.node(3).name(), "b");
    EXPECT_EQ(document.node(3).index(), 3u);
    EXPECT_EQ(document.node(3).parent().nextSibling(), document.node(4));
    EXPECT_FALSE(document.node(0).parent());
}

TEST(SourceDocument, TheValueOfATextIsThatOfItsReferencesAndLines)
{
    const auto value = [](const std::string& text) {
        return SourceDocument::parse("<p>" + text + "</p>").root().textContent();
    };
    EXPECT_EQ(value("a\rb\r\nc\n&#13;&#xe9;&amp;&lt;&gt;&quot;&apos;"), "a\nb\nc\n\r\xc3\xa9&<>\"'");
    EXPECT_EQ(value("<![CDATA[a\r\n&amp;]]>"), "a\n&amp;");
    EXPECT_EQ(value("a & b &x; &#0;"), "a & b  \xef\xbf\xbd");
    EXPECT_EQ(value("a<!--b--><?c d?><e>f</e>"), "af");
}

TEST(SourceDocument, TheValueOfAnAttributeHasBlanksForWhiteSpace)
{
    const auto value = [](const std::string& text) {
        return std::string(SourceDocument::parse("<p a='" + text + "'/>").root().attribute("a").value());
    };
    EXPECT_EQ(value("a\tb\r\nc\nd\re"), "a b c d e");
    EXPECT_EQ(value("&#9;&#10;&lt;"), "\t\n<");
    EXPECT_EQ(value("a & b &x;"), "a & b &x;");
}

TEST(SourceDocument, EntitiesAreResolvedAsFarAsTheyAreText)
{
    const SourceDocument document = SourceDocument::parse(
        "<!DOCTYPE p [<!ENTITY e '&f;&#38;lt;\n'><!ENTITY f 'x'><!ENTITY g '<b/>'>]><p a='&e;'>&e;&g;</p>");
    EXPECT_TRUE(document.isWellFormed());
    EXPECT_EQ(document.root().attribute("a").value(), "x< ");
    EXPECT_EQ(document.root().firstChild().value(), "x<\n");
    EXPECT_EQ(document.root().firstChild().name(), "e");
    EXPECT_EQ(document.root().firstChild().nextSibling().value(), "");
}

TEST(SourceDocument, NamesHaveTheirPrefixesApart)
{
    const SourceDocument document = SourceDocument::parse("<y:p xmlns:y='u' y:uuid='1' uuid='2' xmlns='v'/>");
    const SourceNode root = document.root();
    EXPECT_EQ(root.name(), "y:p");
    EXPECT_EQ(root.prefix(), "y");
    EXPECT_EQ(root.localName(), "p");
    EXPECT_EQ(root.attribute("uuid").name(), "y:uuid");
    EXPECT_EQ(root.attribute("uuid").owner(), root);
    EXPECT_FALSE(root.attribute("y"));
    EXPECT_FALSE(root.attribute("xmlns"));
    EXPECT_EQ(root.attributes().size(), 4u);
}

TEST(SourceDocument, TheXmlDeclarationHasAttributes)
{
    const SourceDocument document = SourceDocument::parse("<?xml version='1.0' encoding=\"UTF-8\"?><p/>");
    const SourceNode declaration = document.document().firstChild();
    EXPECT_EQ(declaration.kind(), NodeKind::XmlDeclaration);
    EXPECT_EQ(declaration.attribute("encoding").value(), "UTF-8");
    EXPECT_EQ(document.source(declaration.attribute("version").range()), "version='1.0'");
}

TEST(SourceDocument, PlacesAreInCharactersAndLinesEndInThreeWays)
{
    const SourceDocument document =
        SourceDocument::parse("\xef\xbb\xbf<p>\r\n\xc3\xa9\xf0\x9f\xa4\x96<b/>\r\n\n\r<c/></p>");
    EXPECT_EQ(document.place(0), (Place{1, 1}));
    EXPECT_EQ(document.place(3), (Place{1, 1}));
    EXPECT_EQ(document.place(6), (Place{1, 4}));
    EXPECT_EQ(document.place(document.root().child("b").range().begin), (Place{2, 3}));
    EXPECT_EQ(document.place(document.root().child("b").range().begin - 1), (Place{2, 2}));
    EXPECT_EQ(document.place(document.root().child("c").range().begin), (Place{5, 1}));
    EXPECT_EQ(document.place(1000), (Place{5, 9}));
    EXPECT_EQ(document.line(0), "<p>");
    EXPECT_EQ(document.line(7), "<p>");
    EXPECT_EQ(document.line(8), "\xc3\xa9\xf0\x9f\xa4\x96<b/>");
    EXPECT_EQ(document.line(1000), "<c/></p>");
    EXPECT_EQ(document.lineEnd(), LineEnd::CarriageReturnLineFeed);
}

TEST(SourceDocument, PlacesFarFromTheBeginningAreCounted)
{
    std::string bytes = "<p>";
    for (int i = 0; i < 1000; ++i)
        bytes += "\xe2\x82\xac\r\n\xc3\xa9\r";
    bytes += "\xc3\xa9<a/>";
    EXPECT_EQ(SourceDocument::parse(bytes).place(bytes.size() - 4), (Place{2001, 2}));
}

TEST(SourceDocument, TheMostFrequentLineEndIsRemembered)
{
    EXPECT_EQ(SourceDocument::parse("<p/>").lineEnd(), LineEnd::LineFeed);
    EXPECT_EQ(SourceDocument::parse("<p>\n\n\r\n</p>").lineEnd(), LineEnd::LineFeed);
    EXPECT_EQ(SourceDocument::parse("<p>\n\r\r</p>").lineEnd(), LineEnd::CarriageReturn);
    EXPECT_EQ(SourceDocument::parse("<p>\r\n\r\n\n</p>").lineEnd(), LineEnd::CarriageReturnLineFeed);
}

TEST(SourceDocument, OfANullNodeEverythingIsEmpty)
{
    const SourceDocument document = SourceDocument::parse("<p/>");
    const SourceNode null = document.root().child("a").child("b");
    EXPECT_FALSE(null);
    EXPECT_EQ(null.kind(), NodeKind::None);
    EXPECT_EQ(null.attribute("a").value(), "");
    EXPECT_EQ(null.attribute("a").range(), ByteRange());
    EXPECT_EQ(null.attribute("a").quote(), '\0');
    EXPECT_FALSE(null.attribute("a").owner());
    EXPECT_TRUE(null.attributes().isEmpty());
    EXPECT_EQ(null.range(), ByteRange());
    EXPECT_EQ(null.nameRange(), ByteRange());
    EXPECT_EQ(null.textContent(), "");
    EXPECT_FALSE(null.nextSibling());
    EXPECT_FALSE(null.parent());
    for (const SourceNode child : null.children())
        ADD_FAILURE() << child.path();
}

TEST(SourceDocument, HandlesAreValidAsLongAsACopyOfTheDocument)
{
    SourceDocument document = SourceDocument::parse("<p a='1'/>");
    const SourceNode root = document.root();
    const SourceDocument copy = document;
    document = SourceDocument();
    EXPECT_EQ(root.attribute("a").value(), "1");
    EXPECT_EQ(copy.root(), root);
    EXPECT_FALSE(document.root());
    EXPECT_FALSE(document.isWellFormed());
}

} // namespace zu::authoring
