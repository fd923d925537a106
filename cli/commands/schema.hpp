#pragma once

#include "command.hpp"

namespace zu::cli {

/// Writes the schemas of manifests.
extern const Command k_schema;

} // namespace zu::cli
