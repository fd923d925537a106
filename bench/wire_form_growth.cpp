// One encoding or decoding of a package, for `growth`, which counts the instructions of measuredCode().
#include "sample_packages.hpp"

#include <cstdlib>
#include <functional>
#include <iostream>

extern "C" [[gnu::noinline]] void measuredCode(const std::function<void()>& code) { code(); }

int main(int argc, char** argv)
{
    const std::string operation = argc == 3 ? argv[1] : "";
    zu::PackageInfo package = bench::package(argc == 3 ? std::atoi(argv[2]) : 0);
    const VX::VXValue value = bench::encoded(package);
    if (operation == "toVXValue") {
        measuredCode([&package] { bench::encoded(package); });
    } else if (operation == "decode") {
        measuredCode([&value] { zu::PackageInfo decoded(value); });
    } else {
        std::cerr << "usage: " << argv[0] << " toVXValue|decode BEHAVIORS\n";
        return 2;
    }
    return 0;
}
