#include "languages/manifest_languages.hpp"
#include "site/package_page.hpp"

namespace zu::cli {

namespace {

using authoring::LanguageMatrix;
using authoring::MatrixLanguage;
using authoring::MatrixPart;
using authoring::MatrixRow;

// More is not a package but an attack, and nobody could read it.
constexpr std::size_t k_mostColumns = 60;
constexpr std::size_t k_mostRows = 1'000;

/// The more texts, the deeper the colour.
Markup classOf(std::size_t count, bool isStray)
{
    if (isStray)
        return "stray"_html;
    return count == 1 ? "some"_html : count < 4 ? "more"_html : "many"_html;
}

Html cellOf(const LanguageMatrix& matrix, const MatrixRow& row, std::size_t language)
{
    const std::size_t count = row.count(language);
    Html html;
    if (matrix.isMissing(row, language))
        return html << "<td class=\"missing\"><span aria-hidden=\"true\">–</span>"
                       "<span class=\"unseen\">missing</span></td>"_html;
    if (count == 0)
        return html << "<td></td>"_html;
    return html << "<td class=\""_html << classOf(count, !matrix.languages[language].expects(row.kind)) << "\">"_html
                << count << "</td>"_html;
}

std::string titleOf(const MatrixPart& part)
{
    return part.kind == authoring::PartKind::Package ? "The package" : std::string(nameOf(part.kind)) + " " + part.name;
}

class MatrixTable
{
public:
    explicit MatrixTable(const LanguageMatrix& matrix)
        : m_matrix(matrix), m_columns(std::min(matrix.languages.size(), k_mostColumns))
    {
    }

    Html html() const
    {
        Html html;
        html << "<table class=\"matrix\">\n<caption>Number of texts by language</caption>\n"_html << head();
        std::size_t rows = 0;
        for (const MatrixPart& part : m_matrix.parts) {
            if (part.rows.empty())
                continue;
            if ((rows += part.rows.size()) > k_mostRows)
                break;
            html << partRows(part);
        }
        return html << foot() << "</table>\n"_html;
    }

private:
    Html head() const
    {
        Html html;
        html << "<thead><tr><th scope=\"col\">Texts</th>"_html;
        for (std::size_t i = 0; i < m_columns; ++i) {
            const MatrixLanguage& language = m_matrix.languages[i];
            html << "<th scope=\"col\">"_html << (language.code.empty() ? std::string("none") : language.code);
            if (language.isStray())
                html << " <small>undeclared</small>"_html;
            html << "</th>"_html;
        }
        return html << "</tr></thead>\n"_html;
    }

    Html partRows(const MatrixPart& part) const
    {
        Html html;
        html << "<tbody>\n<tr class=\"part\"><th scope=\"rowgroup\" colspan=\""_html << m_columns + 1 << "\"><bdi>"_html
             << titleOf(part) << "</bdi></th></tr>\n"_html;
        for (const MatrixRow& row : part.rows) {
            html << "<tr><th scope=\"row\">"_html << nameOf(row.kind) << "</th>"_html;
            for (std::size_t i = 0; i < m_columns; ++i)
                html << cellOf(m_matrix, row, i);
            html << "</tr>\n"_html;
        }
        return html << "</tbody>\n"_html;
    }

    Html foot() const
    {
        Html html;
        html << "<tfoot><tr><th scope=\"row\">covered</th>"_html;
        for (std::size_t i = 0; i < m_columns; ++i) {
            const MatrixLanguage& language = m_matrix.languages[i];
            html << "<td>"_html;
            if (!language.isStray())
                html << static_cast<std::size_t>(language.coverage.percent()) << " %"_html;
            html << "</td>"_html;
        }
        return html << "</tr></tfoot>\n"_html;
    }

    const LanguageMatrix& m_matrix;
    std::size_t m_columns;
};

} // namespace

Html matrixSection(const SitePackage& package, const PagePlace& place)
{
    Html html;
    const LanguageMatrix& matrix = package.matrix;
    if (matrix.languages.empty())
        return html;
    html << sectionStart("matrix", "Languages", place)
         << "<div class=\"scroll\" role=\"group\" tabindex=\"0\" aria-labelledby=\""_html << place.idPrefix
         << "matrix\">\n"_html << MatrixTable(matrix).html() << "</div>\n"_html;
    const std::size_t shown = std::min(matrix.languages.size(), k_mostColumns);
    const std::size_t left = matrix.languages.size() - shown + matrix.omittedLanguages;
    if (left > 0)
        html << "<p>"_html << left << " more languages are not shown.</p>\n"_html;
    return html << "<p class=\"legend\"><span class=\"key some\">1</span> there, the deeper the more "
                   "<span class=\"key missing\">–</span> missing "
                   "<span class=\"key stray\">1</span> there, though its language is not declared for it</p>\n"
                   "</section>\n"_html;
}

} // namespace zu::cli
