#include "edit/path_arguments.hpp"

#include "output.hpp"

namespace zu::cli {

using authoring::ManifestPath;
using authoring::SetText;

namespace {

/// Where the path in PATH=TEXT ends; npos when nothing ends it.
std::size_t pathEnd(const std::string& argument)
{
    char quote = '\0';
    bool isInBrackets = false;
    for (std::size_t at = 0; at < argument.size(); ++at) {
        const char c = argument[at];
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (isInBrackets && (c == '\'' || c == '"'))
            quote = c;
        else if (c == '[' || c == ']')
            isInBrackets = c == '[';
        else if (c == '=' && !isInBrackets)
            return at;
    }
    return std::string::npos;
}

} // namespace

std::optional<ManifestPath> pathIn(const std::string& argument)
{
    try {
        return ManifestPath(argument);
    } catch (const authoring::PathSyntaxError& error) {
        complain("\"" + argument + "\" is no path: column " + std::to_string(error.column()) + ": " + error.what());
        return std::nullopt;
    }
}

std::optional<std::vector<SetText>> assignmentsIn(const std::vector<std::string>& arguments)
{
    std::vector<SetText> assignments;
    for (const std::string& argument : arguments) {
        const std::size_t end = pathEnd(argument);
        if (end == std::string::npos) {
            complain("\"" + argument + "\" is not of the form PATH=TEXT");
            return std::nullopt;
        }
        const std::optional<ManifestPath> path = pathIn(argument.substr(0, end));
        if (!path)
            return std::nullopt;
        assignments.push_back({*path, argument.substr(end + 1)});
    }
    return assignments;
}

} // namespace zu::cli
