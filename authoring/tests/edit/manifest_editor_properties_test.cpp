#include "support/carried_packages.hpp"
#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/generated_packages.hpp"
#include "support/odd_manifests.hpp"
#include "support/property.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <vector>

namespace zu::authoring {

namespace {

// Making a document takes longer than editing it, so that each is edited often.
constexpr int k_updatesEach = 20;
constexpr int k_documents = test::k_inputs / k_updatesEach;

std::string written(PackageInfo package) { return package.saveToManifestContent(); }

/// An editor of an odd manifest.
ManifestEditor oddEditor()
{
    const std::string bytes = test::oddManifest(*test::packages(test::texts()));
    const SourceDocument document = SourceDocument::parse(bytes);
    for (const SyntaxError& error : document.errors())
        RC_FAIL(error.message + " in " + bytes);
    return ManifestEditor(document);
}

/// @return false for what the encoding of the document cannot hold, which is refused.
bool isUpdated(ManifestEditor& editor, const PackageInfo& package)
{
    const std::string before = editor.document().text();
    try {
        editor.update(package);
    } catch (const ManifestEditError& error) {
        const std::string wanted = written(package);
        if (editor.document().encoding() != "ISO-8859-1" || wanted.find("\xf0\x9f") == std::string::npos)
            RC_FAIL(error.what() + std::string(" in\n") + before + "\nfor\n" + wanted);
        RC_ASSERT(editor.document().text() == before);
        return false;
    }
    if (!test::areCarriedAlike(editor.package(), package))
        RC_FAIL(before + "\nbecame\n" + editor.document().text() + "\nfor\n" + written(package));
    return true;
}

/// An update with the document's own package changes no byte, and neither does the same update again.
void expectNoChange(ManifestEditor& editor, const PackageInfo& package)
{
    const SourceDocument before = editor.document();
    editor.update(package);
    RC_ASSERT(editor.document().text() == before.text());
}

} // namespace

TEST(ManifestEditorProperties, AnUpdateMakesTheDocumentReadAsThePackage)
{
    int refused = 0;
    const int documents = test::checkProperty(k_documents, [&refused] {
        ManifestEditor editor = oddEditor();
        for (int i = 0; i < k_updatesEach; ++i) {
            const PackageInfo own = editor.package();
            expectNoChange(editor, own);
            const PackageInfo target = test::changedPackage(own);
            if (!isUpdated(editor, target)) {
                ++refused;
                continue;
            }
            expectNoChange(editor, target);
            ManifestEditor back = editor;
            isUpdated(back, own);
        }
    });
    std::cout << refused << " of " << documents * k_updatesEach << " updates refused\n";
    EXPECT_LT(refused, documents * k_updatesEach / 2);
}

TEST(ManifestEditorProperties, AnUpdateToAnyPackageAndBackReadsAsBefore)
{
    test::checkProperty(k_documents / 2, [] {
        ManifestEditor editor = oddEditor();
        const PackageInfo first = editor.package();
        isUpdated(editor, *test::packages(test::texts()));
        isUpdated(editor, first);
    });
}

TEST(ManifestEditorProperties, AnyDocumentThatIsReadCanBeEdited)
{
    test::checkProperty(test::k_inputs, [] {
        const SourceDocument document = SourceDocument::parse(test::anyDocument());
        // What entities of a document type stand for cannot be edited.
        if (!document.isWellFormed() || document.text().find("<!DOCTYPE") != std::string::npos)
            return;
        ManifestEditor editor(document);
        editor.update(editor.package());
        RC_ASSERT(editor.document().text() == document.text());
        isUpdated(editor, test::changedPackage(editor.package()));
    });
}

TEST(ManifestEditorProperties, EveryExampleReadsAsAnUpdateSaysAndBack)
{
    const std::vector<std::filesystem::path> examples = test::examplePackages();
    test::checkProperty(400, [&] {
        const std::string bytes = test::readFile(*rc::gen::elementOf(examples) / "manifest.xml");
        ManifestEditor editor(SourceDocument::parse(bytes));
        const PackageInfo own = editor.package();
        expectNoChange(editor, own);
        const PackageInfo target = test::changedPackage(own);
        RC_ASSERT(isUpdated(editor, target));
        expectNoChange(editor, target);
        RC_ASSERT(isUpdated(editor, own));
    });
}

} // namespace zu::authoring
