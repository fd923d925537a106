#include "check/outline.hpp"
#include "layout.hpp"

#include <zupackage/authoring/formatting.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <algorithm>
#include <array>
#include <set>

namespace zu::authoring {

using zupackage::authoring::isBlankText;
using zupackage::check::Outline;

namespace {

constexpr std::size_t k_indentation = 2;

std::size_t lineEndsIn(std::string_view blanks)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < blanks.size(); ++at)
        count += blanks[at] == '\n' || (blanks[at] == '\r' && blanks.substr(at, 2) != "\r\n") ? 1U : 0U;
    return count;
}

/// Whether what stands in the element is laid out: markup and white space between it. Any other text would be read with
/// the white space around it.
bool isLaidOut(const SourceDocument& document, SourceNode element)
{
    for (const SourceAttribute attribute : element.attributes()) {
        if (attribute.name() == "xml:space" && attribute.value() == "preserve")
            return false;
    }
    for (const SourceNode child : element.children()) {
        switch (child.kind()) {
        case NodeKind::Text:
            if (!isBlankText(document, child))
                return false;
            break;
        case NodeKind::CData:
        case NodeKind::EntityReference:
            return false;
        case NodeKind::None:
        case NodeKind::Document:
        case NodeKind::XmlDeclaration:
        case NodeKind::DocumentType:
        case NodeKind::Element:
        case NodeKind::Comment:
        case NodeKind::ProcessingInstruction:
            break;
        }
    }
    return true;
}

/// Writes a document anew, in UTF-8.
class Formatter
{
public:
    explicit Formatter(const SourceDocument& document) : m_document(document), m_outline(document)
    {
        countLineEnds(document.document());
        const auto most = std::max_element(m_lineEndCounts.begin(), m_lineEndCounts.end());
        m_lineEnd = charactersOf(*most == 0 ? document.lineEnd()
                                            : static_cast<LineEnd>(std::distance(m_lineEndCounts.begin(), most)));
    }

    std::string text()
    {
        writeChildren(m_document.document(), 0);
        m_text += m_lineEnd;
        return std::move(m_text);
    }

private:
    /// Those that formatting writes. What stands in texts and comments stays, and so must not have a say: it would have
    /// another weight the next time.
    void countLineEnds(SourceNode parent)
    {
        for (const SourceNode child : parent.children()) {
            if (child.isElement() && isLaidOut(m_document, child))
                countLineEnds(child);
            if (!isBlankText(m_document, child))
                continue;
            const std::string_view blanks = m_document.source(child.range());
            for (std::size_t at = 0; at < blanks.size(); ++at) {
                const bool isPair = blanks.substr(at, 2) == "\r\n";
                if (isPair)
                    ++m_lineEndCounts[static_cast<std::size_t>(LineEnd::CarriageReturnLineFeed)];
                else if (blanks[at] == '\n')
                    ++m_lineEndCounts[static_cast<std::size_t>(LineEnd::LineFeed)];
                else if (blanks[at] == '\r')
                    ++m_lineEndCounts[static_cast<std::size_t>(LineEnd::CarriageReturn)];
                at += isPair ? 1U : 0U;
            }
        }
    }

    void writeChildren(SourceNode parent, std::size_t level)
    {
        SourceNode previous;
        std::size_t lineEnds = 0;
        for (const SourceNode child : parent.children()) {
            if (isBlankText(m_document, child)) {
                lineEnds = lineEndsIn(m_document.source(child.range()));
                continue;
            }
            const bool isRemark = child.kind() == NodeKind::Comment && lineEnds == 0 &&
                                  (previous.isElement() || previous.kind() == NodeKind::Comment);
            if (isRemark)
                m_text += ' ';
            else if (previous || parent.isElement())
                beginLine(level, previous && lineEnds > 1);
            write(child, level);
            previous = child;
            lineEnds = 0;
        }
    }

    void beginLine(std::size_t level, bool isBehindEmptyLine)
    {
        m_text += m_lineEnd;
        if (isBehindEmptyLine)
            m_text += m_lineEnd;
        m_text.append(level * k_indentation, ' ');
    }

    void write(SourceNode node, std::size_t level)
    {
        if (!node.isElement()) {
            m_text += m_document.source(node.range());
            return;
        }
        writeStartTag(node);
        if (node.isEmptyTag())
            return;
        const bool isLaidOutHere = isLaidOut(m_document, node);
        const bool hasMarkup = isLaidOutHere && hasMoreThanText(node);
        if (hasMarkup) {
            writeChildren(node, level + 1);
            beginLine(level, false);
        } else if (!isLaidOutHere || !isKnownContainer(node)) {
            m_text += m_document.source(node.contentRange());
        }
        ((m_text += "</") += node.name()) += '>';
    }

    static bool hasMoreThanText(SourceNode element)
    {
        for (const SourceNode child : element.children()) {
            if (child.kind() != NodeKind::Text)
                return true;
        }
        return false;
    }

    /// Of what is no such, white space may be the text.
    bool isKnownContainer(SourceNode element) const
    {
        const ElementEntry* const entry = m_outline.entry(element);
        return entry && entry->text == ValueKind::None;
    }

    void writeStartTag(SourceNode element)
    {
        (m_text += '<') += element.name();
        for (const SourceAttribute attribute : orderedAttributes(element)) {
            ((m_text += ' ') += attribute.name()) += '=';
            ((m_text += attribute.quote()) += m_document.source(attribute.valueRange())) += attribute.quote();
        }
        m_text += element.isEmptyTag() ? "/>" : ">";
    }

    std::vector<SourceAttribute> orderedAttributes(SourceNode element) const
    {
        std::vector<SourceAttribute> attributes;
        std::set<std::string_view> localNames;
        for (const SourceAttribute attribute : element.attributes()) {
            attributes.push_back(attribute);
            localNames.insert(attribute.localName());
        }
        const ElementEntry* const entry = m_outline.entry(element);
        // Readers do not look at prefixes: of two attributes with one name, one comes first.
        if (!entry || localNames.size() < attributes.size())
            return attributes;
        const auto rank = [entry](SourceAttribute attribute) {
            const AttributeEntry* const known = entry->attribute(attribute.name());
            return known ? known - entry->attributes.data() : static_cast<std::ptrdiff_t>(entry->attributes.size());
        };
        std::stable_sort(attributes.begin(), attributes.end(),
                         [&](SourceAttribute left, SourceAttribute right) { return rank(left) < rank(right); });
        return attributes;
    }

    const SourceDocument& m_document;
    Outline m_outline;
    std::array<std::size_t, 3> m_lineEndCounts{};
    std::string_view m_lineEnd;
    std::string m_text;
};

} // namespace

std::string formatted(const SourceDocument& document)
{
    if (!document.isWellFormed())
        return document.text();
    const TextEdit whole = {document.document().contentRange(), Formatter(document).text()};
    return applyEdits(document, {whole}).value_or(document.text());
}

} // namespace zu::authoring
