#include "check/findings.hpp"
#include "check/language_tag.hpp"
#include "check/wording.hpp"
#include "edit/reading.hpp"

#include <algorithm>
#include <map>

namespace zupackage::check {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::Severity;
using zu::authoring::ValueKind;

/// A language code where it stands: as an attribute, or, where that is null, as the text of the element.
struct Code
{
    SourceNode element;
    SourceAttribute attribute;
    std::string text;
};

/// All language codes of the document that are not empty.
std::vector<Code> codesIn(const Outline& outline)
{
    std::vector<Code> codes;
    for (const SourceNode element : outline.elements()) {
        const ElementEntry& entry = *outline.entry(element);
        for (const AttributeEntry& known : entry.attributes) {
            if (known.kind != ValueKind::LanguageCode)
                continue;
            const SourceAttribute attribute = plainAttribute(element, known.name);
            if (!isBlank(attribute.value()))
                codes.push_back({element, attribute, std::string(attribute.value())});
        }
        if (entry.text == ValueKind::LanguageCode) {
            std::string text = edit::readText(element);
            if (!isBlank(text))
                codes.push_back({element, {}, std::move(text)});
        }
    }
    return codes;
}

Finding& report(Findings& findings, const Code& code, std::string message)
{
    return code.attribute ? findings.at(code.attribute, std::move(message))
                          : findings.atContent(code.element, std::move(message));
}

void findMalformedLanguages(const Checked& checked, Findings& findings)
{
    for (const Code& code : codesIn(checked.outline)) {
        // White space around a code has a rule of its own.
        if (!parseLanguageTag(trimmed(code.text)))
            report(findings, code, inQuotes(code.text) + " is no language code, such as \"en\" or \"fr_CA\"");
    }
}

void findUnknownLanguages(const Checked& checked, Findings& findings)
{
    for (const Code& code : codesIn(checked.outline)) {
        const auto tag = parseLanguageTag(trimmed(code.text));
        const std::string_view unknown = tag ? unknownPart(*tag) : std::string_view();
        if (unknown.empty())
            continue;
        const char* const what = unknown.data() == tag->language.data() ? "language"
                                 : unknown.data() == tag->script.data() ? "script"
                                                                        : "country";
        report(findings, code, "there is no " + std::string(what) + " " + inQuotes(unknown));
    }
}

void findFormerLanguages(const Checked& checked, Findings& findings)
{
    for (const Code& code : codesIn(checked.outline)) {
        const auto tag = parseLanguageTag(trimmed(code.text));
        const std::string_view present = tag ? successor(*tag) : std::string_view();
        if (!present.empty())
            report(findings, code,
                   inQuotes(tag->language) + " is a former code of a language: write " + inQuotes(present));
    }
}

/// The separator that most codes have; the first one of two that are as frequent.
char usualSeparator(const std::vector<Code>& codes)
{
    std::ptrdiff_t underscores = 0;
    char first = '\0';
    for (const Code& code : codes) {
        const auto tag = parseLanguageTag(trimmed(code.text));
        if (!tag || tag->separator == '\0')
            continue;
        if (first == '\0')
            first = tag->separator;
        underscores += tag->separator == '_' ? 1 : -1;
    }
    return underscores == 0 ? first : underscores > 0 ? '_' : '-';
}

void findMixedStyles(const Checked& checked, Findings& findings)
{
    const std::vector<Code> codes = codesIn(checked.outline);
    const char usual = usualSeparator(codes);
    std::map<std::string, const Code*> spellings;
    for (const Code& code : codes) {
        const std::string_view text = trimmed(code.text);
        const auto tag = parseLanguageTag(text);
        if (!tag)
            continue;
        std::string canonical = canonicalSpelling(text);
        if (tag->separator != '\0' && tag->separator != usual) {
            std::replace(canonical.begin(), canonical.end(), tag->separator, usual);
            report(findings, code,
                   "other codes have " + inQuotes(std::string(1, usual)) + " between their parts: write " +
                       inQuotes(canonical));
            continue;
        }
        const auto [first, isNew] = spellings.try_emplace(std::move(canonical), &code);
        if (!isNew && trimmed(first->second->text) != text)
            report(findings, code, inQuotes(text) + " is not " + inQuotes(trimmed(first->second->text)) + " to readers")
                .see("the other spelling", first->second->element);
    }
}

} // namespace

const std::vector<RuleRow>& languageRules()
{
    static const std::vector<RuleRow> rules = {
        {{"malformed-language", Severity::Error, "A language code that is none",
          "A code is a language of two or three letters, with a script, a country and variants where they are wanted, "
          "parted by hyphens or underscores: \"en\", \"fr_CA\", \"zh-Hant-TW\". Robots look for exactly the code that "
          "they are set to.",
          ExampleFrame::Languages,
          "<supportedLanguages><language>french</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          "<supportedLanguages><language>fr</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          ""},
         findMalformedLanguages},
        {{"unknown-language", Severity::Warning, "A language, script or country that no standard knows",
          "Languages are those of ISO 639, scripts of ISO 15924, countries of ISO 3166.", ExampleFrame::Languages,
          "<supportedLanguages><language>xq</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          "<supportedLanguages><language>qu</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          ""},
         findUnknownLanguages},
        {{"former-language", Severity::Warning, "A language code that another one has replaced",
          "Some languages have a code that was given up for another one, as Hebrew's \"iw\" for \"he\". Robots compare "
          "codes to the byte, so that a text in the one is not found for the other.",
          ExampleFrame::Languages,
          "<supportedLanguages><language>iw</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          "<supportedLanguages><language>he</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          ""},
         findFormerLanguages},
        {{"mixed-language-style", Severity::Warning, "Language codes in different styles",
          "Codes are compared to the byte: \"fr_CA\", \"fr-CA\" and \"fr_ca\" are three languages to readers.",
          ExampleFrame::Languages,
          "<supportedLanguages><language>fr_CA</language><language>pt-BR</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          "<supportedLanguages><language>fr_CA</language><language>pt_BR</language></supportedLanguages>"
          "<descriptionLanguages><language>en</language></descriptionLanguages>",
          ""},
         findMixedStyles},
    };
    return rules;
}

} // namespace zupackage::check
