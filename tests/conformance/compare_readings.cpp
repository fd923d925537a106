// Compares how the library reads the files in folders with what QDomDocument::setContent makes of them.
// usage: zupackage_compare_readings FOLDER...
#include "support/dom_reader.hpp"
#include "support/files.hpp"

#include <iostream>

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    int files = 0;
    int differences = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(argv[i])) {
            if (!entry.is_regular_file())
                continue;
            ++files;
            const std::string difference = zu::test::differenceFromDom(zu::test::readFile(entry.path()));
            if (difference.empty())
                continue;
            ++differences;
            std::cout << entry.path().string() << ", " << difference << '\n';
        }
    std::cout << files << " files, " << differences << " of them read differently\n";
    return files > 0 && differences == 0 ? 0 : 1;
}
