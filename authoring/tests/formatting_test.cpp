#include "support/encodings.hpp"
#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/generated_packages.hpp"
#include "support/property.hpp"
#include "support/read_as.hpp"
#include "support/well_formed_documents.hpp"

#include <zupackage/authoring/formatting.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <set>

namespace zu::authoring {

using test::readAs;

namespace {

std::string format(const std::string& bytes) { return formatted(SourceDocument::parse(bytes)); }

/// Everything that a document holds but white space between markup and the order of attributes.
std::multiset<std::string> partsOf(const SourceDocument& document)
{
    std::multiset<std::string> parts;
    for (std::size_t i = 1; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        const std::string source(document.source(node.range()));
        if (node.isElement())
            parts.insert(std::string(node.name()));
        else if (node.kind() != NodeKind::Text || source.find_first_not_of(" \t\r\n") != std::string::npos)
            parts.insert(source);
        for (const SourceAttribute attribute : node.attributes())
            parts.insert(std::string(attribute.name()) + "=" + std::string(attribute.value()));
    }
    return parts;
}

} // namespace

TEST(Formatting, PutsElementsInLinesAndAttributesInOrder)
{
    EXPECT_EQ(format("<?xml version='1.0'?><package\n  version = \"1.0\" x='1'\tuuid='a' ><names ><name\nlang='en' >A"
                     "</name ><name lang='fr'/></names>\n\n\n\n<contents></contents>   </package>"),
              R"(<?xml version='1.0'?>
<package uuid='a' version="1.0" x='1'>
  <names>
    <name lang='en'>A</name>
    <name lang='fr'/>
  </names>

  <contents></contents>
</package>
)");
}

TEST(Formatting, KeepsCommentsWhereTheyStand)
{
    EXPECT_EQ(
        format("<!-- a --><p><!-- b -->\n<contents/> <!-- c --><!-- d\n  e -->\n\t<!-- f --></p><!-- g -->\n"),
        "<!-- a -->\n<p>\n  <!-- b -->\n  <contents/> <!-- c --> <!-- d\n  e -->\n  <!-- f -->\n</p> <!-- g -->\n");
}

TEST(Formatting, KeepsTextsWithAllThatStandsBesideThem)
{
    const std::string texts = "<p>\n"
                              "  <q>  a <b/>\n<c   d='e'/></q>\n"
                              "  <q> <![CDATA[ ]]> </q>\n"
                              "  <q>&#32;</q>\n"
                              "  <q>  </q>\n"
                              "  <q xml:space='preserve'>  <b/></q>\n"
                              "  <names>text <name/></names>\n"
                              "</p>\n";
    EXPECT_EQ(format(texts), texts);
    EXPECT_EQ(format("<p><contents>  </contents></p>"), "<p>\n  <contents></contents>\n</p>\n");
}

TEST(Formatting, KeepsTheEncodingAndTheMostFrequentLineEnd)
{
    const std::string marked = "\xef\xbb\xbf<p>\r\n<q>a\nb\nc\nd</q></p>";
    EXPECT_EQ(format(marked), "\xef\xbb\xbf<p>\r\n  <q>a\nb\nc\nd</q>\r\n</p>\r\n");
    for (const char* encoding : {"UTF-16LE", "UTF-16BE", "UTF-32BE"})
        EXPECT_EQ(format(test::encoded("<p><q>\xe2\x82\xac</q></p>", encoding)),
                  test::encoded("<p>\n  <q>\xe2\x82\xac</q>\n</p>\n", encoding))
            << encoding;
    EXPECT_EQ(format("<?xml version='1.0' encoding='ISO-8859-1'?>\r<p a='\xe9'/>"),
              "<?xml version='1.0' encoding='ISO-8859-1'?>\r<p a='\xe9'/>\r");
}

TEST(Formatting, KeepsTheDocumentTypeAndWhatIsInIt)
{
    EXPECT_EQ(format("<!DOCTYPE p [\n <!ENTITY e 'x'>]><p><q>&e; </q><?i  j ?></p>"),
              "<!DOCTYPE p [\n <!ENTITY e 'x'>]>\n<p>\n  <q>&e; </q>\n  <?i  j ?>\n</p>\n");
}

TEST(Formatting, KeepsTheOrderOfAttributesThatReadersTakeForOne)
{
    const std::string text = "<p xmlns:y=\"u\" y:version=\"1\" version=\"2\" uuid=\"a\"/>\n";
    EXPECT_EQ(format(text), text);
}

TEST(Formatting, AnIllFormedDocumentStaysAsItIs)
{
    for (const char* bytes : {"", "<p>", "<p> </q>", "\xff"})
        EXPECT_EQ(format(bytes), bytes);
}

TEST(FormattingProperties, WhatTheLibraryWritesIsFormatted)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "manifest.xml").string();
    test::checkProperty(500, [&] {
        saveManifest(*test::packages(test::texts()), path);
        const std::string text = test::readFile(path);
        RC_ASSERT(format(text) == text);
    });
}

TEST(FormattingProperties, AnyDocumentReadsAsBeforeAndIsFormattedOnce)
{
    const auto check = [](const std::string& bytes) {
        const SourceDocument document = SourceDocument::parse(bytes);
        if (!document.isWellFormed()) {
            RC_ASSERT(formatted(document) == bytes);
            return;
        }
        const SourceDocument result = SourceDocument::parse(formatted(document));
        RC_ASSERT(result.isWellFormed());
        RC_ASSERT(partsOf(result) == partsOf(document));
        RC_ASSERT(readAs(result.text()) == readAs(bytes));
        RC_ASSERT(formatted(result) == result.text());
    };
    test::checkProperty(5000, [&] { check(test::wellFormedDocument()); });
    test::checkProperty(5000, [&] { check(test::anyDocument()); });
}

} // namespace zu::authoring
