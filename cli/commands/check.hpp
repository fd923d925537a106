#pragma once

#include "command.hpp"

namespace zu::cli {

extern const Command k_check;

} // namespace zu::cli
