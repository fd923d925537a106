#include "site/html.hpp"

#include <QtCore/QLocale>

#include <algorithm>
#include <map>

namespace zu::cli {

namespace {

/// What stands in HTML for a character that cannot; empty for the others.
std::string_view replacementOf(char c)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    case '\t':
    case '\n':
        return {};
    default:
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? "\xEF\xBF\xBD" : std::string_view();
    }
}

void appendEscaped(std::string_view text, std::string& html)
{
    std::size_t copied = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view replacement = replacementOf(text[i]);
        if (replacement.empty())
            continue;
        html.append(text, copied, i - copied).append(replacement);
        copied = i + 1;
    }
    html.append(text, copied);
}

bool isPlainTag(std::string_view code)
{
    return !code.empty() && code.size() <= 35 && std::all_of(code.begin(), code.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
    });
}

/// Looked up once: a page names few languages, and often.
bool isKnownLanguage(const std::string& code)
{
    constexpr std::size_t k_most = 1'000; // beyond that somebody makes codes up
    thread_local std::map<std::string, bool> known;
    const auto found = known.find(code);
    if (found != known.end())
        return found->second;
    const bool isKnown = isPlainTag(code) && QLocale(QString::fromStdString(code)).language() != QLocale::C;
    if (known.size() < k_most)
        known.emplace(code, isKnown);
    return isKnown;
}

} // namespace

std::string escaped(std::string_view text)
{
    std::string html;
    html.reserve(text.size());
    appendEscaped(text, html);
    return html;
}

Html& Html::operator<<(std::string_view text)
{
    appendEscaped(text, m_text);
    return *this;
}

Html languageAttributes(const std::string& code)
{
    Html html;
    if (isKnownLanguage(code)) {
        std::string tag = code;
        std::replace(tag.begin(), tag.end(), '_', '-');
        html << " lang=\""_html << tag << "\""_html;
    }
    return html << " dir=\"auto\""_html;
}

} // namespace zu::cli
