#include "support/comma_locale.hpp"

#include "support/program.hpp"

#include <clocale>
#include <locale>
#include <stdexcept>
#include <stdlib.h>

// Of the leak sanitizer, where there is one.
extern "C" {
void __lsan_disable() __attribute__((weak));
void __lsan_enable() __attribute__((weak));
}

namespace zu::test {

CommaLocale::CommaLocale()
{
    // Made here, because a small system has the C locale alone.
    runProgram("localedef", {"-i", "de_DE", "-f", "UTF-8", (m_locales.path() / "de_DE.UTF-8").string()});
    setenv("LOCPATH", m_locales.path().c_str(), 1);
    // The C library does not give back what it splits that path into.
    if (__lsan_disable != nullptr)
        __lsan_disable();
    const bool isSet = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    if (isSet)
        std::locale::global(std::locale("de_DE.UTF-8"));
    if (__lsan_enable != nullptr)
        __lsan_enable();
    if (!isSet)
        throw std::runtime_error("no locale with a decimal comma");
}

CommaLocale::~CommaLocale()
{
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
}

} // namespace zu::test
