#include "support/generated_documents.hpp"
#include "support/generated_packages.hpp"
#include "support/odd_manifests.hpp"
#include "support/property.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace zu::authoring {

namespace {

// Making a document takes longer than editing it, so that each is edited often.
constexpr int k_updatesEach = 20;
constexpr int k_documents = 10'000 / k_updatesEach;

std::string written(PackageInfo package) { return package.saveToManifestContent(); }

/// What of a package a manifest carries, as text: what stays when it is written and read again and again. Empty texts
/// go first, then the lists that hold no others.
std::string carried(std::string text)
{
    for (;;) {
        PackageInfo read;
        readManifest(text, read);
        std::string next = read.saveToManifestContent();
        if (next == text)
            return next;
        text = std::move(next);
    }
}

bool readAlike(const PackageInfo& left, const PackageInfo& right)
{
    const std::string leftText = written(left);
    const std::string rightText = written(right);
    return leftText == rightText || carried(leftText) == carried(rightText);
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
    if (!readAlike(editor.package(), package))
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

/// The elements that are read as behaviors.
std::vector<SourceNode> behaviorsIn(const SourceDocument& document)
{
    std::vector<SourceNode> behaviors;
    for (const SourceNode section : document.root().children())
        for (const SourceNode child : section.children())
            if (section.isElement() && section.name() == "contents" && child.name() == "behaviorContent")
                behaviors.push_back(child);
    return behaviors;
}

bool hasRepeatedPaths(const PackageInfo& package)
{
    std::set<std::string> paths;
    for (const BehaviorInfo& behavior : package.behaviors())
        paths.insert(behavior.path());
    return paths.size() != package.behaviors().size();
}

/// The lines that a node stands in, with their ends.
ByteRange linesOf(SourceNode node, const SourceDocument& document)
{
    const std::string& text = document.text();
    const std::size_t lineEndSize = document.encoding() == "UTF-16LE" ? 4 : 2;
    const std::size_t before = text.find_last_of("\r\n", node.range().begin);
    const std::size_t after = text.find_first_of("\r\n", node.range().end);
    return {before == std::string::npos ? 0 : before,
            after == std::string::npos ? text.size() : std::min(after + lineEndSize, text.size())};
}

/// Whether two texts are equal but for what stands in the range of the first.
bool areEqualOutside(ByteRange range, const std::string& text, const std::string& other)
{
    const std::size_t behind = text.size() - range.end;
    return other.size() >= range.begin + behind && other.compare(0, range.begin, text, 0, range.begin) == 0 &&
           other.compare(other.size() - behind, behind, text, range.end, behind) == 0;
}

} // namespace

TEST(ManifestEditorProperties, AnUpdateMakesTheDocumentReadAsThePackage)
{
    test::checkProperty(k_documents, [] {
        ManifestEditor editor = oddEditor();
        for (int i = 0; i < k_updatesEach; ++i) {
            const PackageInfo own = editor.package();
            expectNoChange(editor, own);
            const PackageInfo target = test::changedPackage(own);
            if (!isUpdated(editor, target))
                continue;
            expectNoChange(editor, target);
            ManifestEditor back = editor;
            isUpdated(back, own);
        }
    });
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
    test::checkProperty(10'000, [] {
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

TEST(ManifestEditorProperties, WhatChangesStandsInTheLinesOfTheEntryThatChanges)
{
    test::checkProperty(k_documents, [] {
        ManifestEditor editor = oddEditor();
        for (int i = 0; i < k_updatesEach; ++i) {
            const SourceDocument before = editor.document();
            const std::vector<SourceNode> behaviors = behaviorsIn(before);
            PackageInfo package = editor.package();
            // Of two that are alike either one may be taken for the other.
            if (behaviors.empty() || hasRepeatedPaths(package))
                return;
            const auto number = *rc::gen::inRange<std::size_t>(0, behaviors.size());
            const auto behavior = std::next(package.behaviors().begin(), static_cast<std::ptrdiff_t>(number));
            if (*rc::gen::arbitrary<bool>())
                package.behaviors().erase(behavior);
            else
                test::changeBehavior(*behavior);
            if (!isUpdated(editor, package))
                continue;
            const ByteRange lines = linesOf(behaviors[number], before);
            if (!areEqualOutside(lines, before.text(), editor.document().text()))
                RC_FAIL(before.text() + "\nbecame\n" + editor.document().text());
        }
    });
}

} // namespace zu::authoring
