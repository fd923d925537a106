#include "site/frame.hpp"

#include "site/resources.hpp"

#include <QtCore/QCryptographicHash>

namespace zu::cli {

namespace {

/// What stands in the page, as a policy names it.
std::string sourceByHash(std::string_view text)
{
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return "'sha256-" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64().toStdString() + "'";
}

std::string policyOf(const PageFrame& frame)
{
    static const std::string k_styleHash = sourceByHash(k_style);
    static const std::string k_scriptHash = sourceByHash(k_script);
    // Browsers do not agree on whether a page that is opened from a disk is of one origin with the file beside it.
    const std::string style = frame.style == PageFrame::Style::Inline ? k_styleHash : "'self' file:";
    return "default-src 'none'; script-src " + (frame.hasScript ? k_scriptHash : "'none'") + "; style-src " + style +
           "; img-src data:; base-uri 'none'; form-action 'none'";
}

Html styleOf(const PageFrame& frame)
{
    Html html;
    if (frame.style == PageFrame::Style::Inline)
        return (html << "<style>"_html).embed(k_style) << "</style>\n"_html;
    return html << R"(<link rel="stylesheet" href=")"_html << frame.rootPath << "style.css\">\n"_html;
}

constexpr Markup k_icon =
    R"(<link rel="icon" href="data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'%3E)"
    R"(%3Crect width='16' height='16' rx='4' fill='%232f5bd0'/%3E%3Cpath d='M4 5h8v1.6L7 11h5' stroke='white' )"
    R"(stroke-width='1.8' fill='none'/%3E%3C/svg%3E">)"
    "\n"_html;

} // namespace

std::string documentOf(const PageFrame& frame, const Html& header, const Html& main)
{
    Html html;
    html << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta http-equiv=\"Content-Security-Policy\" content=\""_html
         << policyOf(frame)
         << "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<meta name=\"color-scheme\" content=\"light dark\">\n<meta name=\"referrer\" content=\"no-referrer\">\n"
            "<meta name=\"generator\" content=\"zupackage\">\n<title>"_html
         << frame.title << "</title>\n"_html << k_icon << styleOf(frame)
         << "</head>\n<body>\n<a class=\"skip\" href=\"#content\">Skip to the content</a>\n"_html << header
         << "<main id=\"content\" tabindex=\"-1\">\n"_html << main
         << "</main>\n<footer class=\"page-end\"><p>Made with zupackage from the manifests of these packages."
            "</p></footer>\n"_html;
    if (frame.hasScript)
        (html << "<script>"_html).embed(k_script) << "</script>\n"_html;
    html << "</body>\n</html>\n"_html;
    return html.text();
}

} // namespace zu::cli
