#pragma once

#include "command.hpp"

namespace zu::cli {

extern const Command k_merge;

} // namespace zu::cli
