#pragma once

#include <zupackage/package_info.hpp>

#include <sstream>
#include <string>

namespace zu::test {

/// What the reader makes of a manifest; equal for those that read alike, and "unreadable" where it makes nothing. The
/// writer leaves out empty entries, and the dump services and executable files: both are in it.
inline std::string readAs(const std::string& bytes)
{
    PackageInfo package;
    if (!readManifest(bytes, package))
        return "unreadable";
    std::ostringstream text;
    text << package << package.saveToManifestContent();
    return text.str();
}

} // namespace zu::test
