#include "manual/program_definition.hpp"

#include <algorithm>

namespace zu::cli {

bool OptionDefinition::takesFiles() const
{
    constexpr const char* k_placeholders[] = {"FILE", "FOLDER", "DIR"};
    return std::any_of(std::begin(k_placeholders), std::end(k_placeholders),
                       [this](const char* placeholder) { return value.find(placeholder) != std::string::npos; });
}

} // namespace zu::cli
