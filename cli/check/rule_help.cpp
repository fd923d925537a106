#include "check/rule_help.hpp"

#include "check/severity_names.hpp"

#include <algorithm>

namespace zu::cli {

namespace {

using authoring::Rule;

std::string padded(std::string_view text, std::size_t width)
{
    std::string result(text);
    result.append(width > result.size() ? width - result.size() : 0, ' ');
    return result;
}

/// The text in lines of at most 80 columns, broken at spaces.
std::string inLines(std::string_view text)
{
    constexpr std::size_t k_width = 80;
    std::string result;
    while (text.size() > k_width) {
        const std::size_t space = text.rfind(' ', k_width);
        const std::size_t end = space == std::string_view::npos ? k_width : space;
        result.append(text.substr(0, end)).append("\n");
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result.append(text).append("\n");
}

std::string example(std::string_view title, std::string_view text)
{
    std::string result(title);
    result += "\n";
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        result.append("    ").append(text.substr(begin, end - begin)).append("\n");
        begin = end + 1;
    }
    return result;
}

} // namespace

std::string ruleList()
{
    constexpr std::size_t k_severityWidth = 10;
    std::size_t idWidth = 0;
    for (const Rule& rule : authoring::rules())
        idWidth = std::max(idWidth, rule.id.size() + 2);
    std::string list;
    for (const Rule& rule : authoring::rules())
        list += padded(rule.id, idWidth) + padded(nameOf(rule.severity), k_severityWidth) + std::string(rule.summary) +
                "\n";
    return list;
}

std::string explanationOf(const Rule& rule)
{
    std::string text = std::string(rule.id) + " (" + std::string(nameOf(rule.severity)) + ")\n" +
                       std::string(rule.summary) + ".\n\n" + inLines(rule.explanation);
    if (!rule.files.empty())
        text += "\nIn a package with " + std::string(rule.files) + ":\n";
    if (!rule.badExample.empty())
        text += "\n" + example("Wrong:", rule.badExample);
    return text + "\n" + example("Right:", rule.goodExample);
}

} // namespace zu::cli
