#pragma once

#include <zupackage/export.hpp>

#include <string>

namespace zu {

/// Where a package's web content lies.
struct ZUPACKAGE_EXPORT WebInfo
{
    std::string path; ///< inside the package
};

} // namespace zu
