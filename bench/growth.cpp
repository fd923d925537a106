// One operation on a package, for `growth`, which counts the instructions of measuredCode().
#include "sample_packages.hpp"

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>

extern "C" [[gnu::noinline]] void measuredCode(const std::function<void()>& code) { code(); }

int main(int argc, char** argv)
{
    zu::PackageInfo package = bench::package(argc == 3 ? std::atoi(argv[2]) : 0);
    const VX::VXValue value = bench::encoded(package);
    const std::map<std::string, std::function<void()>> operations = {
        {"toVXValue", [&package] { bench::encoded(package); }},
        {"decode", [&value] { zu::PackageInfo decoded(value); }},
        {"saveToManifestContent", [&package] { package.saveToManifestContent(); }},
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
