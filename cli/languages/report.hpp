#pragma once

#include "languages/manifest_languages.hpp"

#include <memory>
#include <string>

namespace zu::cli {

/// Writes down the languages of manifest after manifest. What it gives is to be written to standard output as it comes.
class LanguagesReporter
{
public:
    LanguagesReporter() = default;
    virtual ~LanguagesReporter() = default;
    LanguagesReporter(const LanguagesReporter&) = delete;
    LanguagesReporter& operator=(const LanguagesReporter&) = delete;

    /// @return what can be written already.
    virtual std::string add(const ManifestLanguages& manifest) = 0;
    /// @return the rest.
    virtual std::string finish() = 0;
};

/// Tables of at most 80 columns, for people.
std::unique_ptr<LanguagesReporter> languagesTextReporter(const LanguageGate& gate, bool isColoured);
/// One document of docs/schemas/languages-report.schema.json.
std::unique_ptr<LanguagesReporter> languagesJsonReporter(const LanguageGate& gate);
/// A record for each kind of text and language, as RFC 4180 has it. A cell that a spreadsheet would take for a formula
/// has an apostrophe before it.
std::unique_ptr<LanguagesReporter> languagesCsvReporter();

} // namespace zu::cli
