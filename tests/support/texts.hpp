#pragma once

#include <string>

namespace zu::test {

/// The text with the first `old`, which must be in it, replaced by `now`.
inline std::string replaced(std::string text, const std::string& old, const std::string& now)
{
    return text.replace(text.find(old), old.size(), now);
}

} // namespace zu::test
