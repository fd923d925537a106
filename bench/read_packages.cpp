// Reads the manifest of each package in a folder twice, as the package and as the document that it stands in, which is
// what pages about packages are made from.
#include <zupackage/authoring/source_document.hpp>
#include <zupackage/package_info.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::size_t behaviors = 0;
    std::size_t nodes = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        std::ifstream file(entry.path() / "manifest.xml", std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        zu::PackageInfo package;
        if (!zu::readManifest(bytes, package))
            return 1;
        behaviors += package.behaviors().size();
        nodes += zu::authoring::SourceDocument::parse(bytes).nodeCount();
    }
    std::printf("%zu behaviors, %zu nodes\n", behaviors, nodes);
}
