#pragma once

#include "schema/schema_writer.hpp"

#include <zupackage/authoring/vocabulary.hpp>

/// The types of texts and of attributes' values, by their names in the XML Schema.
namespace zupackage::authoring {

/// What an element of that kind holds.
const char* textType(zu::authoring::ValueKind kind);

/// What an attribute holds; an empty value where that is as good as none.
std::string attributeType(const zu::authoring::AttributeEntry& attribute);

/// Writes all of them.
void writeTypes(SchemaWriter& out);

} // namespace zupackage::authoring
