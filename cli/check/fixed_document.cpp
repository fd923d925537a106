#include "check/fixed_document.hpp"

#include <algorithm>

namespace zu::cli {

namespace {

using authoring::Diagnostic;
using authoring::SourceDocument;
using authoring::TextEdit;

/// Finds, for places in a document that was edited again and again, where they were before.
class EditHistory
{
public:
    /// @param edits of one round, which do not overlap.
    void add(std::vector<TextEdit> edits, const SourceDocument& document)
    {
        std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& left, const TextEdit& right) {
            return left.range.begin < right.range.begin;
        });
        std::vector<Change>& changes = m_rounds.emplace_back();
        for (const TextEdit& edit : edits)
            changes.push_back({edit.range, encodedSize(document, edit.replacement)});
    }

    std::size_t originOf(std::size_t offset) const
    {
        for (auto round = m_rounds.rbegin(); round != m_rounds.rend(); ++round)
            offset = originIn(*round, offset);
        return offset;
    }

private:
    struct Change
    {
        authoring::ByteRange range; ///< before the round
        std::size_t size;           ///< of what stands there after it
    };

    static std::size_t originIn(const std::vector<Change>& changes, std::size_t offset)
    {
        std::size_t removed = 0;
        std::size_t inserted = 0;
        for (const Change& change : changes) {
            const std::size_t begin = change.range.begin - removed + inserted;
            if (offset < begin)
                break;
            if (offset < begin + change.size)
                return change.range.begin;
            removed += change.range.size();
            inserted += change.size;
        }
        return offset + removed - inserted;
    }

    std::vector<std::vector<Change>> m_rounds;
};

} // namespace

FixedDocument fixedDocument(const SourceDocument& document, const authoring::CheckReport& report,
                            const authoring::CheckOptions& options, bool fixesUnsafe)
{
    constexpr int k_mostRounds = 100;
    FixedDocument fixed = {document, report, {}};
    EditHistory history;
    for (int round = 0; round < k_mostRounds; ++round) {
        std::vector<std::size_t> applied;
        std::string text = authoring::applyFixes(fixed.document, fixed.report.findings, fixesUnsafe, &applied);
        if (text == fixed.document.text())
            break;
        std::vector<TextEdit> edits;
        for (const std::size_t index : applied) {
            const Diagnostic& finding = fixed.report.findings[index];
            fixed.fixes.push_back(
                {finding.rule, finding.fix->title, document.place(history.originOf(finding.range.bytes.begin))});
            edits.insert(edits.end(), finding.fix->edits.begin(), finding.fix->edits.end());
        }
        history.add(std::move(edits), fixed.document);
        fixed.document = SourceDocument::parse(std::move(text));
        fixed.report = authoring::check(fixed.document, options);
    }
    return fixed;
}

} // namespace zu::cli
