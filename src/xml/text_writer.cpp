#include "xml/text_writer.hpp"

#include "xml/escaping.hpp"

namespace zupackage::xml {

TextWriter::TextWriter(std::string_view declaration, std::size_t indentation)
    : m_document(declaration), m_indentation(indentation)
{
    m_document += '\n';
}

void TextWriter::startElement(std::string_view name)
{
    if (m_position == Position::InStartTag)
        m_document += ">\n";
    indent();
    (m_document += '<') += name;
    m_elements.push_back(name);
    m_position = Position::InStartTag;
}

void TextWriter::attribute(std::string_view name, std::string_view value)
{
    ((m_document += ' ') += name) += "=\"";
    appendEscaped(m_document, value, Place::AttributeValue);
    m_document += '"';
}

void TextWriter::text(std::string_view text)
{
    m_document += '>';
    appendEscaped(m_document, text, Place::Content);
    m_position = Position::AfterText;
}

void TextWriter::cdata(std::string_view text)
{
    m_document += "><![CDATA[";
    appendEscaped(m_document, text, Place::CData);
    m_document += "]]>";
    m_position = Position::AfterText;
}

void TextWriter::endElement()
{
    const std::string_view name = m_elements.back();
    m_elements.pop_back();
    if (m_position == Position::InStartTag) {
        m_document += "/>\n";
    } else {
        if (m_position == Position::BetweenElements)
            indent();
        ((m_document += "</") += name) += ">\n";
    }
    m_position = Position::BetweenElements;
}

void TextWriter::indent() { m_document.append(m_elements.size() * m_indentation, ' '); }

} // namespace zupackage::xml
