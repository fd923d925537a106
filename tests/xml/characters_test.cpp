#include "support/files.hpp"
#include "support/program.hpp"
#include "xml/characters.hpp"

#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

namespace zupackage::xml {

namespace {

bool qtReadsElement(const QString& name)
{
    QDomDocument document;
    return document.setContent('<' + name + "/>", true) && document.documentElement().tagName() == name;
}

} // namespace

TEST(XmlCharacters, ForbiddenOnesAreReplacedAndPairsAreKept)
{
    const QChar replacement(QChar::ReplacementCharacter);
    const QString robot = QString::fromUtf8("\xf0\x9f\xa4\x96");
    EXPECT_EQ(withoutForbiddenCharacters("a\tb\nc\rd"), "a\tb\nc\rd");
    EXPECT_EQ(withoutForbiddenCharacters(robot), robot);
    EXPECT_EQ(withoutForbiddenCharacters(robot.left(1)), QString(replacement));
    EXPECT_EQ(withoutForbiddenCharacters(robot.right(1) + robot), replacement + robot);
    EXPECT_EQ(withoutForbiddenCharacters(robot.left(1) + robot), replacement + robot);
    EXPECT_EQ(withoutForbiddenCharacters(QString(QChar(0)) + QChar(0x1f) + QChar(0xfffe) + QChar(0xffff)),
              QString(4, replacement));
    EXPECT_EQ(withoutForbiddenCharacters(""), "");
}

TEST(XmlCharacters, NamesFollowTheProductionWithoutTheColon)
{
    for (const char* name : {"a", "_", "A-b.c_9", "\xc3\xa9", "\xe6\x97\xa5\xe6\x9c\xac"})
        EXPECT_TRUE(isElementName(QString::fromUtf8(name))) << name;
    for (const char* name : {"", "-a", ".a", "9", "a b", "a:b", ":", "a>", "a/", "a\n", "\xc3\x97", "\xf0\x9f\xa4\x96",
                             "\xef\xbf\xbd", "a\xc2\xb7"})
        EXPECT_FALSE(isElementName(QString::fromUtf8(name))) << name;
}

TEST(XmlCharacters, EveryNameIsReadByQtAndByASecondParser)
{
    QString document = "<names>";
    int names = 0;
    for (int code = 0; code <= 0xffff; ++code)
        for (const QString& name : {QString(QChar(code)), 'a' + QString(QChar(code))})
            if (isElementName(name)) {
                ++names;
                document += '<' + name + "/>";
                EXPECT_TRUE(qtReadsElement(name)) << code;
            }
    EXPECT_GT(names, 80'000);
    const zu::test::TemporaryFolder folder;
    const std::string path = folder.file("names.xml", (document + "</names>").toStdString());
    const zu::test::ProgramResult result = zu::test::runProgram("xmllint", {"--noout", path});
    EXPECT_EQ(result.exitCode, 0) << result.errors.substr(0, 500);
}

} // namespace zupackage::xml
