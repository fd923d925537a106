#pragma once

#include "command.hpp"

namespace zu::cli {

/// Turns a manifest into JSON, and back.
extern const Command k_convert;

} // namespace zu::cli
