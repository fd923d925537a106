#pragma once

#include "command.hpp"

namespace zu::cli {

extern const Command k_format;

} // namespace zu::cli
