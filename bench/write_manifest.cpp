// Writes the manifest of a package with as many behaviors as it is told to standard output.
#include "sample_packages.hpp"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv)
{
    std::cout << bench::package(argc == 2 ? std::atoi(argv[1]) : 0).saveToManifestContent();
    return 0;
}
