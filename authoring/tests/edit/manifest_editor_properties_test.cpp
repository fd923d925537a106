#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/generated_packages.hpp"
#include "support/odd_manifests.hpp"
#include "support/property.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

/// What of a package a manifest carries, as text: what stays when it is written and read again and again. Empty texts
/// go first, then the lists that hold no others.
std::string carried(PackageInfo package)
{
    std::string text = package.saveToManifestContent();
    for (;;) {
        PackageInfo read;
        readManifest(text, read);
        std::string next = read.saveToManifestContent();
        if (next == text)
            return next;
        text = std::move(next);
    }
}

/// An editor of an odd manifest.
ManifestEditor oddEditor()
{
    const std::string bytes = test::oddManifest(*test::packages(test::texts()));
    const SourceDocument document = SourceDocument::parse(bytes);
    for (const SyntaxError& error : document.errors())
        RC_FAIL(error.message + " in " + bytes);
    return ManifestEditor(document);
}

/// A package that the editor's document is to become: one like its own, or any.
PackageInfo targetFor(const ManifestEditor& editor)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 4)) == 0 ? *test::packages(test::texts())
                                                                           : test::changedPackage(editor.package());
}

/// @return false for what the encoding of the document cannot hold, which is refused.
bool isUpdated(ManifestEditor& editor, const PackageInfo& package)
{
    const std::string before = editor.document().text();
    const std::string wanted = PackageInfo(package).saveToManifestContent();
    try {
        editor.update(package);
        return true;
    } catch (const ManifestEditError& error) {
        if (editor.document().encoding() != "ISO-8859-1" || wanted.find("\xf0\x9f") == std::string::npos)
            RC_FAIL(error.what() + std::string(" in\n") + before + "\nfor\n" + wanted);
        RC_ASSERT(editor.document().text() == before);
        return false;
    }
}

} // namespace

TEST(ManifestEditorProperties, AnUpdateMakesTheDocumentReadAsThePackage)
{
    test::checkProperty(1000, [] {
        ManifestEditor editor = oddEditor();
        const std::string unchanged = editor.document().text();
        const PackageInfo before = editor.package();
        editor.update(before);
        RC_ASSERT(editor.document().text() == unchanged);

        const PackageInfo target = targetFor(editor);
        if (!isUpdated(editor, target))
            return;
        RC_ASSERT(carried(editor.package()) == carried(target));
        const std::string once = editor.document().text();
        editor.update(target);
        RC_ASSERT(editor.document().text() == once);

        if (isUpdated(editor, before))
            RC_ASSERT(carried(editor.package()) == carried(before));
    });
}

} // namespace zu::authoring
