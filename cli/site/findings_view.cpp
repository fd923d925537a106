#include "check/severity_names.hpp"
#include "site/package_page.hpp"

#include <algorithm>

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::Severity;
using authoring::SourceDocument;

constexpr std::size_t k_mostFindings = 200;

std::string counted(std::size_t count, const std::string& singular)
{
    return std::to_string(count) + " " + singular + (count == 1 ? "" : "s");
}

std::size_t countOf(const CheckedManifest& checked, Severity severity)
{
    const auto& findings = checked.report.findings;
    return static_cast<std::size_t>(std::count_if(
        findings.begin(), findings.end(), [severity](const Diagnostic& one) { return one.severity == severity; }));
}

bool isInnerByte(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// The number of the byte that a character begins with; the size when there are not so many.
std::size_t byteOfCharacter(std::string_view text, std::size_t character)
{
    std::size_t byte = 0;
    for (; byte < text.size(); ++byte) {
        if (!isInnerByte(text[byte]) && character-- == 0)
            break;
    }
    return byte;
}

/// The last characters of a text, of at most that many bytes.
std::string_view tail(std::string_view text, std::size_t most)
{
    std::size_t begin = text.size() - std::min(text.size(), most);
    while (begin < text.size() && isInnerByte(text[begin]))
        ++begin;
    return text.substr(begin);
}

/// The first characters of a text, of at most that many bytes.
std::string_view start(std::string_view text, std::size_t most)
{
    std::size_t end = std::min(text.size(), most);
    while (end < text.size() && end > 0 && isInnerByte(text[end]))
        --end;
    return text.substr(0, end);
}

/// The line that a finding begins in, with the stretch that it is about marked; of long lines what is around it.
Html sourceLine(const SourceDocument& document, const Diagnostic& finding)
{
    constexpr std::size_t k_around = 120;
    constexpr std::size_t k_longestMark = 240;
    const std::string_view line = document.line(finding.range.bytes.begin);
    const std::size_t begin = byteOfCharacter(line, finding.range.begin.column - 1);
    const bool isWithinLine = finding.range.end.line == finding.range.begin.line;
    const std::size_t end = isWithinLine ? byteOfCharacter(line, finding.range.end.column - 1) : line.size();
    const std::string_view before = line.substr(0, begin);
    const std::string_view marked = line.substr(begin, end - begin);
    const std::string_view after = line.substr(end);

    Html html;
    html << "<pre><code>"_html;
    if (tail(before, k_around).size() < before.size())
        html << "…"_html;
    html << tail(before, k_around) << "<mark>"_html << start(marked, k_longestMark);
    if (start(marked, k_longestMark).size() < marked.size())
        html << "…"_html;
    html << "</mark>"_html << start(after, k_around);
    if (start(after, k_around).size() < after.size())
        html << "…"_html;
    return html << "</code></pre>\n"_html;
}

Html findingItem(const SourceDocument& document, const Diagnostic& finding)
{
    const std::string_view severity = nameOf(finding.severity);
    Html html;
    html << "<li class=\"finding "_html << severity << "\">\n<p><span class=\"badge "_html << severity << "\">"_html
         << severity << "</span> <bdi>"_html << finding.message << "</bdi></p>\n<p class=\"place\">line "_html
         << finding.range.begin.line << ", column "_html << finding.range.begin.column << " · <code>"_html
         << finding.rule << "</code></p>\n"_html << sourceLine(document, finding);
    return html << "</li>\n"_html;
}

} // namespace

Html findingsBadge(const CheckedManifest& checked)
{
    Html html;
    const std::size_t errors = countOf(checked, Severity::Error);
    const std::size_t warnings = countOf(checked, Severity::Warning);
    const std::size_t remarks = countOf(checked, Severity::Info) + countOf(checked, Severity::Pedantic);
    if (errors > 0)
        return html << "<span class=\"badge error\">"_html << counted(errors, "error") << "</span>"_html;
    if (warnings > 0)
        return html << "<span class=\"badge warning\">"_html << counted(warnings, "warning") << "</span>"_html;
    if (remarks > 0)
        return html << "<span class=\"badge info\">"_html << counted(remarks, "remark") << "</span>"_html;
    return html << "<span class=\"badge good\">no findings</span>"_html;
}

Html findingsSection(const SitePackage& package, const PagePlace& place)
{
    const auto& findings = package.checked.report.findings;
    Html html;
    html << sectionStart("findings", "Findings", place);
    if (findings.empty())
        return html << "<p>Nothing was found in the manifest.</p>\n</section>\n"_html;
    html << "<ol class=\"findings\">\n"_html;
    const std::size_t shown = std::min(findings.size(), k_mostFindings);
    for (std::size_t i = 0; i < shown; ++i)
        html << findingItem(package.checked.document, findings[i]);
    html << "</ol>\n"_html;
    const std::size_t left = findings.size() - shown + package.checked.report.omitted;
    if (left > 0)
        html << "<p>"_html << left << " more are not shown.</p>\n"_html;
    return html << "</section>\n"_html;
}

} // namespace zu::cli
