#include "check/wording.hpp"
#include "edit/reading.hpp"
#include "edits.hpp"
#include "package/package_element.hpp"
#include "paths/insertion.hpp"
#include "paths/path_rules.hpp"
#include "paths/path_selection.hpp"
#include "paths/read_back.hpp"
#include "paths/vocabulary_of_nodes.hpp"

#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace zu::authoring {

using namespace zupackage::authoring;

namespace {

[[noreturn]] void refuseAbsent(const SourceDocument& document, const ManifestPath& path)
{
    const std::string nearest = nearestPath(document, path);
    throw PathEditError(PathEditError::Reason::NotThere,
                        "there is no " + path.text() + (nearest.empty() ? "" : "; the nearest is " + nearest));
}

/// What the vocabulary says about the elements that a path leads to; null when it says nothing.
const ElementEntry* entryAt(const ManifestPath& path)
{
    const ElementEntry* entry = &Vocabulary::manifest().root();
    for (const PathStep& step : path.steps()) {
        const bool isRoot = path.isAbsolute() && &step == &path.steps().front();
        if (entry && !isRoot)
            entry = entry->child(step.name);
    }
    return entry;
}

bool saysWhatToMake(const PathStep& step)
{
    return step.name != "*" && std::none_of(step.predicates.begin(), step.predicates.end(), [](const PathPredicate& p) {
               return p.kind == PathPredicate::Kind::Position;
           });
}

/// What one edit by a path does to the text, and what the package is to say for it.
struct Change
{
    std::vector<TextEdit> edits;
    std::vector<Statement> statements;
};

/// Makes one edit by a path.
class PathEditor
{
public:
    PathEditor(const SourceDocument& document, const ManifestPath& path, VocabularyGuard guard)
        : m_document(document), m_path(path), m_isGuarded(guard == VocabularyGuard::Enforced)
    {
    }

    Change set(const std::string& text)
    {
        requireXmlText(text);
        reach(
            m_path.steps().size(),
            [&](const std::vector<SourceNode>& section) {
                for (const SourceNode element : section)
                    setText(element, text);
            },
            [&](SourceNode parent, NewElement& outermost, NewElement& innermost) {
                // What is asked for by another text is not there, rather than to be made with this one.
                if (!canSay(innermost, m_path.attribute(), text))
                    return;
                say(innermost, m_path.attribute(), text);
                make(parent, outermost);
            });
        return take();
    }

    Change add(const std::vector<SetText>& parts)
    {
        const std::size_t shortest = m_path.isAbsolute() ? 2 : 1;
        if (!m_path.attribute().empty() || m_path.steps().size() < shortest)
            refuse("\"" + m_path.text() + "\" leads to no element that could be appended to a list");
        NewElement entry = elementFor(m_path.steps().back());
        for (const SetText& part : parts) {
            if (part.path.isAbsolute())
                refuse("\"" + part.path.text() + "\" is not relative to the new entry");
            setWithin(entry, entryAt(m_path), part.path, part.text);
        }
        reach(
            m_path.steps().size() - 1, [&](const std::vector<SourceNode>& section) { make(section.back(), entry); },
            [&](SourceNode parent, NewElement& outermost, NewElement& innermost) {
                innermost.children.push_back(entry);
                make(parent, outermost);
            });
        return take();
    }

    Change remove()
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
        return take();
    }

private:
    /// Goes the first `count` steps.
    /// @param visit called with what they lead to: each element, but those that readers take for one together.
    /// @param complete called where they lead no further, with the element there, and the outermost and the innermost
    /// of the elements that the other steps ask for.
    template <typename Visit, typename Complete>
    void reach(std::size_t count, Visit visit, Complete complete)
    {
        if (const std::vector<SourceNode> first = beginning(m_document, m_path); !first.empty())
            reachFrom(first, 0, count, visit, complete);
    }

    template <typename Visit, typename Complete>
    void reachFrom(const std::vector<SourceNode>& section, std::size_t step, std::size_t count, Visit& visit,
                   Complete& complete)
    {
        if (step == count) {
            visit(section);
            return;
        }
        const std::vector<SourceNode> next = stepFrom(section, m_path.steps()[step]);
        for (const std::vector<SourceNode>& inner : sectionsOf(next))
            reachFrom(inner, step + 1, count, visit, complete);
        const SourceNode parent = section.back();
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
        if (m_isGuarded) {
            requireElement(parent, entryOf(parent), element);
            append(statementsOf(parent, element));
        }
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
        if (zupackage::edit::readText(element) == text)
            return;
        requireNoSecond(element, k_ownText, text);
        if (m_isGuarded)
            append(statementsOf(element, {}, text));
        const std::vector<TextEdit> edits = textReplacement(m_document, element, text, !m_isGuarded);
        m_edits.insert(m_edits.end(), edits.begin(), edits.end());
    }

    void setAttribute(SourceNode element, const std::string& value)
    {
        const SourceAttribute attribute = zupackage::edit::plainAttribute(element, m_path.attribute());
        if (m_isGuarded)
            requireAttribute(element, entryOf(element), m_path.attribute(), value, !attribute);
        if (attribute && zupackage::edit::readValue(attribute) == value)
            return;
        requireNoSecond(element, m_path.attribute(), value);
        if (m_isGuarded)
            append(statementsOf(element, m_path.attribute(), value));
        m_edits.push_back(attribute ? replacement(attribute, value)
                                    : insertion(m_document, element, m_path.attribute(), value));
    }

    /// That an element which is to have that text or that attribute is not told from others by it, or by another one.
    void requireNoSecond(SourceNode element, std::string_view changed, const std::string& value)
    {
        const ElementEntry* const entry = m_isGuarded ? entryOf(element) : nullptr;
        if (!entry || entry->identity != changed)
            return;
        requireUnique(element, *entry, value, m_identified);
        m_identified.insert(element.index());
    }

    void append(std::vector<Statement> statements)
    {
        std::move(statements.begin(), statements.end(), std::back_inserter(m_statements));
    }

    Change take()
    {
        if (!m_leadsSomewhere)
            refuseAbsent(m_document, m_path);
        std::stable_sort(m_edits.begin(), m_edits.end(), [](const TextEdit& left, const TextEdit& right) {
            return left.range.begin < right.range.begin;
        });
        return {std::move(m_edits), std::move(m_statements)};
    }

    const SourceDocument& m_document;
    const ManifestPath& m_path;
    bool m_isGuarded;
    bool m_leadsSomewhere = false;
    std::vector<TextEdit> m_edits;
    std::vector<Statement> m_statements;
    std::unordered_set<std::size_t>
        m_identified; ///< the numbers of those that are told from others by the text that is set
};

Change changeFor(const SourceDocument& document, const PathEdit& edit, VocabularyGuard guard)
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
        const Change change = changeFor(result, edit, guard);
        if (change.edits.empty())
            continue;
        std::optional<std::string> bytes = applyEdits(result, change.edits);
        if (!bytes)
            refuse("the changes meet at one place");
        result = SourceDocument::parse(std::move(*bytes));
        if (!result.isWellFormed())
            refuse("that would be no well-formed XML: " + result.errors().front().message);
        if (const Statement* const statement = unread(result, change.statements))
            refuse("readers would not take " + zupackage::check::inQuotes(statement->text) +
                   " from the manifest that this makes");
    }
    return result;
}

} // namespace zu::authoring
