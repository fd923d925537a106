#include "languages/report.hpp"

namespace zu::cli {

namespace {

using authoring::LanguageMatrix;
using authoring::MatrixLanguage;
using authoring::MatrixPart;
using authoring::MatrixRow;

/// A cell as it stands in a record. What strangers wrote must not run where the table is opened.
std::string cell(const std::string& text)
{
    constexpr std::string_view k_startsFormula = "=+-@\t\r\n";
    const bool isFormula = !text.empty() && k_startsFormula.find(text.front()) != std::string_view::npos;
    const std::string shown = (isFormula ? "'" : "") + text;
    if (shown.find_first_of(",\"\r\n") == std::string::npos)
        return shown;
    std::string quoted = "\"";
    for (const char c : shown)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

const char* flag(bool value) { return value ? "true" : "false"; }

class LanguagesCsvReporter : public LanguagesReporter
{
public:
    std::string add(const ManifestLanguages& manifest) override
    {
        std::string text = header();
        for (const MatrixPart& part : manifest.matrix.parts) {
            for (const MatrixRow& row : part.rows) {
                const std::string start = cell(manifest.path) + "," + cell(manifest.uuid) + "," + nameOf(part.kind) +
                                          "," + cell(part.name) + "," + keyOf(row.kind) + ",";
                addRow(manifest.matrix, row, start, text);
            }
        }
        return text;
    }

    std::string finish() override { return header(); }

private:
    /// The first record, the first time.
    std::string header()
    {
        if (m_isHeaderWritten)
            return {};
        m_isHeaderWritten = true;
        return "path,uuid,kind,name,texts,language,supported,description,required,count,missing\r\n";
    }

    static void addRow(const LanguageMatrix& matrix, const MatrixRow& row, const std::string& start, std::string& text)
    {
        for (std::size_t i = 0; i < matrix.languages.size(); ++i) {
            const MatrixLanguage& language = matrix.languages[i];
            if (row.count(i) == 0 && !matrix.isMissing(row, i))
                continue;
            text += start + cell(language.code) + "," + flag(language.isSupported) + "," +
                    flag(language.isDescription) + "," + flag(language.isRequired) + "," +
                    std::to_string(row.count(i)) + "," + flag(matrix.isMissing(row, i)) + "\r\n";
        }
    }

    bool m_isHeaderWritten = false;
};

} // namespace

std::unique_ptr<LanguagesReporter> languagesCsvReporter() { return std::make_unique<LanguagesCsvReporter>(); }

} // namespace zu::cli
