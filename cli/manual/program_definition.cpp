#include "manual/program_definition.hpp"

#include <algorithm>

namespace zu::cli {

bool OptionDefinition::takesFiles() const
{
    constexpr const char* k_words[] = {"FILE", "FOLDER", "DIR"};
    return std::any_of(std::begin(k_words), std::end(k_words),
                       [this](const char* word) { return value.find(word) != std::string::npos; });
}

} // namespace zu::cli
