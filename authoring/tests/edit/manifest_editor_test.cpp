#include "edit/edited.hpp"
#include "support/encodings.hpp"
#include "support/files.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

ManifestEditor editorOf(const std::string& text) { return ManifestEditor(SourceDocument::parse(text)); }

std::string withBehavior(const std::string& content) { return "<p><contents>" + content + "</contents></p>"; }

Change ofBehavior(const std::function<void(BehaviorInfo&)>& change)
{
    return [change](PackageInfo& package) { change(package.behaviors().front()); };
}

} // namespace

TEST(ManifestEditor, GivesThePackageThatTheReaderGives)
{
    const ManifestEditor editor = editorOf("<package uuid='u'><names><name lang='en'>Stories</name></names></package>");
    EXPECT_EQ(editor.package().uuid(), "u");
    EXPECT_EQ(editor.package().name("en"), "Stories");
}

TEST(ManifestEditor, RefusesADocumentThatIsNotWellFormedAndSaysWhere)
{
    try {
        editorOf("<package>\n<names></package>");
        FAIL();
    } catch (const ManifestEditError& error) {
        EXPECT_EQ(error.place().line, 2U);
        EXPECT_STRNE(error.what(), "");
    }
}

TEST(ManifestEditor, RefusesWhatTheEncodingCannotHoldAndChangesNothing)
{
    const std::string text = "<?xml version='1.0' encoding='ISO-8859-1'?><p uuid='u'/>";
    ManifestEditor editor = editorOf(text);
    PackageInfo package = editor.package();
    package.setUuid("\xf0\x9f\xa4\x96");
    EXPECT_THROW(editor.update(package), ManifestEditError);
    EXPECT_EQ(editor.document().text(), text);
    EXPECT_EQ(editor.package().uuid(), "u");
}

TEST(ManifestEditor, KeepsWhiteSpaceAloneInASectionWhereTheEncodingHasIt)
{
    const auto change = [](PackageInfo& p) { p.setName("\xe2\x80\xa8", ""); };
    EXPECT_EQ(edited("<p><names><name>a</name></names></p>", change),
              "<p><names><name><![CDATA[\xe2\x80\xa8]]></name></names></p>");
    const std::string declaration = "<?xml version='1.0' encoding='ISO-8859-1'?>";
    EXPECT_EQ(edited(declaration + "<p><names><name>a</name></names></p>", change),
              declaration + "<p><names><name>&#8232;</name></names></p>");
    EXPECT_EQ(edited(declaration + "<p><names/></p>", change),
              declaration + "<p><names><name>&#8232;</name></names></p>");
}

TEST(ManifestEditor, AnUpdateWithItsOwnPackageChangesNoByte)
{
    const std::string text = "<package  uuid = 'u'><!-- c --><names>\r\n<!-- c --><name/></names><x/>\n</package>\n\n";
    EXPECT_EQ(edited(text, [](PackageInfo&) {}), text);
}

TEST(ManifestEditor, AnUpdateOfAnExampleWithItsOwnPackageChangesNoByte)
{
    for (const auto& folder : test::examplePackages()) {
        const std::string text = test::readFile(folder / "manifest.xml");
        EXPECT_EQ(edited(text, [](PackageInfo&) {}), text) << folder;
    }
}

TEST(ManifestEditor, ACopyIsIndependent)
{
    ManifestEditor editor = editorOf("<p uuid='u'/>");
    const ManifestEditor copy = editor;
    PackageInfo package = editor.package();
    package.setUuid("v");
    editor.update(package);
    EXPECT_EQ(copy.package().uuid(), "u");
    EXPECT_EQ(copy.document().text(), "<p uuid='u'/>");
}

TEST(ManifestEditor, ReplacesAnAttributeInItsQuotesAndKeepsTheReferencesAroundTheChange)
{
    EXPECT_EQ(edited("<p author='&#74;&amp;B' x=''/>", [](PackageInfo& p) { p.setAuthor("J&\"C'"); }),
              "<p author='&#74;&amp;\"C&apos;' x=''/>");
}

TEST(ManifestEditor, PutsANewAttributeWhereTheVocabularyHasItInTheQuotesOfItsNeighbour)
{
    EXPECT_EQ(edited("<p uuid='u'\n   author='a'/>", [](PackageInfo& p) { p.setOrganization("o"); }),
              "<p uuid='u'\n   author='a'\n   organization='o'/>");
    EXPECT_EQ(edited("<p author='a'/>", [](PackageInfo& p) { p.setUuid("u"); }), "<p uuid='u' author='a'/>");
    EXPECT_EQ(edited("<p/>", [](PackageInfo& p) { p.setUuid("u"); }), "<p uuid=\"u\"/>");
}

TEST(ManifestEditor, TakesAnAttributeAwayWithTheWhiteSpaceBeforeIt)
{
    EXPECT_EQ(edited("<p uuid='u'\n   date='d' x=''/>", [](PackageInfo& p) { p.setDate(""); }), "<p uuid='u' x=''/>");
}

TEST(ManifestEditor, LeavesAFlagAloneThatReadsAsItShould)
{
    EXPECT_EQ(edited("<p installOnlyAtStartup='1'/>", [](PackageInfo& p) { p.setVersion("2"); }),
              "<p version='2' installOnlyAtStartup='1'/>");
    EXPECT_EQ(edited("<p installOnlyAtStartup='no'/>", [](PackageInfo& p) { p.setInstallOnlyAtStartup(true); }),
              "<p installOnlyAtStartup='true'/>");
}

TEST(ManifestEditor, ReplacesTheChangedPartOfATextAlone)
{
    EXPECT_EQ(edited("<p><names><name lang='en'>Caf&#233; &lt;one&gt;</name></names></p>",
                     [](PackageInfo& p) { p.setName("Caf\xc3\xa9 <two>", "en"); }),
              "<p><names><name lang='en'>Caf&#233; &lt;two&gt;</name></names></p>");
}

TEST(ManifestEditor, KeepsTheSectionAndTheCommentsOfAText)
{
    EXPECT_EQ(edited("<p><names><name><!-- a --><![CDATA[a<b]]><!-- b --></name></names></p>",
                     [](PackageInfo& p) { p.setName("a<c", ""); }),
              "<p><names><name><!-- a --><![CDATA[a<c]]><!-- b --></name></names></p>");
    EXPECT_EQ(edited("<p><names><name>a<!-- b -->c</name></names></p>", [](PackageInfo& p) { p.setName("d", ""); }),
              "<p><names><name>d<!-- b --></name></names></p>");
}

TEST(ManifestEditor, DividesASectionWhoseTextHasItsEnd)
{
    EXPECT_EQ(
        edited("<p><names><name><![CDATA[a]]]]></name></names></p>", [](PackageInfo& p) { p.setName("]]>", ""); }),
        "<p><names><name>]]&gt;</name></names></p>");
}

TEST(ManifestEditor, FillsAnElementWithoutContent)
{
    EXPECT_EQ(edited(withBehavior("<behaviorContent path='b'><nature x='' /></behaviorContent>"),
                     ofBehavior([](BehaviorInfo& b) { b.setNature("solitary"); })),
              withBehavior("<behaviorContent path='b'><nature x=''>solitary</nature></behaviorContent>"));
}

TEST(ManifestEditor, EditsTheRepeatedElementThatCounts)
{
    EXPECT_EQ(edited("<p><names><name>a</name><name>b</name></names></p>", [](PackageInfo& p) { p.setName("c", ""); }),
              "<p><names><name>a</name><name>c</name></names></p>");
    EXPECT_EQ(edited("<p><names><name>a</name><name>b</name></names></p>", [](PackageInfo& p) { p.clearNames(); }),
              "<p><names></names></p>");
    const std::string natures = "<behaviorContent path='b'><nature>a</nature><nature>b</nature></behaviorContent>";
    EXPECT_EQ(edited(withBehavior(natures), ofBehavior([](BehaviorInfo& b) { b.setNature("c"); })),
              withBehavior("<behaviorContent path='b'><nature>a</nature><nature>c</nature></behaviorContent>"));
}

TEST(ManifestEditor, PutsWhatACommentTakesTheNameOfBehindIt)
{
    EXPECT_EQ(edited("<p><names><name>a</name><!-- c --></names></p>", [](PackageInfo& p) { p.setName("b", ""); }),
              "<p><names><name>a</name><!-- c --><name>b</name></names></p>");
}

TEST(ManifestEditor, KeepsEncodingMarkAndLineEnds)
{
    const std::string utf16 = "\xff\xfe" + test::encoded("<p>\r\n <names/>\r\n</p>", "UTF-16LE");
    const std::string result = edited(utf16, [](PackageInfo& p) { p.setName("a", "en"); });
    EXPECT_EQ(SourceDocument::parse(result).encoding(), "UTF-16LE");
    EXPECT_EQ(SourceDocument::parse(result).source({0, result.size()}),
              "\xef\xbb\xbf<p>\r\n <names>\r\n  <name lang=\"en\">a</name>\r\n </names>\r\n</p>");
    EXPECT_EQ(edited("<?xml version='1.0' encoding='ISO-8859-1'?><p uuid='\xe9'/>",
                     [](PackageInfo& p) { p.setVersion("\xe2\x82\xac\xc3\xa9"); }),
              "<?xml version='1.0' encoding='ISO-8859-1'?><p uuid='\xe9' version='&#8364;\xe9'/>");
}

TEST(ManifestEditor, LeavesOutWhatAManifestCannotCarry)
{
    const std::string text = "<p><names><name lang='fr'></name></names></p>";
    const auto change = [](PackageInfo& p) {
        p.setInstaller("i");
        p.setPath("p");
        p.setName("", "en");
    };
    EXPECT_EQ(edited(text, change), text);
}

TEST(ManifestEditor, MakesAndTakesAwayThePresenceThatPeopleMayAskFor)
{
    const std::string without = withBehavior("<behaviorContent path='b'><nature>a</nature></behaviorContent>");
    const std::string with =
        withBehavior("<behaviorContent path='b'><userRequestable/><nature>a</nature></behaviorContent>");
    EXPECT_EQ(edited(without, ofBehavior([](BehaviorInfo& b) { b.setUserRequestable(true); })), with);
    EXPECT_EQ(edited(with, ofBehavior([](BehaviorInfo& b) { b.setUserRequestable(false); })), without);
}

} // namespace zu::authoring
