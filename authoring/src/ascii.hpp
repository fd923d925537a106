#pragma once

/// Letters and digits of ASCII. Those of <cctype> ask the process for its locale.
namespace zupackage::ascii {

constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isLetterOrDigit(char c) { return isLetter(c) || isDigit(c); }
constexpr char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr char raised(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

} // namespace zupackage::ascii
