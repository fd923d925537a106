#include "support/comma_locale.hpp"

#include "support/program.hpp"

#include <clocale>
#include <locale>
#include <stdexcept>
#include <stdlib.h>

namespace zu::test {

CommaLocale::CommaLocale()
{
    // Made here, because a small system has the C locale alone.
    runProgram("localedef", {"-i", "de_DE", "-f", "UTF-8", (m_locales.path() / "de_DE.UTF-8").string()});
    setenv("LOCPATH", m_locales.path().c_str(), 1);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        throw std::runtime_error("no locale with a decimal comma");
    std::locale::global(std::locale("de_DE.UTF-8"));
}

CommaLocale::~CommaLocale()
{
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
}

} // namespace zu::test
