#pragma once

#include <zupackage/package_info.hpp>

#include <string>
#include <vector>

namespace zu::cli {

/// What a new package is to be.
struct SkeletonWish
{
    std::string kind; ///< one of skeletonKinds()
    std::string uuid;
    std::string name;        ///< in every language
    std::string description; ///< in every language
    std::string slug;        ///< the name as paths have it
    std::vector<std::string> languages;
};

/// A file of a new package beside its manifest.
struct SkeletonFile
{
    std::string path; ///< relative to the package
    std::string content;
    bool isExecutable;
};

/// A new package.
struct Skeleton
{
    PackageInfo package;
    std::vector<SkeletonFile> files;
};

/// What packages can be made for.
const std::vector<std::string>& skeletonKinds();

/// Fills the skeleton of such a package.
void makeSkeleton(const SkeletonWish& wish, Skeleton& skeleton);

/// A name as paths have it: "Tell a Story!" is "tell-a-story".
std::string slugOf(const std::string& name);

} // namespace zu::cli
