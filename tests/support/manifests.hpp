#pragma once

#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace zu::test {

/// A manifest document whose root holds `children`.
inline std::string manifest(const std::string& children, const std::string& rootAttributes = {})
{
    return "<package " + rootAttributes + ">" + children + "</package>";
}

/// The package that a manifest document describes; the test fails when it cannot be read.
inline PackageInfo packageFrom(const std::string& document)
{
    PackageInfo package;
    EXPECT_TRUE(package.loadFromManifestContent(document)) << document;
    return package;
}

/// The manifest that the package writes.
inline std::string written(PackageInfo package) { return package.saveToManifestContent(); }

/// The package that one element under "contents" makes.
inline PackageInfo packageWithContent(const std::string& element)
{
    return packageFrom(manifest("<contents>" + element + "</contents>"));
}

/// Reads a "behaviorContent" element with these children.
inline BehaviorInfo behaviorFrom(const std::string& children)
{
    return packageWithContent("<behaviorContent path='b'>" + children + "</behaviorContent>").behaviors().front();
}

/// What operator<< prints.
template <class Record>
std::string dumpOf(const Record& record)
{
    std::ostringstream out;
    out << record;
    return out.str();
}

} // namespace zu::test
