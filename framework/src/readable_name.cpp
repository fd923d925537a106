#include "readable_name.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace zu::detail {

namespace {

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

std::string_view trimmed(std::string_view text)
{
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last == std::string_view::npos ? 0 : last + 1 - first);
}

void replaceAll(std::string& text, std::string_view what, std::string_view by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

/// "char const* const" to "const char* const". What stands in brackets has been seen to already.
std::string withConstInFront(const std::string& type)
{
    constexpr std::string_view k_const = " const";
    int depth = 0;
    for (std::size_t at = 0; at != type.size(); ++at) {
        const char c = type[at];
        depth += c == '<' || c == '(' ? 1 : c == '>' || c == ')' ? -1 : 0;
        if (depth == 0 && (c == '*' || c == '&'))
            break;
        const bool isConst = depth == 0 && type.compare(at, k_const.size(), k_const) == 0;
        const std::size_t end = at + k_const.size();
        if (isConst && (end == type.size() || std::string_view("*& ").find(type[end]) != std::string_view::npos))
            return "const " + type.substr(0, at) + type.substr(end);
    }
    return type;
}

/// "3ul" to "3".
std::string withoutSuffix(const std::string& argument)
{
    const auto digits = argument.find_first_not_of("0123456789", argument.compare(0, 1, "-") == 0 ? 1 : 0);
    const bool isNumber = digits != 0 && digits != std::string::npos &&
                          argument.find_first_not_of("ul", digits) == std::string::npos && argument[digits - 1] != '-';
    return isNumber ? argument.substr(0, digits) : argument;
}

constexpr std::array k_withDefaults = {
    "std::vector",        "std::list",         "std::deque",      "std::forward_list",       "std::set",
    "std::multiset",      "std::map",          "std::multimap",   "std::unordered_set",      "std::unordered_multiset",
    "std::unordered_map", "std::basic_string", "std::unique_ptr", "std::unordered_multimap", "std::basic_string_view"};

/// Whether an argument of a template of the standard library is what it would be if it were left out.
bool isDefault(const std::string& argument, const std::string& first)
{
    if (argument.compare(0, 15, "std::allocator<") == 0) // of anything else the template would not be
        return true;
    for (const char* name : {"std::less", "std::hash", "std::equal_to", "std::default_delete", "std::char_traits"})
        if (argument == name + ('<' + first + '>'))
            return true;
    return false;
}

void dropDefaults(std::string_view templateName, std::vector<std::string>& arguments)
{
    const auto before = templateName.find_last_of(" ,(<");
    const std::string_view name = templateName.substr(before == std::string_view::npos ? 0 : before + 1);
    if (std::find(k_withDefaults.begin(), k_withDefaults.end(), name) == k_withDefaults.end())
        return;
    while (arguments.size() > 1 && isDefault(arguments.back(), arguments.front()))
        arguments.pop_back();
}

/// Reads a demangled name from its begin to its end, composing the readable one.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    std::optional<std::string> read()
    {
        const std::string name = readType();
        return m_isUnderstood && m_at == m_text.size() ? std::optional(name) : std::nullopt;
    }

private:
    /// Up to a comma or a closing bracket, or the end.
    std::string readType()
    {
        std::string type;
        while (m_at != m_text.size() && std::string_view(",>)").find(m_text[m_at]) == std::string_view::npos) {
            const char c = m_text[m_at++];
            if (c == '<')
                type = withArguments(type, readList('>'));
            else if (c == '(')
                type += '(' + joined(readList(')')) + ')';
            else
                type += c;
        }
        type = trimmed(type);
        replaceAll(type, "std::__cxx11::", "std::");
        return withoutSuffix(withConstInFront(type));
    }

    std::vector<std::string> readList(char end)
    {
        std::vector<std::string> types;
        do {
            types.push_back(readType());
            ++m_at;
        } while (m_at <= m_text.size() && m_text[m_at - 1] == ',');
        if (m_at > m_text.size() || m_text[m_at - 1] != end) {
            m_isUnderstood = false;
            m_at = m_text.size();
        }
        return types;
    }

    static std::string joined(const std::vector<std::string>& types)
    {
        std::string text;
        for (const std::string& type : types)
            text += (text.empty() ? "" : ", ") + type;
        return text;
    }

    static std::string withArguments(std::string templateName, std::vector<std::string> arguments)
    {
        replaceAll(templateName, "std::__cxx11::", "std::");
        dropDefaults(templateName, arguments);
        const std::string name = templateName + '<' + joined(arguments) + '>';
        for (const char* text : {"std::basic_string<char>", "std::basic_string_view<char>"})
            if (endsWith(name, text))
                return name.substr(0, name.size() - std::string_view(text).size()) +
                       (endsWith(templateName, "_view") ? "std::string_view" : "std::string");
        return name;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_isUnderstood = true;
};

} // namespace

std::string readableName(std::string_view demangled)
{
    return Reader(demangled).read().value_or(std::string(demangled));
}

} // namespace zu::detail
