#pragma once

#include "check/checked_manifest.hpp"

#include <string>

namespace zu::cli {

/// "fixed", or "would fix" where the file is left as it is.
const char* verbOf(const CheckedManifest& manifest);

/// "fixed: write "true" [invalid-flag]"
std::string wordsOf(const CheckedManifest& manifest, const ManifestFix& fix);

/// That findings were left out, as a clause; empty when none were.
std::string omissionOf(const CheckedManifest& manifest);

} // namespace zu::cli
