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

/// Makes a document read as another package and back as its own, each twice.
Editing edit(const zu::authoring::SourceDocument& document)
{
    try {
        zu::authoring::ManifestEditor editor(document);
        const zu::PackageInfo own = editor.package();
        const zu::PackageInfo others[] = {own, changed(own), own};
        for (const zu::PackageInfo& package : others) {
            editor.update(package);
            const std::string text = editor.document().text();
            editor.update(package);
            if (editor.document().text() != text || !zu::test::areCarriedAlike(editor.package(), package))
                return Editing::Wrong;
            if (&package == &others[0] && text != document.text())
                return Editing::Wrong;
        }
        return Editing::AsAskedFor;
    } catch (const zu::authoring::ManifestEditError&) {
        return Editing::Refused;
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
