// Reads a manifest in a process of its own.
#include <zupackage/package_info.hpp>

int main(int argc, char** argv) { return argc == 2 && zu::PackageInfo().loadFromManifestFile(argv[1]) ? 0 : 1; }
