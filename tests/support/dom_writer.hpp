#pragma once

#include <zupackage/package_info.hpp>

class QDomDocument;

/// The writer as it would be on Qt's document: what the library's own writer is compared with.
namespace zu::test {

/// The document of a package.
QDomDocument domOf(const PackageInfo& package);

/// It as text, indented by one blank a level.
std::string textByQt(const PackageInfo& package);

/// It as the content of a file, indented by two blanks a level.
std::string fileContentByQt(const PackageInfo& package);

} // namespace zu::test
