#pragma once

#include <zupackage/package_info.hpp>

#include <stdexcept>
#include <string>
#include <utility>

namespace zu::test {

/// What of a package manifests carry: the manifest that stays when it is read and written again and again. Empty texts
/// go first, then the lists that hold no others. Throws std::runtime_error when one of the manifests cannot be read.
inline std::string carried(std::string manifest)
{
    for (;;) {
        PackageInfo read;
        if (!readManifest(manifest, read))
            throw std::runtime_error("what was written cannot be read: " + manifest);
        std::string next = read.saveToManifestContent();
        if (next == manifest)
            return next;
        manifest = std::move(next);
    }
}

/// Whether manifests carry the same of two packages.
inline bool areCarriedAlike(PackageInfo left, PackageInfo right)
{
    std::string leftManifest = left.saveToManifestContent();
    std::string rightManifest = right.saveToManifestContent();
    return leftManifest == rightManifest || carried(std::move(leftManifest)) == carried(std::move(rightManifest));
}

} // namespace zu::test
