// Compares how files in folders are read as source documents with what QXmlStreamReader makes of them.
// usage: zupackage_compare_source_documents FOLDER...
// Also tells which documents are refused that QXmlStreamReader accepts: those are no differences, but known by name.
#include "support/files.hpp"
#include "support/stream_reader.hpp"

#include <iostream>

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
