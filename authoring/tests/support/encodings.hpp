#pragma once

#include <string>

namespace zu::test {

/// The text, which is UTF-8, in another encoding, as a codec of Qt writes it, without a byte order mark.
std::string encoded(const std::string& utf8, const char* encoding);

} // namespace zu::test
