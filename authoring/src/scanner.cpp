#include "scanner.hpp"

#include "characters.hpp"
#include "limits.hpp"
#include "values.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::NodeKind;

std::string quoted(std::string_view name)
{
    constexpr std::size_t k_longest = 80;
    if (name.size() <= k_longest)
        return '\'' + std::string(name) + '\'';
    std::size_t end = k_longest;
    while ((static_cast<unsigned char>(name[end]) & 0xC0) == 0x80)
        --end;
    return '\'' + std::string(name.substr(0, end)) + "...'";
}

Scanner::Scanner(zu::authoring::SourceTree& tree, const std::vector<TextSpan>& invalid)
    : m_tree(tree), m_text(tree.utf8()),
      m_at(m_text.substr(0, k_byteOrderMarkSize) == k_byteOrderMark ? k_byteOrderMarkSize : 0)
{
    const auto tags = static_cast<std::size_t>(std::count(m_text.begin(), m_text.end(), '<'));
    // Each can have a text behind it.
    m_tree.nodes.reserve(2 * tags + 1);
    NodeRecord document;
    document.kind = NodeKind::Document;
    document.range = span(0, m_text.size());
    document.content = span(m_at, m_at);
    m_tree.nodes.push_back(document);
    m_open.push_back({0});
    for (const TextSpan where : invalid)
        add("bytes that are not " + tree.encoding.name, where, Kind::Encoding);
}

void Scanner::run()
{
    if (isAt("<?xml") && isOf(Blank, byte(m_at + 5)) && !scanXmlDeclaration()) {
        finish();
        return;
    }
    while (m_at < m_text.size() && scanNode()) {
    }
    finish();
}

bool Scanner::scanNode() { return byte(m_at) == '<' ? scanMarkup() : scanText(); }

bool Scanner::scanMarkup()
{
    switch (byte(m_at + 1)) {
    case '/':
        return scanEndTag();
    case '?':
        return scanInstruction();
    case '!':
        if (isAt("<!--"))
            return scanComment();
        if (isAt("<![CDATA["))
            return scanCData();
        if (isAt("<!DOCTYPE"))
            return scanDocumentType();
        return fail("'<!' begins neither a comment nor a CDATA section", span(m_at, m_at + 2));
    default:
        return scanStartTag();
    }
}

bool Scanner::scanText()
{
    const std::size_t begin = m_at;
    bool isPlain = true;
    Reference reference;
    while (byte(m_at) != '<' && m_at < m_text.size()) {
        if (!isOf(StopsText, byte(m_at))) {
            ++m_at;
            continue;
        }
        isPlain = isPlain && byte(m_at) != '\r' && byte(m_at) != '&';
        if (byte(m_at) != '&') {
            m_at = passUnusual(m_at);
            continue;
        }
        reference = referenceAt(m_at, m_text);
        if (reference.kind == ReferenceKind::Entity)
            break;
        checkReference(reference, m_at);
        m_at = reference.end;
    }
    const TextSpan text = span(begin, m_at);
    if (!isInRoot() && afterBlanks(begin, m_text) < m_at)
        add("text outside the root element", text);
    if (!text.isEmpty()) {
        NodeRecord node;
        node.kind = NodeKind::Text;
        node.range = node.content = text;
        if (!isPlain) {
            node.value.begin = static_cast<std::uint32_t>(m_tree.decodedValues.size());
            appendText(textIn(text, m_text), m_tree.decodedValues);
            node.value.end = static_cast<std::uint32_t>(m_tree.decodedValues.size());
        }
        addNode(node);
    }
    if (reference.kind == ReferenceKind::Entity)
        scanEntityReference(reference);
    return true;
}

void Scanner::scanEntityReference(const Reference& reference)
{
    NodeRecord node;
    node.kind = NodeKind::EntityReference;
    node.range = node.content = span(m_at, reference.end);
    node.name = span(m_at + 1, reference.end - 1);
    checkReference(reference, m_at);
    if (!isInRoot())
        add("a reference outside the root element", node.range);
    node.value.begin = static_cast<std::uint32_t>(m_tree.decodedValues.size());
    m_entities.expand(reference.name, false, m_tree.decodedValues);
    node.value.end = static_cast<std::uint32_t>(m_tree.decodedValues.size());
    checkExpansion(node.range);
    addNode(node);
    m_at = reference.end;
}

bool Scanner::scanComment()
{
    constexpr std::size_t k_open = 4; // <!--
    std::size_t dashes = m_text.find("--", m_at + k_open);
    const std::size_t first = dashes;
    while (dashes != std::string_view::npos && byte(dashes + 2) != '>')
        dashes = m_text.find("--", dashes + 1);
    if (dashes == std::string_view::npos)
        return fail("a comment without an end", span(m_at, m_at + k_open));
    if (dashes != first)
        add("'--' within a comment", span(first, first + 2));
    NodeRecord node;
    node.kind = NodeKind::Comment;
    node.range = span(m_at, dashes + 3);
    node.content = span(m_at + k_open, dashes);
    setLines(node);
    addNode(node);
    m_at = node.range.end;
    return true;
}

bool Scanner::scanCData()
{
    constexpr std::size_t k_open = 9; // <![CDATA[
    const std::size_t end = m_text.find("]]>", m_at + k_open);
    if (end == std::string_view::npos)
        return fail("a CDATA section without an end", span(m_at, m_at + k_open));
    NodeRecord node;
    node.kind = NodeKind::CData;
    node.range = span(m_at, end + 3);
    node.content = span(m_at + k_open, end);
    if (!isInRoot())
        add("a CDATA section outside the root element", node.range);
    setLines(node);
    addNode(node);
    m_at = node.range.end;
    return true;
}

bool Scanner::scanInstruction()
{
    const std::size_t target = m_at + 2;
    const std::size_t targetEnd = nameEnd(target, m_text);
    const std::size_t end = m_text.find("?>", targetEnd);
    if (targetEnd == target)
        return fail("a processing instruction without a name", span(m_at, target));
    if (end == std::string_view::npos)
        return fail("a processing instruction without an end", span(m_at, targetEnd));
    NodeRecord node;
    node.kind = NodeKind::ProcessingInstruction;
    node.range = span(m_at, end + 2);
    node.name = span(target, targetEnd);
    node.content = span(std::min(afterBlanks(targetEnd, m_text), end), end);
    const std::string_view name = textIn(node.name, m_text);
    const auto isLetter = [name](std::size_t i, char lower) { return (name[i] | 0x20) == lower; };
    if (name.size() == 3 && isLetter(0, 'x') && isLetter(1, 'm') && isLetter(2, 'l'))
        add("an XML declaration can stand at the very beginning alone, and in lower case", node.range);
    else if (targetEnd < end && !isOf(Blank, byte(targetEnd)))
        add("white space is missing behind the name of a processing instruction", span(targetEnd, targetEnd));
    else if (name.find(':') != std::string_view::npos)
        add("a colon in the name of a processing instruction", node.name, Kind::Namespace);
    setLines(node);
    addNode(node);
    m_at = node.range.end;
    return true;
}

void Scanner::finish()
{
    m_tree.isComplete = m_at == m_text.size();
    if (m_tree.isComplete && isInRoot()) {
        const NodeRecord& element = m_tree.nodes[m_open.back().node];
        add("the element " + quoted(textIn(element.name, m_text)) + " of line " +
                std::to_string(m_tree.places.place(element.range.begin, m_text).line) + " has no end tag",
            span(m_at, m_at));
    } else if (m_tree.isComplete && !m_hasRoot) {
        add("the document has no root element", span(m_at, m_at));
    }
    while (isInRoot())
        closeElement(m_at, m_at);
    m_tree.nodes.front().content.end = static_cast<std::uint32_t>(m_at);
    if (m_strictReader != nullptr && m_findings.areEmpty())
        checkRest();
    m_tree.errors = m_findings.errorsOf(m_tree);
}

std::uint32_t Scanner::addNode(NodeRecord record)
{
    const auto number = static_cast<std::uint32_t>(m_tree.nodes.size());
    OpenNode& parent = m_open.back();
    record.parent = parent.node;
    if (parent.lastChild != 0)
        m_tree.nodes[parent.lastChild].next = number;
    parent.lastChild = number;
    m_tree.nodes.push_back(record);
    return number;
}

} // namespace zupackage::authoring
