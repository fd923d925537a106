#include <zupackage/dialog_info.hpp>

#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

static_assert(
    std::is_same_v<decltype(&DialogInfo::saveToManifest), void (DialogInfo::*)(QDomDocument&, QDomNode&) const>);

namespace {

/// The element that a dialog appends to a root with another child already.
QDomElement appended(const DialogInfo& dialog)
{
    static QDomDocument document;
    document = QDomDocument();
    QDomNode root = document.appendChild(document.createElement("root"));
    root.appendChild(document.createElement("before"));
    dialog.saveToManifest(document, root);
    EXPECT_EQ(root.childNodes().size(), 2);
    return root.lastChild().toElement();
}

} // namespace

TEST(DialogWriter, AttributesAreWrittenEvenWhenEmpty)
{
    const QDomElement element = appended({});
    EXPECT_EQ(element.tagName(), "dialogContent");
    EXPECT_TRUE(element.hasAttribute("topicName"));
    EXPECT_TRUE(element.hasAttribute("typeVersion"));
    EXPECT_FALSE(element.hasChildNodes());
}

TEST(DialogWriter, TopicsWithoutLanguageOrPathAreLeftOut)
{
    DialogInfo dialog;
    dialog.setTopicName("weather");
    dialog.setTypeVersion("1.0");
    dialog.setTopic("fr", "b");
    dialog.setTopic("en", "a");
    dialog.setTopic("de", "");
    dialog.setTopic("", "c");
    const QDomElement element = appended(dialog);
    EXPECT_EQ(element.attribute("topicName"), "weather");
    EXPECT_EQ(element.attribute("typeVersion"), "1.0");
    ASSERT_EQ(element.childNodes().size(), 2);
    EXPECT_EQ(element.firstChildElement("topic").attribute("language"), "en");
    EXPECT_EQ(element.firstChildElement("topic").attribute("path"), "a");
    EXPECT_EQ(element.lastChildElement("topic").attribute("language"), "fr");
}

TEST(DialogWriter, TheRootOfAnEmptyDocumentIsTheDialog)
{
    DialogInfo dialog;
    dialog.setTopicName("weather");
    dialog.setTopic("en", "a");
    QDomDocument document;
    dialog.saveToManifest(document, document);
    EXPECT_EQ(document.documentElement().tagName(), "dialogContent");
    EXPECT_EQ(document.documentElement().attribute("topicName"), "weather");
    EXPECT_EQ(document.documentElement().firstChildElement("topic").attribute("path"), "a");
}

TEST(DialogWriter, WithoutAParentNothingIsAppended)
{
    DialogInfo dialog;
    dialog.setTopic("en", "a");
    QDomDocument document;
    QDomNode parent;
    dialog.saveToManifest(document, parent);
    EXPECT_TRUE(parent.isNull());
    EXPECT_FALSE(document.hasChildNodes());
}

TEST(DialogWriter, WhatXmlCannotCarryBecomesTheReplacementCharacter)
{
    DialogInfo dialog;
    dialog.setTopicName("a\x01\xff");
    EXPECT_EQ(appended(dialog).attribute("topicName"), QString::fromUtf8("a\xef\xbf\xbd\xef\xbf\xbd"));
}

TEST(DialogWriter, WhatIsWrittenReadsBack)
{
    DialogInfo dialog;
    dialog.setTopicName("weather & \"more\"");
    dialog.setTopic("en", "<a>");
    QDomElement element = appended(dialog);
    DialogInfo read;
    EXPECT_TRUE(read.loadFromManifest(element));
    EXPECT_TRUE(read == dialog);
}

} // namespace zu
