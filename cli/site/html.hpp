#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zu::cli {

/// A text as it stands in HTML, between tags and between quotation marks: nothing in it can begin or end anything. What
/// HTML cannot carry becomes U+FFFD.
std::string escaped(std::string_view text);

/// Markup of ours, as it stands in the source: only `"<p>"_html` makes it.
class Markup
{
public:
    constexpr std::string_view text() const { return m_text; }

private:
    friend constexpr Markup operator""_html(const char* text, std::size_t size);
    explicit constexpr Markup(std::string_view text) : m_text(text) {}

    std::string_view m_text;
};

constexpr Markup operator""_html(const char* text, std::size_t size) { return Markup(std::string_view(text, size)); }

/// HTML while it is written. Any text is escaped: only Markup and what is HTML already go in as they are.
class Html
{
public:
    Html& operator<<(Markup markup)
    {
        m_text += markup.text();
        return *this;
    }
    Html& operator<<(std::string_view text);
    Html& operator<<(std::size_t number)
    {
        m_text += std::to_string(number);
        return *this;
    }
    Html& operator<<(const Html& html)
    {
        m_text += html.m_text;
        return *this;
    }

    /// A file of ours that stands in a page as it is: its style sheet, its script.
    Html& embed(std::string_view file)
    {
        m_text += file;
        return *this;
    }

    bool isEmpty() const { return m_text.empty(); }
    const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

/// The attributes ` lang="..." dir="auto"` of an element with a text in the language of a package's code. The language
/// is left out when readers of pages would not know it.
Html languageAttributes(const std::string& code);

} // namespace zu::cli
