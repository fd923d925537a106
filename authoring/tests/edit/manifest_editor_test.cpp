#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

ManifestEditor editorOf(const std::string& text) { return ManifestEditor(SourceDocument::parse(text)); }

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

TEST(ManifestEditor, AnUpdateWithItsOwnPackageChangesNoByte)
{
    const std::string text = "<package  uuid = 'u'><!-- c --><names>\r\n<!-- c --><name/></names><x/>\n</package>\n\n";
    ManifestEditor editor = editorOf(text);
    editor.update(editor.package());
    EXPECT_EQ(editor.document().text(), text);
}

} // namespace zu::authoring
