#include "wrapped_text.hpp"

#include <sstream>

namespace zu::cli {

std::string wrapped(const std::string& text, std::size_t width)
{
    std::string lines;
    std::string line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (!line.empty() && line.size() + 1 + word.size() > width) {
            lines += line + '\n';
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return lines + line + '\n';
}

} // namespace zu::cli
