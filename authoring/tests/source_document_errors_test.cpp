#include <zupackage/authoring/source_document.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

std::string kindName(SyntaxErrorKind kind)
{
    switch (kind) {
    case SyntaxErrorKind::Encoding:
        return "encoding";
    case SyntaxErrorKind::NotWellFormed:
        return "syntax";
    case SyntaxErrorKind::Namespace:
        return "namespace";
    case SyntaxErrorKind::Limit:
        return "limit";
    }
    return {};
}

/// The errors of a document, a line each: where, what stands there, and why.
std::string errorsOf(const std::string& bytes)
{
    const SourceDocument document = SourceDocument::parse(bytes);
    std::string lines;
    for (const SyntaxError& error : document.errors())
        lines += std::to_string(error.place.line) + ':' + std::to_string(error.place.column) + " [" +
                 std::string(document.source(error.range)) + "] " + kindName(error.kind) + ": " + error.message + '\n';
    if (!document.isComplete())
        lines += "ends at " + std::to_string(document.document().contentRange().end) + '\n';
    return lines;
}

struct Row
{
    std::string bytes;
    std::string errors;
};

} // namespace

TEST(SourceDocumentErrors, EachHasItsPlaceAndItsWords)
{
    const Row rows[] = {
        {"", "1:1 [] syntax: the document has no root element\n"},
        {"<!--c-->", "1:9 [] syntax: the document has no root element\n"},
        {"<p>\n", "2:1 [] syntax: the element 'p' of line 1 has no end tag\n"},
        {"<p/>\nx", "1:5 [\nx] syntax: text outside the root element\n"},
        {"<p/><q/>", "1:5 [<q] syntax: a second root element\n"},
        {"<p/>&e;",
         "1:5 [&e;] syntax: the entity 'e' is not declared\n1:5 [&e;] syntax: a reference outside the root element\n"},
        {"<p/><![CDATA[]]>", "1:5 [<![CDATA[]]>] syntax: a CDATA section outside the root element\n"},
        {"<p a='1' b='' a='2'/>", "1:15 [a] syntax: the attribute 'a' is there already\n"},
        {"<p a='1'b='2'/>", "1:9 [b] syntax: white space is missing before an attribute\n"},
        {"<p a='1 < 2'/>", "1:9 [<] syntax: '<' in the value of an attribute; it is written as '&lt;'\n"},
        {"<!DOCTYPE p [<!ENTITY e '<'>]><p a='&e;'/>",
         "1:37 [&e;] syntax: an entity with markup in the value of an attribute\n"},
        {"<p>a && b</p>", "1:6 [&] syntax: '&' begins no reference; a bare one is written as '&amp;'\n"
                          "1:7 [&] syntax: '&' begins no reference; a bare one is written as '&amp;'\n"},
        {"<p>&nbsp;</p>", "1:4 [&nbsp;] syntax: the entity 'nbsp' is not declared\n"},
        {"<p>&#0;&#xD800;</p>", "1:4 [&#0;] syntax: a reference to a character that XML cannot carry\n"
                                "1:8 [&#xD800;] syntax: a reference to a character that XML cannot carry\n"},
        {"<p>]]></p>", "1:4 [\x5d]>] syntax: ']]>' in a text; it is written as ']]&gt;'\n"},
        {"<p>\x01</p>", "1:4 [\x01] syntax: the character U+0001 cannot stand in XML\n"},
        {"<p a='\xef\xbf\xbf'/>", "1:7 [\xef\xbf\xbf] syntax: the character U+FFFF cannot stand in XML\n"},
        {"<!--a--b---><p/>", "1:6 [--] syntax: '--' within a comment\n"},
        {"<p/><?xml?>",
         "1:5 [<?xml?>] syntax: an XML declaration can stand at the very beginning alone, and in lower case\n"},
        {"<p/><?a+?>", "1:8 [] syntax: white space is missing behind the name of a processing instruction\n"},
        {"<p/><?a:b?>", "1:7 [a:b] namespace: a colon in the name of a processing instruction\n"},
        {"<p/><!DOCTYPE p>",
         "1:5 [<!DOCTYPE p>] syntax: a document type can stand once alone, before the root element\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(errorsOf(row.bytes), row.errors) << row.bytes;
}

TEST(SourceDocumentErrors, TheTreeEndsWhereNothingCanBeReadOn)
{
    const Row rows[] = {
        {"<p><b></p>", "1:7 [</p>] syntax: the end tag 'p' where the element 'b' of line 1 is open\nends at 6\n"},
        {"</p>", "1:1 [</p>] syntax: an end tag without a start tag\nends at 0\n"},
        {"<p></ p>", "1:4 [</] syntax: an end tag that is none\nends at 3\n"},
        {"<p><1/></p>", "1:4 [<] syntax: '<' begins no tag; a bare one is written as '&lt;'\nends at 3\n"},
        {"<p><b", "1:4 [<b] syntax: a tag without an end\nends at 3\n"},
        {"<p><b c/></p>", "1:7 [c] syntax: the attribute 'c' has no value\nends at 3\n"},
        {"<p><b c=d/></p>", "1:9 [] syntax: the value of the attribute 'c' is not in quotes\nends at 3\n"},
        {"<p><b 'c'/></p>", "1:7 ['] syntax: this cannot stand in a tag\nends at 3\n"},
        {"<p><b c='", "1:4 [<b c='] syntax: the value of the attribute 'c' has no end\nends at 3\n"},
        {"<p b='><c/></p>",
         "1:8 [<] syntax: markup in the value of the attribute 'b'; a quote may be missing\nends at 0\n"},
        {"<p><!--a-></p>", "1:4 [<!--] syntax: a comment without an end\nends at 3\n"},
        {"<p><![CDATA[a]></p>", "1:4 [<![CDATA[] syntax: a CDATA section without an end\nends at 3\n"},
        {"<p><?a></p>", "1:4 [<?a] syntax: a processing instruction without an end\nends at 3\n"},
        {"<p><? a?></p>", "1:4 [<?] syntax: a processing instruction without a name\nends at 3\n"},
        {"<p><!a></p>", "1:4 [<!] syntax: '<!' begins neither a comment nor a CDATA section\nends at 3\n"},
        {"<!DOCTYPE p [<!ENTITY e 'x>]><p/>", "1:1 [<!DOCTYPE] syntax: a document type without an end\nends at 0\n"},
        {"<?xml version='1.0'><p/>", "1:1 [<?xml] syntax: an XML declaration without an end\nends at 0\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(errorsOf(row.bytes), row.errors) << row.bytes;
}

TEST(SourceDocumentErrors, AnXmlDeclarationHasItsPartsInOrder)
{
    const Row rows[] = {
        {"<?xml version='1.0' encoding='UTF-8' standalone='no' ?><p/>", ""},
        {"<?xml encoding='UTF-8'?><p/>", "1:3 [xml] syntax: an XML declaration without a version\n"},
        {"<?xml version='1.1'?><p/>", "1:16 [1.1] syntax: the version of XML is 1.0\n"},
        {"<?xml version='1.0' standalone='yes' encoding='UTF-8'?><p/>",
         "1:38 [encoding] syntax: 'encoding' has no place here in an XML declaration\n"},
        {"<?xml version='1.0' standalone='YES'?><p/>", "1:33 [YES] syntax: 'standalone' is 'yes' or 'no'\n"},
        {"<?xml version='1.0' encoding='U 8'?><p/>", "1:31 [U 8] syntax: 'U 8' is no name of an encoding\n"},
        {"<?xml version='1.0'encoding='UTF-8'?><p/>",
         "1:20 [encoding='UTF-8'] syntax: this cannot stand in an XML declaration\n"},
        {" <?xml version='1.0'?><p/>", "1:2 [<?xml version='1.0'?>] syntax: an XML declaration can stand at the very "
                                       "beginning alone, and in lower case\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(errorsOf(row.bytes), row.errors) << row.bytes;
}

TEST(SourceDocumentErrors, NamespacesAreChecked)
{
    const Row rows[] = {
        {"<p xmlns:y='u'><y:a y:b='' b='' xml:lang=''/></p>", ""},
        {"<p><y:a xmlns:y='u'/><y:b z:c=''/></p>", "1:23 [y:b] namespace: the namespace prefix 'y' is not declared\n"
                                                   "1:27 [z:c] namespace: the namespace prefix 'z' is not declared\n"},
        {"<:p/>", "1:2 [:p] namespace: ':p' is no name with a prefix\n"},
        {"<a:b:c/>", "1:2 [a:b:c] namespace: 'a:b:c' is no name with a prefix\n"},
        {"<p xmlns:y=''/>", "1:4 [xmlns:y=''] namespace: a declaration of a namespace that is not allowed\n"},
        {"<p xmlns:xml='u'/>", "1:4 [xmlns:xml='u'] namespace: a declaration of a namespace that is not allowed\n"},
        {"<p xmlns:y='u' xmlns:z='u' y:a='' z:a=''/>", "1:35 [z:a] syntax: the attribute 'z:a' is there already\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(errorsOf(row.bytes), row.errors) << row.bytes;
}

TEST(SourceDocumentErrors, ManyAttributesAreComparedToo)
{
    std::string attributes;
    for (int i = 0; i < 100; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    EXPECT_EQ(errorsOf("<p" + attributes + "/>"), "");
    EXPECT_EQ(errorsOf("<p" + attributes + " a7=''/>"),
              "1:" + std::to_string(attributes.size() + 4) + " [a7] syntax: the attribute 'a7' is there already\n");
}

TEST(SourceDocumentErrors, OnlyAHundredAreTold)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "& ";
    const SourceDocument document = SourceDocument::parse("<p>" + text + "<a/></p>");
    EXPECT_EQ(document.errors().size(), 100u);
    EXPECT_TRUE(document.root().child("a"));
}

TEST(SourceDocumentErrors, TheOneThatEndsTheDocumentIsAlwaysTold)
{
    const SourceDocument document = SourceDocument::parse("<p>" + std::string(1000, '&') + "<a");
    ASSERT_EQ(document.errors().size(), 101u);
    EXPECT_EQ(document.errors().back().message, "a tag without an end");
}

TEST(SourceDocumentErrors, WhatComesBeforeAnErrorIsThere)
{
    const SourceDocument document =
        SourceDocument::parse("<p><names><name lang='en'>a</name><name lang=fr>b</name></names></p>");
    EXPECT_FALSE(document.isComplete());
    EXPECT_EQ(document.root().child("names").child("name").textContent(), "a");
    EXPECT_EQ(document.root().range(), (ByteRange{0, 34}));
    EXPECT_TRUE(document.root().endTagRange().isEmpty());
}

} // namespace zu::authoring
