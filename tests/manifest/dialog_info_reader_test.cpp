#include "support/manifests.hpp"

#include <QtXml/QDomDocument>
#include <gmock/gmock.h>

namespace zu {

using testing::ElementsAre;
using testing::Pair;

namespace {

bool load(DialogInfo& dialog, const char* xml)
{
    QDomDocument document;
    EXPECT_TRUE(document.setContent(QByteArray(xml)));
    QDomElement element = document.documentElement();
    return dialog.loadFromManifest(element);
}

} // namespace

TEST(DialogReader, ReadsAttributesAndTopics)
{
    DialogInfo dialog;
    EXPECT_TRUE(load(dialog,
                     "<dialogContent topicName='weather' typeVersion='1.0'><!-- no --><topic language='en' "
                     "path='a'/><topic language='fr' path='b'/>text<other language='de' path='c'/></dialogContent>"));
    EXPECT_EQ(dialog.topicName(), "weather");
    EXPECT_EQ(dialog.typeVersion(), "1.0");
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("en", "a"), Pair("fr", "b")));
}

TEST(DialogReader, TheLanguageOfATopicIsNotItsLang)
{
    DialogInfo dialog;
    EXPECT_TRUE(load(dialog, "<dialogContent><topic lang='en' path='a'/></dialogContent>"));
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("", "a")));
}

TEST(DialogReader, ARepeatedLanguageKeepsTheLaterPath)
{
    DialogInfo dialog;
    load(dialog, "<dialogContent><topic language='en' path='a'/><topic language='en' path='b'/></dialogContent>");
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("en", "b")));
}

TEST(DialogReader, MissingAttributesEmptyTheirFieldsAndPresentTopicsStay)
{
    DialogInfo dialog;
    dialog.setTopicName("weather");
    dialog.setTypeVersion("1.0");
    dialog.setTopic("fr", "b");
    EXPECT_TRUE(load(dialog, "<anything><topic language='en' path='a'/></anything>"));
    EXPECT_EQ(dialog.topicName(), "");
    EXPECT_EQ(dialog.typeVersion(), "");
    EXPECT_THAT(dialog.topics(), ElementsAre(Pair("en", "a"), Pair("fr", "b")));
}

TEST(DialogReader, ANullElementIsReadLikeAnEmptyOne)
{
    QDomElement null;
    DialogInfo dialog;
    EXPECT_TRUE(dialog.loadFromManifest(null));
    EXPECT_TRUE(dialog == DialogInfo());
}

TEST(DialogReader, EachDialogElementOfAManifestIsAppended)
{
    const PackageInfo package =
        test::packageWithContent("<dialogContent topicName='a'/><dialogContent topicName='a'/>");
    EXPECT_EQ(package.dialogs().size(), 2u);
    EXPECT_EQ(package.dialogs().back().topicName(), "a");
}

} // namespace zu
