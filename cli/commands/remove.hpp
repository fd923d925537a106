#pragma once

#include "command.hpp"

namespace zu::cli {

extern const Command k_remove;

} // namespace zu::cli
