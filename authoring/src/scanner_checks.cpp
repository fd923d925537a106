#include "characters.hpp"
#include "limits.hpp"
#include "scanner.hpp"
#include "values.hpp"

#include <algorithm>

namespace zupackage::authoring {

namespace {

std::string hexadecimal(char32_t codePoint)
{
    std::string digits;
    for (; codePoint != 0 || digits.size() < 4; codePoint /= 16)
        digits.insert(digits.begin(), "0123456789ABCDEF"[codePoint % 16]);
    return digits;
}

} // namespace

void Scanner::add(std::string message, TextSpan where, Kind kind) { m_findings.add(kind, std::move(message), where); }

bool Scanner::fail(std::string message, TextSpan where, Kind kind)
{
    m_findings.addLast(kind, std::move(message), where);
    return false;
}

void Scanner::checkReference(const Reference& reference, std::size_t at)
{
    const TextSpan where = span(at, reference.end);
    switch (reference.kind) {
    case ReferenceKind::Broken:
        add("'&' begins no reference; a bare one is written as '&amp;'", where);
        break;
    case ReferenceKind::Character:
        break;
    case ReferenceKind::Forbidden:
        add("a reference to a character that XML cannot carry", where);
        break;
    case ReferenceKind::Entity:
        // With a document type, the strict reader knows better.
        if (!m_hasDocumentType)
            add("the entity " + quoted(reference.name) + " is not declared", where);
        break;
    }
}

/// Passes a byte that stops a text, or the character that it begins.
std::size_t Scanner::passUnusual(std::size_t at)
{
    const char c = byte(at);
    if (c == ']') {
        if (m_text.compare(at, 3, "]]>") == 0)
            add("']]>' in a text; it is written as ']]&gt;'", span(at, at + 3));
        return at + 1;
    }
    const Character character = characterAt(at, m_text);
    if (!isAllowed(character.codePoint))
        add("the character U+" + hexadecimal(character.codePoint) + " cannot stand in XML",
            span(at, at + character.size));
    return at + character.size;
}

void Scanner::checkCharacters(TextSpan span)
{
    for (std::size_t at = span.begin; at < span.end;)
        at = isOf(StopsText, byte(at)) && byte(at) != ']' ? passUnusual(at) : at + 1;
}

/// What is no text has no references, but line ends and characters.
void Scanner::setLines(NodeRecord& node)
{
    checkCharacters(node.content);
    const std::string_view content = textIn(node.content, m_text);
    if (content.find('\r') == std::string_view::npos)
        return;
    node.value.begin = static_cast<std::uint32_t>(m_tree.decodedValues.size());
    appendLines(content, m_tree.decodedValues);
    node.value.end = static_cast<std::uint32_t>(m_tree.decodedValues.size());
}

std::string_view Scanner::value(const AttributeRecord& attribute) const
{
    return isAsItStands(attribute.value) ? textIn(attribute.content, m_text)
                                         : textIn(attribute.value, m_tree.decodedValues);
}

void Scanner::addRepeated(TextSpan name)
{
    add("the attribute " + quoted(textIn(name, m_text)) + " is there already", name);
}

void Scanner::checkAttributes(const NodeRecord& element)
{
    constexpr std::size_t k_few = 8;
    const auto first = m_tree.attributes.begin() + element.firstAttribute;
    const auto name = [this](const AttributeRecord& attribute) { return textIn(attribute.name, m_text); };
    if (element.attributeCount <= k_few) {
        for (auto later = first; later != m_tree.attributes.end(); ++later)
            if (std::any_of(first, later, [&](const AttributeRecord& one) { return name(one) == name(*later); }))
                addRepeated(later->name);
        return;
    }
    std::vector<AttributeRecord> sorted(first, m_tree.attributes.end());
    std::stable_sort(sorted.begin(), sorted.end(), [&](const AttributeRecord& left, const AttributeRecord& right) {
        return name(left) < name(right);
    });
    for (std::size_t i = 1; i < sorted.size(); ++i)
        if (name(sorted[i - 1]) == name(sorted[i]))
            addRepeated(sorted[i].name);
}

/// Of an element with a colon in a name, or a declaration of a namespace.
void Scanner::checkNamespaces(const NodeRecord& element)
{
    constexpr std::string_view k_declaration = "xmlns";
    std::vector<TextSpan> names = {element.name};
    for (std::size_t i = element.firstAttribute; i < m_tree.attributes.size(); ++i) {
        const AttributeRecord& attribute = m_tree.attributes[i];
        const std::string_view name = textIn(attribute.name, m_text);
        const bool isPrefixed = name.substr(0, k_declaration.size() + 1) == "xmlns:";
        if (name != k_declaration && !isPrefixed) {
            names.push_back(attribute.name);
            continue;
        }
        const std::string_view prefix = isPrefixed ? name.substr(k_declaration.size() + 1) : std::string_view();
        if ((isPrefixed && (prefix.empty() || prefix.find(':') != std::string_view::npos)) ||
            !Namespaces::isLegal(prefix, value(attribute)))
            add("a declaration of a namespace that is not allowed",
                span(attribute.name.begin, attribute.content.end + 1), Kind::Namespace);
        m_namespaces.declare(prefix, value(attribute), m_open.size());
    }
    for (const TextSpan name : names)
        checkPrefix(name);
    checkExpandedNames(element);
}

void Scanner::checkPrefix(TextSpan name)
{
    const std::string_view text = textIn(name, m_text);
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return;
    const std::string_view local = text.substr(colon + 1);
    if (colon == 0 || local.find(':') != std::string_view::npos || local.empty() || nameEnd(0, local) != local.size())
        add(quoted(text) + " is no name with a prefix", name, Kind::Namespace);
    // A document type can declare it, too.
    else if (!m_hasDocumentType && !m_namespaces.uri(text.substr(0, colon)))
        add("the namespace prefix " + quoted(text.substr(0, colon)) + " is not declared", name, Kind::Namespace);
}

/// Attributes of one name in one namespace, by way of two prefixes.
void Scanner::checkExpandedNames(const NodeRecord& element)
{
    struct Expanded
    {
        std::string_view uri;
        std::string_view local;
        TextSpan name;
    };
    const auto key = [](const Expanded& name) { return std::tie(name.uri, name.local); };
    std::vector<Expanded> names;
    for (std::size_t i = element.firstAttribute; i < m_tree.attributes.size(); ++i) {
        const TextSpan span = m_tree.attributes[i].name;
        const std::string_view name = textIn(span, m_text);
        const std::size_t colon = std::min(name.find(':'), name.size());
        const auto uri = colon == name.size() ? std::nullopt : m_namespaces.uri(name.substr(0, colon));
        if (uri)
            names.push_back({*uri, name.substr(colon + 1), span});
    }
    std::stable_sort(names.begin(), names.end(),
                     [&](const Expanded& left, const Expanded& right) { return key(left) < key(right); });
    for (std::size_t i = 1; i < names.size(); ++i)
        if (key(names[i - 1]) == key(names[i]) && textIn(names[i - 1].name, m_text) != textIn(names[i].name, m_text))
            addRepeated(names[i].name);
}

} // namespace zupackage::authoring
