#include "xml/text_writer.hpp"

#include <gtest/gtest.h>

namespace zupackage::xml {

TEST(XmlTextWriter, ElementsStandOnLinesOfTheirOwnAndTextsOnThoseOfTheirElements)
{
    TextWriter out("<?xml?>", 2);
    out.startElement("a");
    out.startElement("b");
    out.startElement("empty");
    out.endElement();
    out.endElement();
    out.startElement("text");
    out.text("<");
    out.endElement();
    out.startElement("cdata");
    out.cdata("<");
    out.endElement();
    out.endElement();
    EXPECT_EQ(out.takeDocument(), "<?xml?>\n"
                                  "<a>\n"
                                  "  <b>\n"
                                  "    <empty/>\n"
                                  "  </b>\n"
                                  "  <text>&lt;</text>\n"
                                  "  <cdata><![CDATA[<]]></cdata>\n"
                                  "</a>\n");
}

TEST(XmlTextWriter, AnEmptyTextIsContentToo)
{
    TextWriter out("", 1);
    out.startElement("a");
    out.startElement("text");
    out.text("");
    out.endElement();
    out.startElement("cdata");
    out.cdata("");
    out.endElement();
    out.endElement();
    EXPECT_EQ(out.takeDocument(), "\n<a>\n <text></text>\n <cdata><![CDATA[]]></cdata>\n</a>\n");
}

TEST(XmlTextWriter, AttributesStandInTheOrderInWhichTheyAreWritten)
{
    TextWriter out("", 1);
    out.startElement("a");
    out.attribute("z", "\"");
    out.attribute("b", "");
    out.endElement();
    EXPECT_EQ(out.takeDocument(), "\n<a z=\"&quot;\" b=\"\"/>\n");
}

} // namespace zupackage::xml
