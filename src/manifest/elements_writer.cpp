#include "manifest/elements_writer.hpp"

namespace zupackage {

namespace {

using WriteText = void (xml::TextWriter::*)(std::string_view);

void writeUnlessEmpty(xml::TextWriter& out, const KeyedTextNames& names, const std::string& key,
                      const std::string& text, WriteText write)
{
    if (text.empty())
        return;
    out.startElement(names.child);
    writeNonEmptyAttribute(out, names.key, key);
    (out.*write)(text);
    out.endElement();
}

void writeLists(xml::TextWriter& out, const KeyedTextNames& names,
                const std::map<std::string, std::list<std::string>>& texts, WriteText write)
{
    if (texts.empty())
        return;
    out.startElement(names.container);
    for (const auto& [key, list] : texts)
        for (const std::string& text : list)
            writeUnlessEmpty(out, names, key, text, write);
    out.endElement();
}

} // namespace

void writeNonEmptyAttribute(xml::TextWriter& out, std::string_view name, std::string_view value)
{
    if (!value.empty())
        out.attribute(name, value);
}

void writeFlag(xml::TextWriter& out, std::string_view name, bool value)
{
    out.attribute(name, value ? "true" : "false");
}

void writeEmptyElement(xml::TextWriter& out, std::string_view name)
{
    out.startElement(name);
    out.endElement();
}

void writeTextElement(xml::TextWriter& out, std::string_view name, std::string_view text)
{
    out.startElement(name);
    out.text(text);
    out.endElement();
}

void writeTexts(xml::TextWriter& out, const KeyedTextNames& names, const std::map<std::string, std::string>& texts)
{
    if (texts.empty())
        return;
    out.startElement(names.container);
    for (const auto& [key, text] : texts)
        writeUnlessEmpty(out, names, key, text, &xml::TextWriter::text);
    out.endElement();
}

void writeTextLists(xml::TextWriter& out, const KeyedTextNames& names,
                    const std::map<std::string, std::list<std::string>>& texts)
{
    writeLists(out, names, texts, &xml::TextWriter::text);
}

void writeCDataLists(xml::TextWriter& out, const KeyedTextNames& names,
                     const std::map<std::string, std::list<std::string>>& texts)
{
    writeLists(out, names, texts, &xml::TextWriter::cdata);
}

} // namespace zupackage
