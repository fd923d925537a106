#pragma once

#include <zupackage/authoring/vocabulary.hpp>

/// Entries of the vocabulary that are not like the others.
namespace zupackage::authoring {

/// Whether it is what a manifest may hold and a zu::PackageInfo does not.
inline bool isWebContent(const zu::authoring::ElementEntry& entry)
{
    return entry.path == "/package/contents/webContent";
}

/// Whether white space alone is a value like any other: a variable may well be a space.
inline bool mayBeBlank(const zu::authoring::AttributeEntry& attribute)
{
    return attribute.kind == zu::authoring::ValueKind::Text && attribute.name == "value";
}

} // namespace zupackage::authoring
