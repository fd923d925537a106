// Compares how files in folders are read as source documents with what QXmlStreamReader makes of them.
// usage: zupackage_compare_source_documents FOLDER...
// Each is edited, too. Also tells which documents are refused that QXmlStreamReader accepts: those are no differences,
// but known by name.
#include "support/files.hpp"
#include "support/stream_reader.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <iostream>

namespace {

/// Whether an editor leaves a document alone that is to read as it does. One that cannot be edited is left alone, too.
bool isKeptByEditor(const zu::authoring::SourceDocument& document)
{
    try {
        zu::authoring::ManifestEditor editor(document);
        zu::PackageInfo package = editor.package();
        editor.update(package);
        if (editor.document().text() != document.text())
            return false;
        package.setUuid("another " + package.uuid());
        editor.update(package);
        return editor.package().uuid() == package.uuid();
    } catch (const zu::authoring::ManifestEditError&) {
        return true;
    }
}

} // namespace

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    int files = 0;
    int refused = 0;
    int refusedHereAlone = 0;
    int differences = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(argv[i])) {
            if (!entry.is_regular_file())
                continue;
            ++files;
            const std::string bytes = zu::test::readFile(entry.path());
            const std::string difference = zu::test::differenceFromStreamReader(bytes);
            if (!difference.empty()) {
                ++differences;
                std::cout << entry.path().string() << ", " << difference << '\n';
            }
            const auto document = zu::authoring::SourceDocument::parse(bytes);
            if (!isKeptByEditor(document)) {
                ++differences;
                std::cout << entry.path().string() << ", edited otherwise than asked for\n";
            }
            std::string error;
            zu::test::streamReaderTokens(bytes, error);
            if (document.isWellFormed())
                continue;
            ++refused;
            if (error.empty()) {
                ++refusedHereAlone;
                const auto& first = document.errors().front();
                std::cout << entry.path().string() << ':' << first.place.line << ':' << first.place.column
                          << ": refused here alone: " << first.message << '\n';
            }
        }
    std::cout << files << " files, " << refused << " of them refused (" << refusedHereAlone
              << " by QXmlStreamReader not), " << differences << " of them read differently\n";
    return files > 0 && differences == 0 ? 0 : 1;
}
