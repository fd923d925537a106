#include "edits.hpp"
#include "paths/insertion.hpp"
#include "paths/path_rules.hpp"
#include "paths/path_selection.hpp"
#include "paths/vocabulary_of_nodes.hpp"

#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <algorithm>

namespace zu::authoring {

using namespace zupackage::authoring;

namespace {

[[noreturn]] void refuseAbsent(const SourceDocument& document, const ManifestPath& path)
{
    const std::string nearest = nearestPath(document, path);
    throw PathEditError(PathEditError::Reason::NotThere,
                        "there is no " + path.text() + (nearest.empty() ? "" : "; the nearest is " + nearest));
}

bool saysWhatToMake(const PathStep& step)
{
    return step.name != "*" && std::none_of(step.predicates.begin(), step.predicates.end(), [](const PathPredicate& p) {
               return p.kind == PathPredicate::Kind::Position;
           });
}

/// The text edits that make one edit by a path.
class PathEditor
{
public:
    PathEditor(const SourceDocument& document, const ManifestPath& path, VocabularyGuard guard)
        : m_document(document), m_path(path), m_isGuarded(guard == VocabularyGuard::Enforced)
    {
    }

    std::vector<TextEdit> set(const std::string& text)
    {
        requireXmlText(text);
        reach(
            m_path.steps().size(), [&](SourceNode element) { setText(element, text); },
            [&](SourceNode parent, NewElement& outermost, NewElement& innermost) {
                if (m_path.attribute().empty())
                    innermost.text = text;
                else
                    innermost.setAttribute(m_path.attribute(), text);
                make(parent, outermost);
            });
        return takeEdits();
    }

    std::vector<TextEdit> add(const std::vector<SetText>& parts)
    {
        const std::size_t shortest = m_path.isAbsolute() ? 2 : 1;
        if (!m_path.attribute().empty() || m_path.steps().size() < shortest)
            refuse("\"" + m_path.text() + "\" leads to no element that could be appended to a list");
        NewElement entry = elementFor(m_path.steps().back());
        for (const SetText& part : parts) {
            if (part.path.isAbsolute())
                refuse("\"" + part.path.text() + "\" is not relative to the new entry");
            setWithin(entry, part.path, part.text);
        }
        reach(
            m_path.steps().size() - 1, [&](SourceNode parent) { make(parent, entry); },
            [&](SourceNode parent, NewElement& outermost, NewElement& innermost) {
                innermost.children.push_back(entry);
                make(parent, outermost);
            });
        return takeEdits();
    }

    std::vector<TextEdit> remove()
    {
        for (const PathTarget& target : select(m_document, m_path)) {
            m_leadsSomewhere = true;
            if (target.attribute && m_isGuarded)
                requireDispensable(entryOf(target.element), target.attribute.name());
            if (target.element == m_document.root() && !target.attribute)
                refuse("a document needs its root element");
            m_edits.push_back(target.attribute ? removal(m_document, target.attribute)
                                               : removal(m_document, target.element));
        }
        return takeEdits();
    }

private:
    /// Goes the first `count` steps.
    /// @param visit called with each element that they lead to.
    /// @param complete called where they lead no further, with the element there, and the outermost and the innermost
    /// of the elements that the other steps ask for.
    template <typename Visit, typename Complete>
    void reach(std::size_t count, Visit visit, Complete complete)
    {
        for (const SourceNode element : beginning(m_document, m_path))
            reachFrom(element, 0, count, visit, complete);
    }

    template <typename Visit, typename Complete>
    void reachFrom(SourceNode parent, std::size_t step, std::size_t count, Visit& visit, Complete& complete)
    {
        if (step == count) {
            visit(parent);
            return;
        }
        const std::vector<SourceNode> next = stepFrom({parent}, m_path.steps()[step]);
        for (const SourceNode element : next)
            reachFrom(element, step + 1, count, visit, complete);
        const auto first = m_path.steps().begin() + static_cast<std::ptrdiff_t>(step);
        const std::vector<PathStep> missing(first, m_path.steps().begin() + static_cast<std::ptrdiff_t>(count));
        if (!next.empty() || !parent.isElement() || !std::all_of(missing.begin(), missing.end(), saysWhatToMake))
            return;
        NewElement outermost;
        NewElement& innermost = makeChain(missing, outermost);
        complete(parent, outermost, innermost);
    }

    void make(SourceNode parent, const NewElement& element)
    {
        m_leadsSomewhere = true;
        requireXmlTexts(element);
        if (m_isGuarded)
            requireElement(parent, entryOf(parent), element);
        m_edits.push_back(insertion(m_document, parent, element));
    }

    void setText(SourceNode element, const std::string& text)
    {
        m_leadsSomewhere = true;
        if (!m_path.attribute().empty()) {
            setAttribute(element, text);
            return;
        }
        if (m_isGuarded)
            requireText(element, entryOf(element), text);
        if (element.textContent() == text)
            return;
        const std::vector<TextEdit> edits = textReplacement(m_document, element, text, !m_isGuarded);
        m_edits.insert(m_edits.end(), edits.begin(), edits.end());
    }

    void setAttribute(SourceNode element, const std::string& value)
    {
        const SourceAttribute attribute = attributeNamed(element, m_path.attribute());
        if (m_isGuarded)
            requireAttribute(element, entryOf(element), m_path.attribute(), value, !attribute);
        if (!attribute)
            m_edits.push_back(insertion(m_document, element, m_path.attribute(), value));
        else if (attribute.value() != value)
            m_edits.push_back(replacement(attribute, value));
    }

    std::vector<TextEdit> takeEdits()
    {
        if (!m_leadsSomewhere)
            refuseAbsent(m_document, m_path);
        std::stable_sort(m_edits.begin(), m_edits.end(), [](const TextEdit& left, const TextEdit& right) {
            return left.range.begin < right.range.begin;
        });
        return std::move(m_edits);
    }

    const SourceDocument& m_document;
    const ManifestPath& m_path;
    bool m_isGuarded;
    bool m_leadsSomewhere = false;
    std::vector<TextEdit> m_edits;
};

std::vector<TextEdit> textEdits(const SourceDocument& document, const PathEdit& edit, VocabularyGuard guard)
{
    if (const auto* const set = std::get_if<SetText>(&edit))
        return PathEditor(document, set->path, guard).set(set->text);
    if (const auto* const add = std::get_if<AddEntry>(&edit))
        return PathEditor(document, add->path, guard).add(add->parts);
    return PathEditor(document, std::get<Remove>(edit).path, guard).remove();
}

} // namespace

SourceDocument edited(const SourceDocument& document, const std::vector<PathEdit>& edits, VocabularyGuard guard)
{
    SourceDocument result = document;
    for (const PathEdit& edit : edits) {
        const std::vector<TextEdit> changes = textEdits(result, edit, guard);
        if (changes.empty())
            continue;
        std::optional<std::string> bytes = applyEdits(result, changes);
        if (!bytes)
            refuse("the changes meet at one place");
        result = SourceDocument::parse(std::move(*bytes));
        if (!result.isWellFormed())
            refuse("that would be no well-formed XML: " + result.errors().front().message);
    }
    return result;
}

} // namespace zu::authoring
