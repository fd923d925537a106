#pragma once

#include <zupackage/authoring/vocabulary.hpp>
#include <zupackage/package_info.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Packages as trees of what the vocabulary knows, so that what compares and merges them need not know their fields.
namespace zupackage::authoring {

using zu::authoring::ElementEntry;
using zu::authoring::k_ownText;

/// An element of a package as its writer writes it.
struct PackageElement
{
    explicit PackageElement(const ElementEntry& elementEntry)
        : entry(&elementEntry), attributes(elementEntry.attributes.size())
    {
    }

    const ElementEntry* entry;
    std::vector<std::string> attributes; ///< in the order of the entry's; empty where there is none
    std::string text;
    std::vector<PackageElement> children; ///< without parts that hold nothing
};

bool operator==(const PackageElement& left, const PackageElement& right);
inline bool operator!=(const PackageElement& left, const PackageElement& right) { return !(left == right); }

/// The root element of the package's manifest.
PackageElement elementOf(const zu::PackageInfo& package);

/// The package that the reader makes of the element. Throws std::runtime_error when its manifest is larger than those
/// that are read.
zu::PackageInfo packageOf(const PackageElement& root);

/// Whether the element stands for a part of its parent, of which there is one that may be empty (a list, a text), and
/// not for an entry of a list or for a flag.
bool isPart(const ElementEntry& entry);

/// Whether a part holds nothing, which is the same as if it were not there.
bool isEmptyPart(const PackageElement& element);

/// The value by which the element is told from its siblings; empty where the vocabulary has no identity for it.
const std::string& identityOf(const PackageElement& element);

/// The element in XML, children in lines of their own, without a line end after the last.
std::string markupOf(const PackageElement& element);

/// Whether the element says more beyond its path than a text.
bool isComposite(const PackageElement& element);

/// What the element says beyond its path: its text, or its markup when that is not all.
std::string describe(const PackageElement& element);

} // namespace zupackage::authoring
