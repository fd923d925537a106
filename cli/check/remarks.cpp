#include "check/remarks.hpp"

namespace zu::cli {

const char* verbOf(const CheckedManifest& manifest) { return manifest.isFixed ? "fixed" : "would fix"; }

std::string wordsOf(const CheckedManifest& manifest, const ManifestFix& fix)
{
    return std::string(verbOf(manifest)) + ": " + fix.title + " [" + fix.rule + "]";
}

std::string omissionOf(const CheckedManifest& manifest)
{
    if (manifest.report.omitted == 0)
        return {};
    return "at least " + std::to_string(manifest.report.omitted) +
           " more findings were left out; of each rule the first " +
           std::to_string(authoring::CheckOptions().limitPerRule) + " are told";
}

} // namespace zu::cli
