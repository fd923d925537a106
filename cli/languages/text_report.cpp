#include "display_width.hpp"
#include "languages/report.hpp"

#include <algorithm>

namespace zu::cli {

namespace {

using authoring::LanguageMatrix;
using authoring::MatrixLanguage;
using authoring::MatrixPart;
using authoring::MatrixRow;

constexpr std::size_t k_pageWidth = 80;
constexpr std::size_t k_labelWidth = 20;
constexpr std::size_t k_longestCode = 14;
constexpr std::size_t k_gap = 2;

constexpr const char* k_headingColour = "1";
constexpr const char* k_missingColour = "1;31";
constexpr const char* k_yellow = "33";

std::string withWidth(const std::string& text, std::size_t width, bool isRightAligned)
{
    const std::string blanks(width - std::min(width, displayWidth(text)), ' ');
    return isRightAligned ? blanks + text : text + blanks;
}

std::string headingOf(const MatrixLanguage& language)
{
    return language.code.empty() ? "(none)" : shortened(language.code, k_longestCode);
}

/// The languages with these numbers, below `end`, stand side by side.
struct Block
{
    std::size_t begin;
    std::size_t end;
};

class LanguagesTextReporter : public LanguagesReporter
{
public:
    LanguagesTextReporter(const LanguageGate& gate, bool isColoured) : m_gate(gate), m_isColoured(isColoured) {}

    std::string add(const ManifestLanguages& manifest) override
    {
        if (!manifest.failure.empty())
            return {};
        m_hasTable = true;
        const LanguageMatrix& matrix = manifest.matrix;
        std::string text = painted(shortened(manifest.path, k_pageWidth), k_headingColour) + "\n\n";
        const std::vector<std::size_t> widths = columnWidths(matrix);
        for (const Block block : blocksOf(widths))
            text += table(matrix, widths, block) + "\n";
        if (matrix.languages.empty())
            text += "no languages\n\n";
        if (matrix.omittedLanguages > 0)
            text += std::to_string(matrix.omittedLanguages) + " more languages were left out\n\n";
        return text;
    }

    std::string finish() override
    {
        return m_hasTable ? "declared: d for names and descriptions, s for the rest, r required; - is missing\n" : "";
    }

private:
    static std::vector<std::size_t> columnWidths(const LanguageMatrix& matrix)
    {
        constexpr std::size_t k_least = 4; // "100%"
        std::vector<std::size_t> widths;
        for (const MatrixLanguage& language : matrix.languages)
            widths.push_back(std::max(k_least, displayWidth(headingOf(language))) + k_gap);
        return widths;
    }

    /// As many languages side by side as fit.
    static std::vector<Block> blocksOf(const std::vector<std::size_t>& widths)
    {
        std::vector<Block> blocks;
        std::size_t used = k_pageWidth;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (used + widths[i] > k_pageWidth) {
                blocks.push_back({i, i});
                used = k_labelWidth;
            }
            used += widths[i];
            blocks.back().end = i + 1;
        }
        return blocks;
    }

    /// A line of the table; `cell(language number)` gives a text and its colour.
    template <typename Cell>
    std::string line(const std::string& label, const std::vector<std::size_t>& widths, Block block, Cell cell) const
    {
        std::string text = withWidth(label, k_labelWidth, false);
        std::string blanks;
        for (std::size_t i = block.begin; i < block.end; ++i) {
            const auto [content, colour] = cell(i);
            const std::string padded = withWidth(content, widths[i], true);
            // Nothing stands behind the last cell that has something in it.
            if (content.empty()) {
                blanks += padded;
                continue;
            }
            text += blanks + padded.substr(0, padded.size() - content.size()) + painted(content, colour);
            blanks.clear();
        }
        return text.substr(0, text.find_last_not_of(' ') + 1) + "\n";
    }

    std::string table(const LanguageMatrix& matrix, const std::vector<std::size_t>& widths, Block block) const
    {
        using Cell = std::pair<std::string, const char*>;
        std::string text = line("", widths, block,
                                [&](std::size_t i) { return Cell(headingOf(matrix.languages[i]), k_headingColour); });
        text += line("declared", widths, block, [&](std::size_t i) {
            const MatrixLanguage& language = matrix.languages[i];
            const std::string uses = std::string(language.isDescription ? "d" : "") +
                                     (language.isSupported ? "s" : "") + (language.isRequired ? "r" : "");
            return language.isStray() ? Cell("no", k_yellow) : Cell(uses, nullptr);
        });
        for (const MatrixPart& part : matrix.parts) {
            if (part.rows.empty())
                continue;
            const std::string name = part.name.empty() ? "" : " " + part.name;
            text += shortened(nameOf(part.kind) + name, k_pageWidth) + "\n";
            for (const MatrixRow& row : part.rows) {
                text += line("  " + std::string(nameOf(row.kind)), widths, block, [&](std::size_t i) {
                    if (matrix.isMissing(row, i))
                        return Cell("-", k_missingColour);
                    return row.count(i) == 0 ? Cell() : Cell(std::to_string(row.count(i)), nullptr);
                });
            }
        }
        return text + line("covered", widths, block, [&](std::size_t i) {
                   const MatrixLanguage& language = matrix.languages[i];
                   const char* const colour = m_gate.isMissedBy(language) ? k_missingColour : nullptr;
                   return language.isStray() ? Cell() : Cell(std::to_string(language.coverage.percent()) + "%", colour);
               });
    }

    std::string painted(const std::string& text, const char* colour) const
    {
        return m_isColoured && colour ? "\x1B[" + std::string(colour) + "m" + text + "\x1B[0m" : text;
    }

    LanguageGate m_gate;
    bool m_isColoured;
    bool m_hasTable = false;
};

} // namespace

std::unique_ptr<LanguagesReporter> languagesTextReporter(const LanguageGate& gate, bool isColoured)
{
    return std::make_unique<LanguagesTextReporter>(gate, isColoured);
}

} // namespace zu::cli
