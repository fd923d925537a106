#include "languages/report.hpp"

#include <nlohmann/json.hpp>

namespace zu::cli {

namespace {

using authoring::LanguageMatrix;
using authoring::MatrixLanguage;
using authoring::MatrixPart;
using authoring::MatrixRow;
using nlohmann::ordered_json;

ordered_json jsonOf(const MatrixLanguage& language, const LanguageGate& gate)
{
    return {{"code", language.code},
            {"supported", language.isSupported},
            {"description", language.isDescription},
            {"required", language.isRequired},
            {"expected", language.coverage.expected},
            {"present", language.coverage.present},
            {"percent", language.coverage.percent()},
            {"under", gate.isMissedBy(language)}};
}

ordered_json jsonOf(const LanguageMatrix& matrix, const MatrixRow& row)
{
    ordered_json counts = ordered_json::object();
    ordered_json missing = ordered_json::array();
    for (std::size_t i = 0; i < matrix.languages.size(); ++i) {
        if (row.count(i) > 0)
            counts[matrix.languages[i].code] = row.count(i);
        else if (matrix.isMissing(row, i))
            missing.push_back(matrix.languages[i].code);
    }
    return {{"kind", keyOf(row.kind)}, {"counts", std::move(counts)}, {"missing", std::move(missing)}};
}

ordered_json jsonOf(const ManifestLanguages& manifest, const LanguageGate& gate)
{
    ordered_json result = {{"path", manifest.path},
                           {"error", nullptr},
                           {"uuid", manifest.uuid},
                           {"version", manifest.version},
                           {"languages", ordered_json::array()},
                           {"omitted_languages", manifest.matrix.omittedLanguages},
                           {"parts", ordered_json::array()}};
    if (!manifest.failure.empty())
        result["error"] = manifest.failure;
    for (const MatrixLanguage& language : manifest.matrix.languages)
        result["languages"].push_back(jsonOf(language, gate));
    for (const MatrixPart& part : manifest.matrix.parts) {
        ordered_json texts = ordered_json::array();
        for (const MatrixRow& row : part.rows)
            texts.push_back(jsonOf(manifest.matrix, row));
        result["parts"].push_back({{"kind", nameOf(part.kind)}, {"name", part.name}, {"texts", std::move(texts)}});
    }
    return result;
}

class LanguagesJsonReporter : public LanguagesReporter
{
public:
    explicit LanguagesJsonReporter(const LanguageGate& gate) : m_gate(gate) {}

    std::string add(const ManifestLanguages& manifest) override
    {
        m_packages.push_back(jsonOf(manifest, m_gate));
        return {};
    }

    std::string finish() override
    {
        const ordered_json report = {{"format_version", 1},
                                     {"tool", {{"name", "zupackage"}, {"version", ZUPACKAGE_VERSION}}},
                                     {"fail_under", m_gate.failUnder},
                                     {"packages", std::move(m_packages)}};
        // The names of files may be any bytes.
        return report.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    }

private:
    LanguageGate m_gate;
    ordered_json m_packages = ordered_json::array();
};

} // namespace

std::unique_ptr<LanguagesReporter> languagesJsonReporter(const LanguageGate& gate)
{
    return std::make_unique<LanguagesJsonReporter>(gate);
}

} // namespace zu::cli
