// Compares how files in folders are read as source documents with what QXmlStreamReader makes of them.
// usage: zupackage_compare_source_documents FOLDER...
// Each is edited, there and back, too. Also tells which documents are refused that QXmlStreamReader accepts: those are
// no differences, but known by name.
#include "support/carried_packages.hpp"
#include "support/files.hpp"
#include "support/odd_manifests.hpp"
#include "support/stream_reader.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <filesystem>
#include <iostream>
#include <rapidcheck.h>

namespace {

using zu::authoring::ManifestEditError;
using zu::authoring::ManifestEditor;

/// What became of the edits of a document.
enum class Editing
{
    AsAskedFor,
    Refused, ///< by the editor, before it changed anything
    Wrong
};

/// A package with a few things changed, the same ones in each run.
zu::PackageInfo changed(const zu::PackageInfo& package)
{
    const auto generator = rc::gen::exec([&package] { return zu::test::changedPackage(package); });
    return generator(rc::Random(1), rc::kNominalSize).value();
}

Editing update(ManifestEditor& editor, const zu::PackageInfo& package)
{
    const std::string before = editor.document().text();
    try {
        editor.update(package);
    } catch (const ManifestEditError&) {
        return editor.document().text() == before ? Editing::Refused : Editing::Wrong;
    }
    return zu::test::areCarriedAlike(editor.package(), package) ? Editing::AsAskedFor : Editing::Wrong;
}

/// What reads as the package already stays as it is.
Editing updateTwice(ManifestEditor& editor, const zu::PackageInfo& package)
{
    const Editing first = update(editor, package);
    if (first != Editing::AsAskedFor)
        return first;
    const std::string text = editor.document().text();
    const Editing second = update(editor, package);
    return second == Editing::AsAskedFor && editor.document().text() == text ? second : Editing::Wrong;
}

/// Makes a document read as its own package, which changes nothing, as another one, and back as its own.
Editing edit(const zu::authoring::SourceDocument& document)
{
    try {
        ManifestEditor editor(document);
        const zu::PackageInfo own = editor.package();
        if (updateTwice(editor, own) != Editing::AsAskedFor || editor.document().text() != document.text())
            return Editing::Wrong;
        const Editing there = updateTwice(editor, changed(own));
        return there == Editing::AsAskedFor ? updateTwice(editor, own) : there;
    } catch (const ManifestEditError&) {
        return Editing::Refused; // there is no package that could be another one
    }
}

struct Counts
{
    int files = 0;
    int refused = 0;
    int refusedHereAlone = 0;
    int notEdited = 0; ///< of those that are not refused
    int differences = 0;
};

void compare(const std::string& path, Counts& counts)
{
    ++counts.files;
    const std::string bytes = zu::test::readFile(path);
    const std::string difference = zu::test::differenceFromStreamReader(bytes);
    if (!difference.empty()) {
        ++counts.differences;
        std::cout << path << ", " << difference << '\n';
    }
    const auto document = zu::authoring::SourceDocument::parse(bytes);
    const Editing editing = edit(document);
    if (editing == Editing::Wrong) {
        ++counts.differences;
        std::cout << path << ", edited otherwise than asked for\n";
    }
    if (document.isWellFormed()) {
        counts.notEdited += editing == Editing::Refused ? 1 : 0;
        return;
    }
    ++counts.refused;
    std::string error;
    zu::test::streamReaderTokens(bytes, error);
    if (!error.empty())
        return;
    ++counts.refusedHereAlone;
    const auto& first = document.errors().front();
    std::cout << path << ':' << first.place.line << ':' << first.place.column
              << ": refused here alone: " << first.message << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    Counts counts;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (entry.is_regular_file())
                compare(entry.path().string(), counts);
        }
    }
    std::cout << counts.files << " files, " << counts.refused << " of them refused (" << counts.refusedHereAlone
              << " by QXmlStreamReader not), " << counts.notEdited << " of the others not edited, "
              << counts.differences << " of them read differently\n";
    return counts.files > 0 && counts.differences == 0 ? 0 : 1;
}
