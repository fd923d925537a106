// One operation on a package, for `growth`, which counts the instructions of measuredCode().
#include "printed_texts.hpp"
#include "sample_packages.hpp"

#include <QtXml/QDomDocument>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

extern "C" [[gnu::noinline]] void measuredCode(const std::function<void()>& code) { code(); }

int main(int argc, char** argv)
{
    zu::PackageInfo package = bench::package(argc == 3 ? std::atoi(argv[2]) : 0);
    const VX::VXValue value = bench::encoded(package);
    const bench::PrintedTexts texts(package);
    const std::string content = package.saveToManifestContent();
    QDomDocument document;
    document.setContent(QByteArray::fromStdString(content));
    const std::map<std::string, std::function<void()>> operations = {
        {"toVXValue", [&package] { bench::encoded(package); }},
        {"decode", [&value] { zu::PackageInfo decoded(value); }},
        {"loadFromManifestContent", [&content] { zu::PackageInfo().loadFromManifestContent(content); }},
        {"saveToManifestContent", [&package] { package.saveToManifestContent(); }},
        {"toString", [&document] { document.toString(1); }},
        {"print", [&package] { std::ostringstream() << package; }},
        {"appendTexts", [&texts] { texts.appended(); }},
    };
    const auto operation = operations.find(argc == 3 ? argv[1] : "");
    if (operation == operations.end()) {
        std::cerr << "usage: " << argv[0] << " OPERATION BEHAVIORS\noperations:";
        for (const auto& [name, code] : operations)
            std::cerr << ' ' << name;
        std::cerr << '\n';
        return 2;
    }
    measuredCode(operation->second);
    return 0;
}
