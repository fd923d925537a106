#include "manual/roff.hpp"

namespace zu::cli {

std::string roff(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        const bool startsLine = escaped.empty() || escaped.back() == '\n';
        if (startsLine && (c == '.' || c == '\''))
            escaped += "\\&";
        if (c == '\\')
            escaped += "\\e";
        else if (c == '-')
            escaped += "\\-";
        else
            escaped += c;
    }
    return escaped;
}

std::string roffTitle(const std::string& name, int section, const std::string& version)
{
    std::string title;
    for (const char c : name)
        title += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return ".TH " + roff(title) + " " + std::to_string(section) + " \"\" \"zupackage " + version +
           "\" \"Packages of the robot middleware\"\n";
}

} // namespace zu::cli
