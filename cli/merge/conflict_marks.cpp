#include "merge/conflict_marks.hpp"

#include "edit/line_steps.hpp"

#include <zupackage/authoring/text_edit.hpp>

#include <string_view>
#include <vector>

namespace zu::cli {

namespace {

using authoring::SourceDocument;

/// Writes lines, and those of conflicts between marks.
class MarkedLines
{
public:
    MarkedLines(const ConflictMarks& marks, std::string_view lineEnd) : m_marks(marks), m_lineEnd(lineEnd) {}

    void add(const LineStep& step)
    {
        if (step.mark == ' ') {
            endConflict();
            m_text += step.line;
        } else if (step.mark == '-') {
            m_ours += step.line;
        } else {
            m_theirs += step.line;
        }
    }

    std::string take()
    {
        endConflict();
        return std::move(m_text);
    }

private:
    void endConflict()
    {
        if (m_ours.empty() && m_theirs.empty())
            return;
        mark('<', m_marks.oursLabel);
        addWhole(m_ours);
        mark('=', {});
        addWhole(m_theirs);
        mark('>', m_marks.theirsLabel);
        m_ours.clear();
        m_theirs.clear();
    }

    void mark(char character, const std::string& label)
    {
        m_text.append(m_marks.size, character).append(label.empty() ? "" : " " + label).append(m_lineEnd);
    }

    /// The last line of a document may have no end.
    void addWhole(const std::string& lines)
    {
        const bool isWhole = lines.empty() || lines.back() == '\n' || lines.back() == '\r';
        m_text.append(lines).append(isWhole ? "" : m_lineEnd);
    }

    const ConflictMarks& m_marks;
    std::string_view m_lineEnd;
    std::string m_text;
    std::string m_ours;
    std::string m_theirs;
};

/// From behind the byte order mark to the end, whatever the document's tree covers.
authoring::ByteRange characterRange(const SourceDocument& document)
{
    return {document.document().contentRange().begin, document.text().size()};
}

} // namespace

std::string withConflictMarks(const SourceDocument& ours, const SourceDocument& theirs, const ConflictMarks& marks)
{
    MarkedLines lines(marks, charactersOf(ours.lineEnd()));
    constexpr std::string_view k_utf8 = "UTF-8";
    // A byte order mark belongs to the first line of each side then, as git has it. A mark of a conflict behind it
    // would not begin its line.
    if (ours.encoding() == k_utf8 && theirs.encoding() == k_utf8) {
        for (const LineStep& step : lineSteps(ours.text(), theirs.text()))
            lines.add(step);
        return lines.take();
    }
    const authoring::ByteRange whole = characterRange(ours);
    for (const LineStep& step : lineSteps(ours.source(whole), theirs.source(characterRange(theirs))))
        lines.add(step);
    // The one edit replaces all, so that it always fits.
    return applyEdits(ours, {{whole, lines.take()}}).value();
}

} // namespace zu::cli
