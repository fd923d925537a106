#include "characters.hpp"
#include "limits.hpp"
#include "scanner.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::NodeKind;

namespace {

bool isEncodingName(std::string_view name)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
    });
}

/// Where the document type ends that begins there; npos when it does not.
std::size_t documentTypeEnd(std::size_t begin, std::string_view text)
{
    constexpr std::size_t k_open = 9; // <!DOCTYPE
    const auto after = [text](std::string_view what, std::size_t at) {
        const std::size_t found = text.find(what, at);
        return found == std::string_view::npos ? found : found + what.size();
    };
    int declarations = 0;
    bool isInSubset = false;
    for (std::size_t at = begin + k_open; at < text.size();) {
        const char c = text[at];
        if (c == '"' || c == '\'') {
            at = after({&c, 1}, at + 1);
        } else if (text.compare(at, 4, "<!--") == 0) {
            at = after("-->", at + 4);
        } else if (text.compare(at, 2, "<?") == 0) {
            at = after("?>", at + 2);
        } else if (c == '>' && declarations == 0 && !isInSubset) {
            return at + 1;
        } else {
            declarations += c == '<' ? 1 : c == '>' && declarations > 0 ? -1 : 0;
            isInSubset = c == '[' || (isInSubset && c != ']');
            ++at;
        }
    }
    return std::string_view::npos;
}

/// What readers could take long for in a document type.
struct Declarations
{
    std::size_t multiplying = 0; ///< references that could multiply each other
    std::size_t parameters = 0;  ///< references to parameter entities
    std::size_t attributes = 0;  ///< at most as many are declared
};

Declarations counted(std::string_view documentType)
{
    constexpr std::size_t k_smallestAttribute = 8;
    Declarations counted;
    std::size_t quotes = 0;
    std::size_t hashes = 0;
    for (std::size_t at = documentType.find_first_of("&%#'\""); at != std::string_view::npos;
         at = documentType.find_first_of("&%#'\"", at + 1)) {
        const char c = documentType[at];
        const bool isNamed = nameEnd(at + 1, documentType) > at + 1;
        if (c == '#')
            ++hashes;
        else if (c == '%')
            counted.parameters += isNamed ? 1 : 0;
        else if (c != '&')
            ++quotes;
        else if (const Reference reference = referenceAt(at, documentType);
                 isNamed || reference.codePoint == '&' || reference.codePoint == '%')
            ++counted.multiplying;
    }
    if (counted.parameters == 0 && documentType.find("<!ATTLIST") == std::string_view::npos)
        return counted;
    // Each has a default, in quotes or by a word behind a hash; each parameter entity can hold some.
    const std::size_t written = hashes + quotes / 2;
    counted.attributes = written + counted.parameters * std::min<std::size_t>(written, limits::k_parameterExpansion /
                                                                                           k_smallestAttribute);
    return counted;
}

} // namespace

bool Scanner::scanXmlDeclaration()
{
    constexpr std::size_t k_open = 5; // <?xml
    const std::size_t end = m_text.find("?>", m_at + k_open);
    if (end == std::string_view::npos)
        return fail("an XML declaration without an end", span(m_at, m_at + k_open));
    NodeRecord declaration;
    declaration.kind = NodeKind::XmlDeclaration;
    declaration.range = span(m_at, end + 2);
    declaration.name = span(m_at + 2, m_at + k_open);
    declaration.content = span(m_at + k_open, end);
    const std::size_t read = scanDeclarationParts(m_at + k_open, end);
    declaration.attributeCount = static_cast<std::uint32_t>(m_tree.attributes.size());
    addNode(declaration);
    if (read < end)
        add("this cannot stand in an XML declaration", span(read, end));
    else
        checkXmlDeclaration(declaration);
    m_at = end + 2;
    return true;
}

/// @return the end, or where something else begins.
std::size_t Scanner::scanDeclarationParts(std::size_t at, std::size_t end)
{
    const std::string_view text = m_text.substr(0, end);
    for (;;) {
        const std::size_t begin = afterBlanks(at, text);
        if (begin == end)
            return end;
        AttributeRecord part;
        part.name = span(begin, nameEnd(begin, text));
        const std::size_t equals = afterBlanks(part.name.end, text);
        const std::size_t open = equals < end && text[equals] == '=' ? afterBlanks(equals + 1, text) : end;
        if (begin == at || part.name.isEmpty() || open == end || (text[open] != '"' && text[open] != '\''))
            return begin;
        const std::size_t close = text.find(text[open], open + 1);
        if (close == std::string_view::npos)
            return begin;
        part.content = span(open + 1, close);
        m_tree.attributes.push_back(part);
        at = close + 1;
    }
}

void Scanner::checkXmlDeclaration(const NodeRecord& declaration)
{
    constexpr std::string_view k_names[] = {"version", "encoding", "standalone"};
    std::size_t place = 0;
    for (const AttributeRecord& part : m_tree.attributes) {
        const std::string_view name = textIn(part.name, m_text);
        const std::string_view content = textIn(part.content, m_text);
        while (place < std::size(k_names) && k_names[place] != name)
            ++place;
        if (place == std::size(k_names)) {
            add(quoted(name) + " has no place here in an XML declaration", part.name);
            return;
        }
        if (name == "version" && content != "1.0")
            add("the version of XML is 1.0", part.content);
        else if (name == "encoding")
            checkDeclaredEncoding(part);
        else if (name == "standalone" && content != "yes" && content != "no")
            add("'standalone' is 'yes' or 'no'", part.content);
        ++place;
    }
    if (m_tree.attributes.empty() || textIn(m_tree.attributes.front().name, m_text) != k_names[0])
        add("an XML declaration without a version", declaration.name);
}

void Scanner::checkDeclaredEncoding(const AttributeRecord& attribute)
{
    const std::string_view name = textIn(attribute.content, m_text);
    if (!isEncodingName(name))
        add(quoted(name) + " is no name of an encoding", attribute.content);
    else if (m_tree.encoding.isUnknown)
        add("the encoding " + quoted(name) + " is not known", attribute.content, Kind::Encoding);
    else if (!agrees(m_tree.encoding, name))
        add("the document is in " + m_tree.encoding.name + ", not in " + quoted(name), attribute.content,
            Kind::Encoding);
}

bool Scanner::scanDocumentType()
{
    constexpr std::size_t k_open = 9; // <!DOCTYPE
    const std::size_t end = documentTypeEnd(m_at, m_text);
    const std::size_t name = afterBlanks(m_at + k_open, m_text);
    if (end == std::string_view::npos)
        return fail("a document type without an end", span(m_at, m_at + k_open));
    NodeRecord node;
    node.kind = NodeKind::DocumentType;
    node.range = span(m_at, end);
    node.name = span(name, nameEnd(name, m_text));
    node.content = span(node.name.end, end - 1);
    if (m_hasRoot || m_hasDocumentType || isInRoot())
        add("a document type can stand once alone, before the root element", node.range);
    else
        readDocumentType(node.range);
    m_hasDocumentType = true;
    addNode(node);
    m_at = end;
    return true;
}

void Scanner::readDocumentType(TextSpan span)
{
    const Declarations declarations = counted(textIn(span, m_text));
    if (declarations.multiplying > limits::k_multiplyingReferences ||
        declarations.parameters > limits::k_parameterReferences) {
        add("more references in a document type than are read", span, Kind::Limit);
        return;
    }
    if (declarations.attributes > limits::k_declaredAttributes) {
        add("more attributes declared in a document type than are read", span, Kind::Limit);
        return;
    }
    m_declaredAttributes = declarations.attributes;
    // It would stop where an error has been found.
    if (!m_findings.areEmpty())
        return;
    const std::size_t begin = m_tree.nodes.front().content.begin;
    m_strictReader = std::make_unique<StrictReader>(m_text.substr(begin));
    if (const auto failure = m_strictReader->readDocumentType()) {
        const auto at = std::min<std::size_t>(begin + failure->at, span.end);
        add(failure->message, authoring::span(at, at));
        m_strictReader.reset();
        return;
    }
    m_strictReader->declare(m_entities);
}

/// What the strict reader takes for an element beyond reading its characters: it compares each attribute with each
/// other and with those that are declared, and each prefix with those in scope.
void Scanner::countSteps(const NodeRecord& element)
{
    constexpr std::size_t k_charactersInAStep = 16;
    const std::size_t count = element.attributeCount;
    const std::size_t characters = element.range.end - element.range.begin;
    m_steps += count * (count + characters / k_charactersInAStep) + (count + 1) * m_declaredAttributes +
               (count + 1) * m_namespaces.inScope();
}

void Scanner::checkExpansion(TextSpan where)
{
    if (m_entities.areTooLarge() && !m_isExpansionTold) {
        add("entities expand to more than " + std::to_string(limits::k_expandedEntitiesMiB) + " MiB", where,
            Kind::Limit);
        m_isExpansionTold = true;
    }
}

void Scanner::checkRest()
{
    if (m_steps > limits::k_steps) {
        add("more attributes and namespaces behind a document type than are read", m_tree.nodes.front().content,
            Kind::Limit);
        return;
    }
    if (const auto failure = m_strictReader->readRest()) {
        const std::size_t at = std::min(m_tree.nodes.front().content.begin + failure->at, m_text.size());
        add(failure->message, span(at, at));
    }
}

} // namespace zupackage::authoring
