#pragma once

#include "command.hpp"

namespace zu::cli {

/// Shows which texts packages have in which languages, and fails where some are missing that a release needs.
extern const Command k_languages;

} // namespace zu::cli
