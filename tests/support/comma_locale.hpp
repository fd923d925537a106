#pragma once

#include "support/files.hpp"

namespace zu::test {

/// While it lives, the process has a locale that writes a comma where others have a point. Throws std::runtime_error
/// when there is none to be had.
class CommaLocale
{
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    TemporaryFolder m_locales;
};

} // namespace zu::test
