#pragma once

#include "sample_packages.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

namespace bench {

struct Manifest
{
    std::string name; ///< how many behaviors, or the name of an example
    std::string content;
};

/// Manifests of 1, 10, 100 and 1,000 behaviors, and those of the examples.
inline std::vector<Manifest> sampleManifests()
{
    std::vector<Manifest> manifests;
    for (const int behaviors : {1, 10, 100, 1000})
        manifests.push_back({std::to_string(behaviors), package(behaviors).saveToManifestContent()});
    for (const auto& folder : std::filesystem::directory_iterator(ZUPACKAGE_EXAMPLES)) {
        std::ifstream file(folder.path() / "manifest.xml", std::ios::binary);
        manifests.push_back({folder.path().filename(), {std::istreambuf_iterator<char>(file), {}}});
    }
    return manifests;
}

} // namespace bench
