#include "site/page_names.hpp"

namespace zu::cli {

namespace {

/// Small letters, digits, and single dots and dashes within.
std::string safeName(const std::string& identifier)
{
    constexpr std::size_t k_longest = 80;
    std::string name;
    for (const char c : identifier) {
        if (name.size() == k_longest)
            break;
        const bool isSmall = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        const bool isCapital = c >= 'A' && c <= 'Z';
        if (isSmall || isCapital)
            name += isSmall ? c : static_cast<char>(c - 'A' + 'a');
        else if (!name.empty() && name.back() != '-' && name.back() != '.')
            name += c == '.' ? '.' : '-';
    }
    while (!name.empty() && (name.back() == '-' || name.back() == '.'))
        name.pop_back();
    return name.empty() ? "package" : name;
}

} // namespace

std::string PageNames::next(const std::string& identifier)
{
    const std::string name = safeName(identifier);
    std::size_t& number = m_lastNumbers[name];
    for (;;) {
        std::string page = ++number == 1 ? name + ".html" : name + "-" + std::to_string(number) + ".html";
        if (m_taken.insert(page).second)
            return page;
    }
}

} // namespace zu::cli
