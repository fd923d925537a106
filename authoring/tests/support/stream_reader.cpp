#include "support/stream_reader.hpp"

#include <QtCore/QXmlStreamReader>

#include <algorithm>

namespace zu::test {

using authoring::ByteRange;
using authoring::NodeKind;
using authoring::SourceAttribute;
using authoring::SourceDocument;
using authoring::SourceNode;

namespace {

/// Collects what a document says, a line each.
class Tokens
{
public:
    /// Forgets what came before it.
    void addDocumentType(bool declaresAttributes)
    {
        *this = Tokens();
        m_declaresAttributes = declaresAttributes;
    }
    void addAttribute(const std::string& name, const std::string& value)
    {
        add("attribute " + name + " = " +
            (m_declaresAttributes ? QString::fromStdString(value).simplified().toStdString() : value));
    }
    void add(const std::string& what)
    {
        endText();
        m_lines += what + '\n';
    }
    void addText(std::string_view text) { m_text += text; }
    std::string lines()
    {
        endText();
        return m_lines;
    }

private:
    void endText()
    {
        if (!m_text.empty())
            m_lines += "text " + m_text + '\n';
        m_text.clear();
    }

    std::string m_lines;
    std::string m_text;
    bool m_declaresAttributes = false;
};

bool declaresAttributes(std::string_view documentType)
{
    return documentType.find("<!ATTLIST") != std::string_view::npos;
}

std::string text(const QStringRef& text) { return text.toString().toStdString(); }

void addToken(const QXmlStreamReader& reader, bool isInRoot, Tokens& tokens)
{
    if (reader.isStartElement()) {
        tokens.add("start " + text(reader.qualifiedName()));
        // Declarations of namespaces are none of its attributes; those of defaults are.
        for (const QXmlStreamAttribute& attribute : reader.attributes())
            if (!attribute.isDefault())
                tokens.addAttribute(text(attribute.qualifiedName()), text(attribute.value()));
    } else if (reader.isDTD()) {
        tokens.addDocumentType(declaresAttributes(text(reader.text())));
    } else if (reader.isEndElement()) {
        tokens.add("end");
    } else if (reader.isCharacters() && isInRoot) {
        tokens.addText(text(reader.text()));
    } else if (reader.isComment()) {
        tokens.add("comment " + text(reader.text()));
    } else if (reader.isProcessingInstruction()) {
        tokens.add("instruction " + text(reader.processingInstructionTarget()) + ' ' +
                   text(reader.processingInstructionData()));
    }
}

bool isNamespaceDeclaration(SourceAttribute attribute)
{
    return attribute.name() == "xmlns" || attribute.prefix() == "xmlns";
}

void addStart(SourceNode node, Tokens& tokens)
{
    tokens.add("start " + std::string(node.name()));
    for (const SourceAttribute attribute : node.attributes())
        if (!isNamespaceDeclaration(attribute))
            tokens.addAttribute(std::string(attribute.name()), std::string(attribute.value()));
}

void addNode(SourceNode node, const SourceDocument& document, Tokens& tokens)
{
    switch (node.kind()) {
    case NodeKind::Element:
        addStart(node, tokens);
        break;
    case NodeKind::Text:
    case NodeKind::CData:
    case NodeKind::EntityReference:
        if (node.parent().isElement())
            tokens.addText(node.value());
        break;
    case NodeKind::Comment:
        tokens.add("comment " + std::string(node.value()));
        break;
    case NodeKind::ProcessingInstruction:
        tokens.add("instruction " + std::string(node.name()) + ' ' + std::string(node.value()));
        break;
    case NodeKind::DocumentType:
        tokens.addDocumentType(declaresAttributes(document.source(node.range())));
        break;
    case NodeKind::None:
    case NodeKind::Document:
    case NodeKind::XmlDeclaration:
        break;
    }
}

std::string faultInAttributes(SourceNode node, const SourceDocument& document)
{
    std::size_t end = node.range().begin;
    for (const SourceAttribute attribute : node.attributes()) {
        const ByteRange range = attribute.range();
        if (range.begin < end || !range.contains(attribute.valueRange()) || !node.range().contains(range))
            return "the range of attribute " + attribute.path();
        if (document.source(attribute.nameRange()) != attribute.name())
            return "the name of attribute " + attribute.path();
        const std::string quote(1, attribute.quote());
        const std::string value = quote + std::string(document.source(attribute.valueRange())) + quote;
        const std::string_view whole = document.source(range);
        if (whole.substr(whole.size() - std::min(whole.size(), value.size())) != value)
            return "the value of attribute " + attribute.path();
        end = range.end;
    }
    return {};
}

std::string faultInTags(SourceNode node, const SourceDocument& document)
{
    const std::string_view start = document.source(node.startTagRange());
    const std::string_view end = document.source(node.endTagRange());
    if (start.front() != '<' || start.back() != '>' || start.substr(1, node.name().size()) != node.name())
        return "the start tag of " + node.path();
    if (node.isEmptyTag() != (start[start.size() - 2] == '/'))
        return "the empty tag of " + node.path();
    const bool isTag = end.size() > 2 && end.substr(2, node.name().size()) == node.name() && end.back() == '>';
    if (!isTag && !(end.empty() && (node.isEmptyTag() || !document.isWellFormed())))
        return "the end tag of " + node.path();
    return {};
}

/// QXmlStreamReader has the names of the fourth edition, which knows fewer letters.
bool isAboutNewerNames(const std::string& error)
{
    return error == "Invalid XML name." || error.find("invalid processing instruction name") != std::string::npos;
}

} // namespace

std::string streamReaderTokens(const std::string& bytes, std::string& error)
{
    QXmlStreamReader reader(QByteArray(bytes.data(), static_cast<int>(bytes.size())));
    Tokens tokens;
    int level = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        level += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
        addToken(reader, level > 0, tokens);
    }
    error = reader.errorString().toStdString();
    return reader.hasError() ? "" : tokens.lines();
}

std::string sourceTokens(const SourceDocument& document)
{
    Tokens tokens;
    SourceNode open = document.document();
    for (std::size_t i = 1; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        for (; open != node.parent(); open = open.parent())
            tokens.add("end");
        addNode(node, document, tokens);
        if (node.isElement())
            open = node;
    }
    for (; open != document.document(); open = open.parent())
        tokens.add("end");
    return tokens.lines();
}

std::string faultInRanges(const SourceDocument& document)
{
    std::vector<std::size_t> covered(document.nodeCount());
    for (std::size_t i = 0; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        if (!node.range().contains(node.contentRange()) || !node.range().contains(node.nameRange()))
            return "the content of " + node.path();
        covered[i] = node.contentRange().begin;
        if (i > 0) {
            std::size_t& before = covered[node.parent().index()];
            if (before != node.range().begin || node.range().isEmpty())
                return "a gap before " + node.path();
            before = node.range().end;
        }
        if (document.source(node.nameRange()) != node.name())
            return "the name of " + node.path();
        std::string fault = faultInAttributes(node, document);
        if (fault.empty() && node.isElement())
            fault = faultInTags(node, document);
        if (!fault.empty())
            return fault;
    }
    for (std::size_t i = 0; i < document.nodeCount(); ++i)
        if (const SourceNode node = document.node(i);
            (node.isElement() || i == 0) && covered[i] != node.contentRange().end)
            return "a gap at the end of " + node.path();
    return {};
}

bool hasMoreThanTextInEntities(const SourceDocument& document)
{
    for (std::size_t i = 0; i < document.nodeCount(); ++i)
        if (const SourceNode node = document.node(i); node.kind() == NodeKind::EntityReference)
            if (node.value().empty() || node.value().find('&') != std::string_view::npos)
                return true;
    return false;
}

std::string differenceFromStreamReader(const std::string& bytes)
{
    const SourceDocument document = SourceDocument::parse(bytes);
    if (document.text() != bytes)
        return "its text is another one";
    const std::string fault = faultInRanges(document);
    if (!fault.empty())
        return "ranges: " + fault;
    if (!document.isWellFormed())
        return {};
    if (!document.isComplete())
        return "an error is missing";
    std::string error;
    const std::string expected = streamReaderTokens(bytes, error);
    if (isAboutNewerNames(error))
        return {};
    if (!error.empty())
        return "is refused by QXmlStreamReader alone: " + error;
    if (!hasMoreThanTextInEntities(document) && sourceTokens(document) != expected)
        return "has other values:\n" + sourceTokens(document) + "where QXmlStreamReader has\n" + expected;
    return {};
}

} // namespace zu::test
