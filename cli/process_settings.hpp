#pragma once

namespace zu::cli {

/// What the library leaves to the process, so that one input gives one output everywhere.
void settleProcess();

} // namespace zu::cli
