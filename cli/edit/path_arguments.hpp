#pragma once

#include <zupackage/authoring/path_edit.hpp>

#include <optional>
#include <string>
#include <vector>

namespace zu::cli {

/// The path that an argument gives.
/// @return nothing for what is none, which standard error tells then.
std::optional<authoring::ManifestPath> pathIn(const std::string& argument);

/// The parts of arguments of the form PATH=TEXT. The first "=" that stands outside of brackets ends the path, so that
/// neither predicates nor texts need any care.
/// @return nothing when one of them has another form, which standard error tells then.
std::optional<std::vector<authoring::SetText>> assignmentsIn(const std::vector<std::string>& arguments);

} // namespace zu::cli
