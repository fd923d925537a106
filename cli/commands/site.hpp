#pragma once

#include "command.hpp"

namespace zu::cli {

/// Makes pages of packages, as a store or a team would put them up.
extern const Command k_site;

} // namespace zu::cli
