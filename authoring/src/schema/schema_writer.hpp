#pragma once

#include "characters.hpp"
#include "edits.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// Writes elements of XML, two blanks deeper for each that is open.
class SchemaWriter
{
public:
    explicit SchemaWriter(std::string head) : m_text(std::move(head)) {}

    /// A start tag, or an empty one, without its brackets.
    void open(const std::string& tag)
    {
        line("<" + tag + ">");
        m_open.push_back(tag.substr(0, tag.find(' ')));
    }
    void close()
    {
        const std::string name = m_open.back();
        m_open.pop_back();
        line("</" + name + ">");
    }
    void empty(const std::string& tag) { line("<" + tag + "/>"); }
    void line(const std::string& text) { m_text.append(2 * (m_open.size() + 1), ' ').append(text) += '\n'; }

    std::string take() { return m_text + "</xs:schema>\n"; }

private:
    std::string m_text;
    std::vector<std::string> m_open;
};

inline std::string withAttribute(std::string_view name, std::string_view value)
{
    std::string escaped = escapedValue(value, '"');
    // As a character it would look like a fault of the schema itself.
    for (std::size_t at = 0; (at = escaped.find(k_replacementCharacter, at)) != std::string::npos;)
        escaped.replace(at, k_replacementCharacter.size(), "&#xFFFD;");
    return " " + std::string(name) + "=\"" + escaped + "\"";
}

} // namespace zupackage::authoring
