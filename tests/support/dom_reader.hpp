#pragma once

#include <string>

namespace zu::test {

/// Reads the bytes as a text and as a file, into both models, and once more from the trees that
/// QDomDocument::setContent makes of them.
/// @return where records, log records, places or words of failures differ; empty when they do not.
std::string differenceFromDom(const std::string& bytes);

} // namespace zu::test
