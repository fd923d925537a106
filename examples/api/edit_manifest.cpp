// Changes what a manifest says, leaves the rest of its text as it is, and prints the lines that are new.

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>

namespace {

std::string readFile(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void printNewLines(const std::string& before, const std::string& after)
{
    std::set<std::string> known;
    std::istringstream old(before);
    for (std::string line; std::getline(old, line);)
        known.insert(line);
    std::istringstream edited(after);
    for (std::string line; std::getline(edited, line);)
        if (known.count(line) == 0)
            std::cout << line << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 1;
    try {
        const std::string before = readFile(argv[1]);
        zu::authoring::ManifestEditor editor(zu::authoring::SourceDocument::parse(before));

        zu::PackageInfo package = editor.package();
        package.setVersion("2.2.0");
        package.setName("La hora del cuento", "es");
        package.behaviors().front().addTag("story time", "en");
        editor.update(package);

        // zu::replaceManifest(argv[1], editor.document().text()) would save it.
        printNewLines(before, editor.document().text());
        return 0;
    } catch (const zu::authoring::ManifestEditError& error) {
        std::cerr << error.place().line << ':' << error.place().column << ": " << error.what() << '\n';
        return 1;
    }
}
