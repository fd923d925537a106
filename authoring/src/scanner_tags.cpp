#include "characters.hpp"
#include "limits.hpp"
#include "scanner.hpp"
#include "values.hpp"

namespace zupackage::authoring {

using zu::authoring::NodeKind;

bool Scanner::scanStartTag()
{
    const std::size_t begin = m_at;
    std::size_t at = nameEnd(begin + 1, m_text);
    if (at == begin + 1)
        return fail("'<' begins no tag; a bare one is written as '&lt;'", span(begin, begin + 1));
    if (m_open.size() > limits::k_levels)
        return fail("elements nested deeper than " + std::to_string(limits::k_levels) + " levels", span(begin, at),
                    Kind::Limit);
    NodeRecord element;
    element.kind = NodeKind::Element;
    element.name = span(begin + 1, at);
    element.firstAttribute = static_cast<std::uint32_t>(m_tree.attributes.size());
    if (!scanAttributes(begin, element, at)) {
        m_tree.attributes.resize(element.firstAttribute);
        return false;
    }
    element.isEmptyTag = byte(at) == '/';
    const std::size_t end = at + (element.isEmptyTag ? 2 : 1);
    element.range = span(begin, end);
    element.content = span(end, end);
    if (!isInRoot() && m_hasRoot)
        add("a second root element", span(begin, element.name.end));
    m_hasRoot = true;
    m_at = end;
    const std::uint32_t number = addNode(element);
    if (element.isEmptyTag)
        m_namespaces.leave(m_open.size());
    else
        m_open.push_back({number});
    return true;
}

/// @param at from behind the name to the end of the tag, `>` or `/>`.
bool Scanner::scanAttributes(std::size_t begin, NodeRecord& element, std::size_t& at)
{
    bool hasNamespaces = textIn(element.name, m_text).find(':') != std::string_view::npos;
    for (;;) {
        const std::size_t next = afterBlanks(at, m_text);
        const char c = byte(next);
        if (c == '>' || (c == '/' && byte(next + 1) == '>')) {
            at = next;
            break;
        }
        if (next == m_text.size())
            return fail("a tag without an end", span(begin, element.name.end));
        const std::size_t number = m_tree.attributes.size();
        const std::size_t blanks = next - at;
        at = next;
        if (!scanAttribute(begin, at))
            return false;
        const TextSpan name = m_tree.attributes[number].name;
        if (blanks == 0)
            add("white space is missing before an attribute", name);
        const std::string_view text = textIn(name, m_text);
        hasNamespaces = hasNamespaces || text == "xmlns" || text.find(':') != std::string_view::npos;
    }
    element.attributeCount = static_cast<std::uint32_t>(m_tree.attributes.size()) - element.firstAttribute;
    checkAttributes(element);
    if (hasNamespaces)
        checkNamespaces(element);
    if (m_hasDocumentType)
        countSteps(element);
    return true;
}

bool Scanner::scanAttribute(std::size_t begin, std::size_t& at)
{
    AttributeRecord attribute;
    const std::size_t end = nameEnd(at, m_text);
    attribute.name = span(at, end);
    if (end == at)
        return fail("this cannot stand in a tag", span(at, at + characterAt(at, m_text).size));
    const std::size_t equals = afterBlanks(end, m_text);
    if (byte(equals) != '=')
        return fail("the attribute " + quoted(textIn(attribute.name, m_text)) + " has no value", attribute.name);
    at = afterBlanks(equals + 1, m_text);
    if (byte(at) != '"' && byte(at) != '\'')
        return fail("the value of the attribute " + quoted(textIn(attribute.name, m_text)) + " is not in quotes",
                    span(at, at));
    if (!scanValue(begin, at, attribute))
        return false;
    m_tree.attributes.push_back(attribute);
    return true;
}

/// @param at from the opening quote to behind the closing one.
bool Scanner::scanValue(std::size_t begin, std::size_t& at, AttributeRecord& attribute)
{
    const std::size_t open = at++;
    bool isPlain = true;
    while (byte(at) != byte(open)) {
        const char c = byte(at);
        if (!isOf(StopsValue, c) || c == '"' || c == '\'') {
            ++at;
        } else if (at == m_text.size()) {
            return fail("the value of the attribute " + quoted(textIn(attribute.name, m_text)) + " has no end",
                        span(begin, open + 1));
        } else if (c == '<') {
            const char next = byte(at + 1);
            // What looks like markup shows that a quote is missing, and nobody knows where.
            if (isOf(BeginsName, next) || next == '/' || next == '!' || next == '?')
                return fail("markup in the value of the attribute " + quoted(textIn(attribute.name, m_text)) +
                                "; a quote may be missing",
                            span(at, at + 1));
            add("'<' in the value of an attribute; it is written as '&lt;'", span(at, at + 1));
            ++at;
        } else if (c == '&') {
            const Reference reference = referenceAt(at, m_text);
            checkReference(reference, at);
            isPlain = false;
            at = reference.end;
        } else {
            isPlain = isPlain && !isOf(Blank, c);
            at = isOf(Blank, c) ? at + 1 : passUnusual(at);
        }
    }
    attribute.content = span(open + 1, at);
    ++at;
    if (!isPlain)
        setValue(attribute);
    return true;
}

void Scanner::setValue(AttributeRecord& attribute)
{
    attribute.value.begin = static_cast<std::uint32_t>(m_tree.decodedValues.size());
    if (!appendAttribute(textIn(attribute.content, m_text), m_entities, m_tree.decodedValues))
        add("an entity with markup in the value of an attribute", attribute.content);
    attribute.value.end = static_cast<std::uint32_t>(m_tree.decodedValues.size());
    checkExpansion(attribute.content);
}

bool Scanner::scanEndTag()
{
    const std::size_t end = nameEnd(m_at + 2, m_text);
    const std::size_t close = afterBlanks(end, m_text);
    const std::string_view name = m_text.substr(m_at + 2, end - m_at - 2);
    if (name.empty() || byte(close) != '>')
        return fail("an end tag that is none", span(m_at, end));
    if (!isInRoot())
        return fail("an end tag without a start tag", span(m_at, close + 1));
    const NodeRecord& element = m_tree.nodes[m_open.back().node];
    if (textIn(element.name, m_text) != name)
        return fail("the end tag " + quoted(name) + " where the element " + quoted(textIn(element.name, m_text)) +
                        " of line " + std::to_string(m_tree.places.place(element.range.begin, m_text).line) +
                        " is open",
                    span(m_at, close + 1));
    closeElement(m_at, close + 1);
    m_at = close + 1;
    return true;
}

void Scanner::closeElement(std::size_t contentEnd, std::size_t end)
{
    NodeRecord& element = m_tree.nodes[m_open.back().node];
    element.content.end = static_cast<std::uint32_t>(contentEnd);
    element.range.end = static_cast<std::uint32_t>(end);
    m_open.pop_back();
    m_namespaces.leave(m_open.size());
}

} // namespace zupackage::authoring
