#include "white_space.hpp"

#include <zupackage/authoring/language_matrix.hpp>
#include <zupackage/package_info.hpp>

#include <algorithm>
#include <set>

namespace zu::authoring {

namespace {

constexpr std::size_t k_mostLanguages = 500;

std::size_t countOf(const std::string& text) { return zupackage::authoring::isBlank(text) ? 0 : 1; }

std::size_t countOf(const std::list<std::string>& texts)
{
    std::size_t count = 0;
    for (const std::string& text : texts)
        count += countOf(text);
    return count;
}

/// Calls `visit(kind, texts by language)` for each kind of text of the part.
template <typename Visit>
void forEachKind(const PackageInfo& package, Visit visit)
{
    visit(TextKind::Names, package.names());
    visit(TextKind::Descriptions, package.descriptions());
}

template <typename Visit>
void forEachKind(const BehaviorInfo& behavior, Visit visit)
{
    visit(TextKind::Names, behavior.names());
    visit(TextKind::Descriptions, behavior.descriptions());
    visit(TextKind::Tags, behavior.languagesToTags());
    visit(TextKind::TriggerSentences, behavior.languagesToTriggerSentences());
    visit(TextKind::LoadingResponses, behavior.languagesToLoadingResponses());
}

template <typename Visit>
void forEachKind(const DialogInfo& dialog, Visit visit)
{
    visit(TextKind::Topics, dialog.topics());
}

/// Calls `visit(kind of part, its name, the part)` for the package and what is in it.
template <typename Visit>
void forEachPart(const PackageInfo& package, Visit visit)
{
    visit(PartKind::Package, std::string(), package);
    for (const BehaviorInfo& behavior : package.behaviors())
        visit(PartKind::Behavior, behavior.path(), behavior);
    for (const DialogInfo& dialog : package.dialogs())
        visit(PartKind::Dialog, dialog.topicName(), dialog);
}

/// The languages in which there is any text, declared or not.
std::set<std::string> languagesWithTexts(const PackageInfo& package)
{
    std::set<std::string> languages;
    forEachPart(package, [&](PartKind, const std::string&, const auto& part) {
        forEachKind(part, [&](TextKind, const auto& texts) {
            for (const auto& [language, text] : texts) {
                if (countOf(text) > 0)
                    languages.insert(language);
            }
        });
    });
    return languages;
}

/// The columns of a matrix while they are chosen.
class Columns
{
public:
    template <typename Codes>
    void add(const Codes& codes, bool MatrixLanguage::*use = nullptr)
    {
        for (const std::string& code : codes) {
            auto found = m_languages.find(code);
            if (found == m_languages.end()) {
                if (m_languages.size() == k_mostLanguages) {
                    m_omitted.insert(code);
                    continue;
                }
                found = m_languages.try_emplace(code).first;
                found->second.code = code;
            }
            if (use)
                found->second.*use = true;
        }
    }

    std::vector<MatrixLanguage> languages() const
    {
        std::vector<MatrixLanguage> languages;
        for (const auto& [code, language] : m_languages)
            languages.push_back(language);
        return languages;
    }

    std::size_t omitted() const { return m_omitted.size(); }

private:
    std::map<std::string, MatrixLanguage> m_languages;
    std::set<std::string> m_omitted;
};

template <typename Texts>
MatrixRow rowOf(TextKind kind, const Texts& texts, const std::map<std::string, std::size_t>& columns)
{
    MatrixRow row{kind, {}};
    for (const auto& [language, text] : texts) {
        const auto column = columns.find(language);
        const std::size_t count = countOf(text);
        if (count > 0 && column != columns.end())
            row.counts.emplace(column->second, count);
    }
    return row;
}

void addCoverage(LanguageMatrix& matrix)
{
    std::map<TextKind, std::size_t> rows;
    for (const MatrixPart& part : matrix.parts) {
        for (const MatrixRow& row : part.rows) {
            ++rows[row.kind];
            for (const auto& [number, count] : row.counts) {
                MatrixLanguage& language = matrix.languages[number];
                if (language.expects(row.kind))
                    ++language.coverage.present;
            }
        }
    }
    for (MatrixLanguage& language : matrix.languages) {
        for (const auto& [kind, count] : rows) {
            if (language.expects(kind))
                language.coverage.expected += count;
        }
    }
}

} // namespace

bool MatrixLanguage::expects(TextKind kind) const
{
    if (isRequired)
        return true;
    switch (kind) {
    case TextKind::Names:
    case TextKind::Descriptions:
        return isDescription;
    case TextKind::Tags:
    case TextKind::TriggerSentences:
    case TextKind::LoadingResponses:
    case TextKind::Topics:
        return isSupported;
    }
    return false;
}

std::size_t MatrixRow::count(std::size_t language) const
{
    const auto found = counts.find(language);
    return found == counts.end() ? 0 : found->second;
}

LanguageMatrix languageMatrix(const PackageInfo& package, const std::vector<std::string>& required)
{
    Columns columns;
    columns.add(required, &MatrixLanguage::isRequired);
    columns.add(package.descriptionLanguages(), &MatrixLanguage::isDescription);
    columns.add(package.supportedLanguages(), &MatrixLanguage::isSupported);
    columns.add(languagesWithTexts(package));

    LanguageMatrix matrix;
    matrix.languages = columns.languages();
    matrix.omittedLanguages = columns.omitted();
    std::map<std::string, std::size_t> numbers;
    for (std::size_t i = 0; i < matrix.languages.size(); ++i)
        numbers.emplace(matrix.languages[i].code, i);

    forEachPart(package, [&](PartKind kind, const std::string& name, const auto& part) {
        MatrixPart& added = matrix.parts.emplace_back();
        added.kind = kind;
        added.name = name;
        forEachKind(part, [&](TextKind textKind, const auto& texts) {
            MatrixRow row = rowOf(textKind, texts, numbers);
            const bool isRequiredOfAll = kind == PartKind::Package && textKind == TextKind::Names;
            if (isRequiredOfAll || !row.counts.empty())
                added.rows.push_back(std::move(row));
        });
    });
    addCoverage(matrix);
    return matrix;
}

} // namespace zu::authoring
