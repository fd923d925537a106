#pragma once

#include "command.hpp"

namespace zu::cli {

extern const Command k_set;

} // namespace zu::cli
