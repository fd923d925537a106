#include "paths/read_back.hpp"

#include "characters.hpp"
#include "edit/reading.hpp"
#include "package/package_element.hpp"
#include "paths/path_rules.hpp"
#include "paths/vocabulary_of_nodes.hpp"
#include "special_entries.hpp"

#include <zupackage/package_info.hpp>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace zupackage::authoring {

using zu::authoring::AttributeEntry;
using zu::authoring::ByteRange;
using zu::authoring::ElementEntry;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::ValueKind;

namespace {

using Way = std::vector<EntryStep>;

bool needsAnother(SourceNode element, const ElementEntry& entry, std::string_view given)
{
    return std::any_of(entry.attributes.begin(), entry.attributes.end(), [&](const AttributeEntry& attribute) {
        return attribute.isRequired && attribute.name != given && edit::readAttribute(element, attribute.name).empty();
    });
}

/// @param given the name of an attribute that the element has, or is about to have.
std::optional<Way> wayTo(SourceNode element, std::string_view given = {})
{
    const ElementEntry* const entry = entryOf(element);
    if (!entry || (entry->parent && needsAnother(element, *entry, given)))
        return std::nullopt;
    std::optional<Way> way = entry->parent ? wayTo(element.parent()) : Way();
    if (way && entry->parent)
        way->push_back({entry, identityOf(element, *entry)});
    return way;
}

void state(const NewElement& element, Way way, std::vector<Statement>& statements)
{
    const ElementEntry* const parent = way.empty() ? &zu::authoring::Vocabulary::manifest().root() : way.back().entry;
    const ElementEntry* const entry = parent->child(element.name);
    if (!entry)
        return;
    way.push_back({entry, identityOf(element, *entry)});
    statements.push_back({way, {}, element.text});
    for (const auto& [name, value] : element.attributes)
        statements.push_back({way, name, value});
    for (const NewElement& child : element.children)
        state(child, way, statements);
}

bool isMet(const EntryStep& step, SourceNode element)
{
    return element.isElement() && element.name() == step.entry->name &&
           (step.identity.empty() || identityOf(element, *step.entry) == step.identity);
}

/// Cuts out of a document what has to do with one way, so that reading it does not take the time that reading all of a
/// large document does.
class Excerpt
{
public:
    Excerpt(const SourceDocument& document, const Way& way) : m_document(document), m_way(way) {}

    std::string take()
    {
        const SourceNode root = m_document.root();
        m_bytes = m_document.text().substr(0, root.range().begin);
        append(root, 0);
        return std::move(m_bytes);
    }

private:
    void append(ByteRange range) { m_bytes.append(m_document.text(), range.begin, range.end - range.begin); }

    void append(SourceNode element, std::size_t step)
    {
        const bool isPart = step < m_way.size() && m_way[step].entry->parent->countsEveryChild;
        const bool isWhole = isPart || step == k_depth || (step > 0 && step == m_way.size());
        if (isWhole || element.isEmptyTag()) {
            append(element.range());
            return;
        }
        append(element.startTagRange());
        for (const SourceNode child : element.children()) {
            if (step < m_way.size() && isMet(m_way[step], child))
                append(child, step + 1);
        }
        append(element.endTagRange());
    }

    /// Sections of packages, and the entries in them, are many; what stands in an entry is taken as a whole.
    static constexpr std::size_t k_depth = 2;

    const SourceDocument& m_document;
    const Way& m_way;
    std::string m_bytes;
};

/// The text as the package library's writer, which is asked what a package says, writes it: it drops a byte order mark.
std::string_view writtenFrom(std::string_view text)
{
    return text.substr(0, k_byteOrderMark.size()) == k_byteOrderMark ? text.substr(k_byteOrderMark.size()) : text;
}

bool saysAlike(ValueKind kind, std::string_view left, std::string_view right)
{
    const auto isTrue = [](std::string_view flag) { return flag == "true" || flag == "1"; };
    return kind == ValueKind::Flag ? isTrue(left) == isTrue(right) : left == right;
}

bool saysAt(const PackageElement& element, const Statement& statement)
{
    if (statement.attribute.empty())
        return element.text == writtenFrom(statement.text);
    const AttributeEntry* const attribute = element.entry->attribute(statement.attribute);
    if (!attribute)
        return true;
    const auto number = static_cast<std::size_t>(attribute - element.entry->attributes.data());
    return saysAlike(attribute->kind, element.attributes[number], writtenFrom(statement.text));
}

/// Follows ways in a package. What is an entry's is sorted when a way first leads there: of long lists, each statement
/// may be about another entry.
class WaysOfPackage
{
public:
    explicit WaysOfPackage(PackageElement root) : m_root(std::move(root)) {}

    bool say(const Statement& statement) { return say(m_root, statement, 0); }

private:
    using Key = std::pair<const ElementEntry*, std::string>;
    using Children = std::multimap<Key, const PackageElement*>;

    bool say(const PackageElement& element, const Statement& statement, std::size_t step)
    {
        if (step == statement.way.size())
            return saysAt(element, statement);
        const EntryStep& wanted = statement.way[step];
        const auto [begin, end] =
            childrenOf(element).equal_range({wanted.entry, std::string(writtenFrom(wanted.identity))});
        return std::any_of(begin, end, [&](const auto& child) { return say(*child.second, statement, step + 1); });
    }

    const Children& childrenOf(const PackageElement& element)
    {
        const auto [children, isNew] = m_children.try_emplace(&element);
        if (isNew) {
            for (const PackageElement& child : element.children) {
                children->second.emplace(Key(child.entry, std::string()), &child);
                if (const std::string identity = identityOf(child); !identity.empty())
                    children->second.emplace(Key(child.entry, identity), &child);
            }
        }
        return children->second;
    }

    PackageElement m_root;
    std::unordered_map<const PackageElement*, Children> m_children;
};

/// Whether a package need not say it: nothing, and what stands in web content.
bool isBeyondPackages(const Statement& statement)
{
    return statement.text.empty() || std::any_of(statement.way.begin(), statement.way.end(),
                                                 [](const EntryStep& step) { return isWebContent(*step.entry); });
}

std::optional<WaysOfPackage> packageIn(const std::string& manifest)
{
    zu::PackageInfo package;
    if (!zu::readManifest(manifest, package))
        return std::nullopt;
    return std::optional<WaysOfPackage>(std::in_place, elementOf(package));
}

} // namespace

std::vector<Statement> statementsOf(SourceNode element, const std::string& attribute, const std::string& text)
{
    std::optional<Way> way = wayTo(element, attribute);
    if (!way)
        return {};
    if (!way->empty() && way->back().entry->identity == (attribute.empty() ? k_ownText : attribute))
        way->back().identity = text;
    return {{std::move(*way), attribute, text}};
}

std::vector<Statement> statementsOf(SourceNode parent, const NewElement& element)
{
    std::vector<Statement> statements;
    if (!parent.isElement())
        return statements;
    if (const std::optional<Way> way = wayTo(parent))
        state(element, *way, statements);
    return statements;
}

const Statement* unread(const SourceDocument& document, const std::vector<Statement>& statements)
{
    // From there on, reading all at once takes less time.
    constexpr std::size_t k_mostExcerpts = 8;
    std::string manifest = statements.size() > k_mostExcerpts ? document.text() : std::string();
    std::optional<WaysOfPackage> package = manifest.empty() ? std::nullopt : packageIn(manifest);
    for (const Statement& statement : statements) {
        if (isBeyondPackages(statement))
            continue;
        if (statements.size() <= k_mostExcerpts) {
            std::string excerpt = Excerpt(document, statement.way).take();
            if (excerpt != manifest)
                package = packageIn(excerpt);
            manifest = std::move(excerpt);
        }
        if (!package || !package->say(statement))
            return &statement;
    }
    return nullptr;
}

} // namespace zupackage::authoring
