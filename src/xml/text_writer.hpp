#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zupackage::xml {

/// Writes a document as UTF-8 text, laid out as QDomDocument does it: an element a line; one that holds a text holds it
/// on its own line. Attributes stand in the order in which they are written.
class TextWriter
{
public:
    /// A document that starts with `declaration`, its elements indented by `indentation` blanks a level.
    TextWriter(std::string_view declaration, std::size_t indentation);

    /// Starts an element within those that are not ended yet. The name must live as long as the writer.
    void startElement(std::string_view name);
    /// Writes an attribute, also an empty one, of the element that was started last and has no content yet.
    void attribute(std::string_view name, std::string_view value);
    /// Writes text into the element, which becomes `<name></name>` when that is empty, and has no other content.
    void text(std::string_view text);
    /// The same as a CDATA section.
    void cdata(std::string_view text);
    /// Ends the innermost element.
    void endElement();

    /// What was written. Nothing can be written afterwards.
    std::string takeDocument() { return std::move(m_document); }

private:
    enum class Position
    {
        InStartTag,
        AfterText,
        BetweenElements
    };

    void indent();

    std::string m_document;
    std::size_t m_indentation;
    std::vector<std::string_view> m_elements; // those that are not ended yet, the innermost last
    Position m_position = Position::BetweenElements;
};

} // namespace zupackage::xml
