#pragma once

#include "xml/text_writer.hpp"

#include <list>
#include <map>
#include <string>
#include <string_view>

namespace zu {
struct BehaviorInfoPrivate;
struct DialogInfoPrivate;
struct LanguageInfoPrivate;
} // namespace zu

/// The elements within a manifest's "contents", and what all writers of elements share.
namespace zupackage {

/// Writes a "behaviorContent" element.
void writeBehavior(xml::TextWriter& out, const zu::BehaviorInfoPrivate& behavior);
/// Writes a "dialogContent" element.
void writeDialog(xml::TextWriter& out, const zu::DialogInfoPrivate& dialog);
/// Writes a "languageContent" element.
void writeLanguage(xml::TextWriter& out, const zu::LanguageInfoPrivate& language);

/// Writes an attribute unless the value is empty.
void writeNonEmptyAttribute(xml::TextWriter& out, std::string_view name, std::string_view value);

/// Writes an attribute that is "true" or "false".
void writeFlag(xml::TextWriter& out, std::string_view name, bool value);

/// Writes an element without attributes and content.
void writeEmptyElement(xml::TextWriter& out, std::string_view name);

/// Writes an element that holds a text, also an empty one, and nothing else.
void writeTextElement(xml::TextWriter& out, std::string_view name, std::string_view text);

/// How texts by key are called: `<container><child key="...">...</child>...</container>`.
struct KeyedTextNames
{
    std::string_view container;
    std::string_view child;
    std::string_view key;
};

/// Writes a container with one child for each entry whose text is not empty; nothing at all for an empty map. An empty
/// key is not written.
void writeTexts(xml::TextWriter& out, const KeyedTextNames& names, const std::map<std::string, std::string>& texts);

/// The same for lists of texts, with one child for each text that is not empty.
void writeTextLists(xml::TextWriter& out, const KeyedTextNames& names,
                    const std::map<std::string, std::list<std::string>>& texts);

/// The same with each text as a CDATA section.
void writeCDataLists(xml::TextWriter& out, const KeyedTextNames& names,
                     const std::map<std::string, std::list<std::string>>& texts);

} // namespace zupackage
