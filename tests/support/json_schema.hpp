#pragma once

#include <string>

namespace zu::test {

/// What a validator says of a JSON document against a schema of the source tree; empty when it is valid.
std::string invalidityOfJson(const std::string& document, const std::string& schema);

} // namespace zu::test
